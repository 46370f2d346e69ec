#include "session/MailAccounts.h"

#include <utility>

MailAccounts::~MailAccounts() { Free(); }

MailAccounts::MailAccounts(MailAccounts&& other) noexcept
    : m_library(std::move(other.m_library)), m_handle(std::exchange(other.m_handle, nullptr)) {}

MailAccounts& MailAccounts::operator=(MailAccounts&& other) noexcept {
    if (this != &other) {
        Free();
        m_library = std::move(other.m_library);
        m_handle = std::exchange(other.m_handle, nullptr);
    }
    return *this;
}

MailAccounts MailAccounts::Create() {
    MailAccounts accounts;
    accounts.m_handle = accounts.m_library.Create();
    // Without an object there is nothing to keep the library loaded for.
    if (!accounts.m_handle) accounts.m_library.Release();
    return accounts;
}

bool MailAccounts::IsEmpty() const { return m_handle == nullptr; }

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

void MailAccounts::Free() {
    if (m_handle) m_library.Free(std::exchange(m_handle, nullptr));
    m_library.Release();
}
