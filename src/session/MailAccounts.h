#pragma once

// One account object of the mail accounts library, owned: the object is
// freed with the library's own Free when this goes, exactly once, whether it
// goes out of scope, is assigned over or is moved from.
//
// It binds the library for itself (see MailAccountsBinding), so the library
// stays loaded for as long as the object lives, even across
// CSiblingLibs::Release; freeing never meets an unloaded library.
//
// An empty MailAccounts (the library or its Create is missing, or it was
// moved from) holds nothing, answers 0 or empty text and frees nothing.

#include <cstdint>
#include <string>

#include "session/MailAccountsBinding.h"

class MailAccounts {
public:
    MailAccounts() = default;
    ~MailAccounts();

    MailAccounts(MailAccounts&& other) noexcept;
    MailAccounts& operator=(MailAccounts&& other) noexcept;
    MailAccounts(const MailAccounts&) = delete;
    MailAccounts& operator=(const MailAccounts&) = delete;

    // A new, unread account object of the library in g_szModuleDir.
    static MailAccounts Create();

    bool IsEmpty() const;

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

private:
    void Free();

    MailAccountsBinding m_library;
    void* m_handle = nullptr;
};
