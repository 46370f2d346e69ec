#include "MailAccounts.h"

#include <strings.h>

#include <algorithm>

#include "common/InstallDirectory.h"
#include "common/ProfileFile.h"

namespace q9p3athl {
namespace {

constexpr const char* kSectionPrefix = "Account";

}  // namespace

bool MailAccounts::IsAccountSection(const std::string& name) {
    const std::size_t prefix = std::char_traits<char>::length(kSectionPrefix);
    if (name.size() <= prefix || strncasecmp(name.c_str(), kSectionPrefix, prefix) != 0)
        return false;
    return std::all_of(name.begin() + static_cast<std::ptrdiff_t>(prefix), name.end(),
                       [](char c) { return c >= '0' && c <= '9'; });
}

bool MailAccounts::Load() {
    m_accounts.clear();
    const sibling::ProfileFile file = sibling::ProfileFile::Load(sibling::InstallFile(kFileName));
    for (const std::string& section : file.Sections()) {
        if (!IsAccountSection(section)) continue;
        Account account;
        account.section = section;
        account.profile = file.Get(section, "Profile").value_or("");
        account.client = file.Get(section, "Client").value_or("");
        account.isProtected = file.GetInt(section, "Protected").value_or(0) != 0;
        m_accounts.push_back(std::move(account));
    }
    return file.IsIntact();
}

bool MailAccounts::Save() const {
    return sibling::ProfileFile::Update(
        sibling::InstallFile(kFileName), [this](sibling::ProfileFile& file) {
            const std::vector<std::string> sections = file.Sections();
            for (const Account& account : m_accounts) {
                // An account removed from the file meanwhile is not brought back.
                const bool present =
                    std::any_of(sections.begin(), sections.end(), [&](const std::string& name) {
                        return strcasecmp(name.c_str(), account.section.c_str()) == 0;
                    });
                if (present &&
                    !file.Set(account.section, "Protected", account.isProtected ? "1" : "0")) {
                    return false;
                }
            }
            return true;
        });
}

const MailAccounts::Account* MailAccounts::At(int32_t index) const {
    if (index < 0 || index >= Count()) return nullptr;
    return &m_accounts[static_cast<std::size_t>(index)];
}

const char* MailAccounts::ProfileName(int32_t index) const {
    const Account* account = At(index);
    return account ? account->profile.c_str() : nullptr;
}

const char* MailAccounts::ClientName(int32_t index) const {
    const Account* account = At(index);
    return account ? account->client.c_str() : nullptr;
}

bool MailAccounts::IsProtected(int32_t index) const {
    const Account* account = At(index);
    return account && account->isProtected;
}

bool MailAccounts::SetProtected(int32_t index, bool on) {
    if (!At(index)) return false;
    m_accounts[static_cast<std::size_t>(index)].isProtected = on;
    return true;
}

}  // namespace q9p3athl
