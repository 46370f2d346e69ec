#pragma once

// The mail accounts library (libQ9P3ATHL.so): account objects, each holding
// one reading of the accounts file, and what is asked of them.
//
// Every call loads the library first when it is not loaded yet; it is kept
// until Release. A missing library or entry point answers 0, null or empty
// text. Texts are copied at once, so they stay valid whatever happens to the
// object afterwards.
//
// The raw objects of Create must be given back to Free of the same loaded
// library; MailAccounts does that on its own and is the usual way to get one.

#include <cstdint>
#include <string>

#include "platform/SharedLibrary.h"

class MailAccountsBinding {
public:
    // 1 when the library is loaded (at once when it already is), else 0.
    int32_t Load();
    void Release();

    void* Create();
    void Free(void* accounts);
    // Reads the accounts file into the object: 1 when it was read.
    int32_t ReadAccounts(void* accounts);
    // Writes the protected states back: 1 on success.
    int32_t SaveAccounts(void* accounts, uint32_t flags);
    int32_t Count(void* accounts);
    std::string ProfileName(void* accounts, int32_t index);
    int32_t IsProtected(void* accounts, int32_t index);
    int32_t SetProtected(void* accounts, int32_t index, uint32_t on);
    // The name of the mail client the account belongs to.
    std::string ClientName(void* accounts, int32_t index);

private:
    platform::SharedLibrary m_library;
};
