#include "session/MailAccountsBinding.h"

#include "session/ProcessState.h"
#include "text/TextFormat.h"

namespace {

using IndexEntry = int32_t(void*, int32_t);
using TextEntry = const char*(void*, int32_t);

}  // namespace

int32_t MailAccountsBinding::Load() { return m_library.Load(g_szModuleDir, "Q9P3ATHL") ? 1 : 0; }

void MailAccountsBinding::Release() { m_library.Release(); }

void* MailAccountsBinding::Create() {
    Load();
    return m_library.CallOr<void*()>(nullptr, "Q9P3ATHL_Create");
}

void MailAccountsBinding::Free(void* accounts) {
    Load();
    m_library.CallIfPresent<void(void*)>("Q9P3ATHL_Free", accounts);
}

int32_t MailAccountsBinding::ReadAccounts(void* accounts) {
    Load();
    return m_library.CallOr<int32_t(void*)>(0, "Q9P3ATHL_Load", accounts);
}

int32_t MailAccountsBinding::SaveAccounts(void* accounts, uint32_t flags) {
    Load();
    return m_library.CallOr<int32_t(void*, uint32_t)>(0, "Q9P3ATHL_Save", accounts, flags);
}

int32_t MailAccountsBinding::Count(void* accounts) {
    Load();
    return m_library.CallOr<int32_t(void*)>(0, "Q9P3ATHL_GetCount", accounts);
}

std::string MailAccountsBinding::ProfileName(void* accounts, int32_t index) {
    Load();
    return TextOrEmpty(
        m_library.CallOr<TextEntry>(nullptr, "Q9P3ATHL_GetProfileName", accounts, index));
}

int32_t MailAccountsBinding::IsProtected(void* accounts, int32_t index) {
    Load();
    return m_library.CallOr<IndexEntry>(0, "Q9P3ATHL_GetProtected", accounts, index);
}

int32_t MailAccountsBinding::SetProtected(void* accounts, int32_t index, uint32_t on) {
    Load();
    return m_library.CallOr<int32_t(void*, int32_t, uint32_t)>(0, "Q9P3ATHL_SetProtected2",
                                                               accounts, index, on);
}

std::string MailAccountsBinding::ClientName(void* accounts, int32_t index) {
    Load();
    return TextOrEmpty(
        m_library.CallOr<TextEntry>(nullptr, "Q9P3ATHL_GetMUAName", accounts, index));
}
