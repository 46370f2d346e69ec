#include "session/SiblingLibs.h"

#include "options/SwitchWord.h"
#include "session/ProcessState.h"

CSiblingLibs g_Siblings;

CSiblingLibs::~CSiblingLibs() { Release(); }

int32_t CSiblingLibs::LoadSSCtrl() { return m_registration.Load(); }
int32_t CSiblingLibs::LoadP3Athl() { return m_mailAccounts.Load(); }
int32_t CSiblingLibs::LoadIMcfg() { return m_messengers.Load(); }
int32_t CSiblingLibs::LoadMsgFlt() { return m_spamFilter.Load(); }
int32_t CSiblingLibs::LoadDMZ() { return m_exclusionZone.Load(); }

void CSiblingLibs::Release() {
    m_registration.Release();
    m_mailAccounts.Release();
    m_messengers.Release();
    m_exclusionZone.Release();
    m_spamFilter.Release();
}

// --- Function registration ---------------------------------------------------

int32_t CSiblingLibs::ServiceControl(int32_t op, int32_t item, int32_t option) {
    if (op == SC_IsRegistered && IsPending(item)) return StoredSwitchState(item);
    return m_registration.Control(op, item, option);
}

bool CSiblingLibs::IsPending(int32_t item) const {
    return g_bLevelPending != 0 || (m_pendingMask & SwitchBitOf(item)) != 0;
}

uint32_t CSiblingLibs::MarkPending(uint32_t setBits, uint32_t clearBits) {
    const uint32_t previous = m_pendingMask;
    m_pendingMask = (m_pendingMask | setBits) & ~clearBits;
    return previous;
}

uint32_t CSiblingLibs::GetPending() const { return m_pendingMask; }

int32_t CSiblingLibs::HasEnoughPrivilege() { return m_registration.HasEnoughPrivilege(); }

// --- Mail accounts -----------------------------------------------------------

MailAccounts CSiblingLibs::CreateMailAccounts() { return MailAccounts::Create(); }

// --- Instant messengers ------------------------------------------------------

int32_t CSiblingLibs::GetIMInstall(int32_t index) { return m_messengers.IsInstalled(index); }

// --- Spam filter -------------------------------------------------------------

int32_t CSiblingLibs::MsgFltInitManager() { return m_spamFilter.InitManager(); }

int32_t CSiblingLibs::MsgFltReleaseManager() { return m_spamFilter.ReleaseManager(); }

int32_t CSiblingLibs::MsgFltDoProperty() { return m_spamFilter.DoProperty(); }

int32_t CSiblingLibs::MsgFltApplyRules(uint32_t low, uint32_t high) {
    return m_spamFilter.ApplyRules(low, high);
}

int32_t CSiblingLibs::MsgFltReloadManager() { return m_spamFilter.ReloadManager(); }

int32_t CSiblingLibs::MsgFltWriteRules() { return m_spamFilter.WriteRules(); }

int32_t CSiblingLibs::MsgFltGetRuleCount() { return m_spamFilter.RuleCount(); }

// --- Exclusion zone ----------------------------------------------------------

ExclusionZone CSiblingLibs::CreateExclusionZone() { return ExclusionZone::Create(); }

// --- Network drives ----------------------------------------------------------

int32_t CSiblingLibs::GetConnection(const char* localName, char* remoteName, uint32_t* length) {
    return m_network.GetConnection(localName, remoteName, length);
}

int32_t CSiblingLibs::AddConnection(const NetResource& resource, const char* password,
                                    const char* userName, uint32_t flags) {
    return m_network.AddConnection(resource, password, userName, flags);
}

std::string CSiblingLibs::GetRemoteName(const std::string& drive, int32_t scope) {
    return m_network.GetRemoteName(drive, scope);
}

// --- Secure profiles ---------------------------------------------------------

int32_t CSiblingLibs::GetSecInt(const char* section, const char* key, int32_t useWarnMail) {
    return m_secureProfiles.GetInt(section, key, useWarnMail);
}

std::string CSiblingLibs::GetSecString(const char* section, const char* key,
                                       const char* defaultText, const char* fileName) {
    return m_secureProfiles.GetString(section, key, defaultText, fileName);
}

int32_t CSiblingLibs::WriteSecString(const char* section, const char* key, const char* value) {
    return m_secureProfiles.WriteString(section, key, value);
}

int32_t CSiblingLibs::WriteSecInt(const char* section, const char* key, int32_t value) {
    return m_secureProfiles.WriteInt(section, key, value);
}

std::string CSiblingLibs::GetProductString(const char* section, const char* key,
                                           const char* defaultText) {
    return m_secureProfiles.ProductString(section, key, defaultText);
}

uint32_t CSiblingLibs::GetLanguageId() { return m_language.LanguageId(); }
