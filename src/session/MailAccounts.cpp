#include "session/MailAccounts.h"

MailAccounts MailAccounts::Create() {
    MailAccounts accounts;
    accounts.Make();
    return accounts;
}

int32_t MailAccounts::Read() { return m_handle ? m_library.ReadAccounts(m_handle) : 0; }

int32_t MailAccounts::Save(uint32_t flags) {
    return m_handle ? m_library.SaveAccounts(m_handle, flags) : 0;
}

int32_t MailAccounts::Count() { return m_handle ? m_library.Count(m_handle) : 0; }

std::string MailAccounts::ProfileName(int32_t index) {
    return m_handle ? m_library.ProfileName(m_handle, index) : std::string();
}

int32_t MailAccounts::IsProtected(int32_t index) {
    return m_handle ? m_library.IsProtected(m_handle, index) : 0;
}

int32_t MailAccounts::SetProtected(int32_t index, uint32_t on) {
    return m_handle ? m_library.SetProtected(m_handle, index, on) : 0;
}

std::string MailAccounts::ClientName(int32_t index) {
    return m_handle ? m_library.ClientName(m_handle, index) : std::string();
}
