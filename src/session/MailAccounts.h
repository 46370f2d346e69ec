#pragma once

// One account object of the mail accounts library, owned (see
// OwnedLibraryObject): freed with the library's own Free exactly once. An
// empty MailAccounts answers 0 or empty text.

#include <cstdint>
#include <string>

#include "session/MailAccountsBinding.h"
#include "session/OwnedLibraryObject.h"

class MailAccounts : public OwnedLibraryObject<MailAccountsBinding, &MailAccountsBinding::Free> {
public:
    // A new, unread account object of the library in g_szModuleDir.
    static MailAccounts Create();

    // Reads the accounts file into the object: 1 when it was read.
    int32_t Read();
    // Writes the protected states back to the file: 1 on success.
    int32_t Save(uint32_t flags);
    int32_t Count();
    std::string ProfileName(int32_t index);
    int32_t IsProtected(int32_t index);
    int32_t SetProtected(int32_t index, uint32_t on);
    // The name of the mail client the account belongs to.
    std::string ClientName(int32_t index);
};
