#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace q9p3athl {

// The accounts of "Q9P3Accounts.ini": sections named "Account" and a number,
// in file order, each with Profile= (the account's name), Client= (the mail
// client's name) and Protected=1|0. Other sections are not accounts.
class MailAccounts {
public:
    static constexpr const char* kFileName = "Q9P3Accounts.ini";

    // Replaces the list by the file's accounts. False when the file cannot be
    // read or parsed; the list is then empty.
    bool Load();

    // Writes the Protected values of the listed accounts into the file.
    bool Save() const;

    int32_t Count() const { return static_cast<int32_t>(m_accounts.size()); }

    // Null for an index out of range.
    const char* ProfileName(int32_t index) const;
    const char* ClientName(int32_t index) const;

    bool IsProtected(int32_t index) const;

    // False for an index out of range.
    bool SetProtected(int32_t index, bool on);

private:
    struct Account {
        std::string section;
        std::string profile;
        std::string client;
        bool isProtected = false;
    };

    static bool IsAccountSection(const std::string& name);
    const Account* At(int32_t index) const;

    std::vector<Account> m_accounts;
};

}  // namespace q9p3athl
