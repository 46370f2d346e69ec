#pragma once

// The product's other libraries, bound at run time, behind one door. An
// edition may ship without any of them, so every binding turns absence into
// a plain result: a missing library or entry point gives 0, null or empty
// text, silently, and the program goes on. No caller ever sees a load
// failure as such.
//
// Each library has a binding of its own (RegistrationBinding,
// MailAccountsBinding, MessengerBinding, SpamFilterBinding,
// ExclusionZoneBinding, SecureProfileBinding, LanguageBinding); this object
// holds one of each and passes every call on. Libraries are found as
// lib<Name>.so in g_szModuleDir. Each library with a handle is loaded by its
// load step on first need and kept until Release; the secure profile library
// (OrvInst) and, for the language id, the language library (OrvI18N) are
// loaded for one call and freed again. Entry points are looked up by name at
// every call, so there is no cache to keep consistent.
//
// The second job of this object is the pending mask: the switch bits of the
// functions that a page of this session changed in the store and whose
// registration has not been refreshed yet. While a function's bit is pending
// (or a protection level is pending), asking whether it is registered
// answers the user's choice from the store instead of the service's present
// state, so that all pages of a session agree.

#include <cstdint>
#include <string>

#include "session/ExclusionZone.h"
#include "session/ExclusionZoneBinding.h"
#include "session/MailAccounts.h"
#include "session/MailAccountsBinding.h"
#include "session/MessengerBinding.h"
#include "session/NetworkDrives.h"
#include "session/RegistrationBinding.h"
#include "session/SecureProfileBinding.h"
#include "session/SpamFilterBinding.h"

class CSiblingLibs {
public:
    CSiblingLibs() = default;
    ~CSiblingLibs();

    CSiblingLibs(const CSiblingLibs&) = delete;
    CSiblingLibs& operator=(const CSiblingLibs&) = delete;

    // Load steps: 1 when the library is loaded (at once when it already
    // is), else 0.
    int32_t LoadSSCtrl();
    int32_t LoadP3Athl();
    int32_t LoadIMcfg();
    int32_t LoadMsgFlt();
    int32_t LoadDMZ();

    // Frees every loaded library, in the order Q9SSCtrl, Q9P3ATHL, Q9IMcfg,
    // OrvDMZ, Q9MsgFlt. The pending mask stays as it is. A MailAccounts or
    // ExclusionZone still alive keeps its library loaded until it goes.
    void Release();

    // Function registration, the single door to Q9SSCtrl. op 1 on a function
    // whose bit is pending, or while g_bLevelPending is set, answers from the
    // store (see StoredSwitchState) without asking the library. Otherwise
    // the entry point's result: op 3 is Unregister(item, 5000, option); the
    // other ops pass the item alone. 0 when the library or entry point is
    // missing.
    int32_t ServiceControl(int32_t op, int32_t item, int32_t option);

    // Or-s setBits into the pending mask, then removes clearBits; returns the
    // mask as it was before.
    uint32_t MarkPending(uint32_t setBits, uint32_t clearBits);
    // The reason Q9SSCtrl gave with its last answer (RegistrationBinding).
    int32_t LastError() const { return m_registration.LastError(); }
    uint32_t GetPending() const;

    // Whether the user may change registrations; 0 when missing.
    int32_t HasEnoughPrivilege();

    // Mail accounts (Q9P3ATHL): a new account object that frees itself; empty
    // when the library is missing.
    MailAccounts CreateMailAccounts();

    // Instant messengers (Q9IMcfg): non-zero when that messenger is installed.
    int32_t GetIMInstall(int32_t index);

    // Spam filter (Q9MsgFlt). DoProperty opens the filter's own rule editor
    // and answers 1 when the rules changed.
    int32_t MsgFltInitManager();
    int32_t MsgFltReleaseManager();
    int32_t MsgFltDoProperty();
    int32_t MsgFltApplyRules(uint32_t low, uint32_t high);
    int32_t MsgFltReloadManager();
    int32_t MsgFltWriteRules();
    int32_t MsgFltGetRuleCount();

    // The shared exclusion zone (OrvDMZ): a handle that destroys itself;
    // empty when the library is missing.
    ExclusionZone CreateExclusionZone();

    // Network drives (see CNetworkDrives).
    int32_t GetConnection(const char* localName, char* remoteName, uint32_t* length);
    int32_t AddConnection(const NetResource& resource, const char* password, const char* userName,
                          uint32_t flags);
    std::string GetRemoteName(const std::string& drive, int32_t scope);

    // Secure profiles (OrvInst), each loading the library for the one call
    // (see SecureProfileBinding).
    int32_t GetSecInt(const char* section, const char* key, int32_t useWarnMail);
    std::string GetSecString(const char* section, const char* key, const char* defaultText,
                             const char* fileName);
    int32_t WriteSecString(const char* section, const char* key, const char* value);
    int32_t WriteSecInt(const char* section, const char* key, int32_t value);
    std::string GetProductString(const char* section, const char* key, const char* defaultText);

    // The session's language id (OrvI18N), low 16 bits; 0 when missing.
    uint32_t GetLanguageId();

private:
    bool IsPending(int32_t item) const;

    uint32_t m_pendingMask = 0;
    RegistrationBinding m_registration;
    MailAccountsBinding m_mailAccounts;
    MessengerBinding m_messengers;
    SpamFilterBinding m_spamFilter;
    ExclusionZoneBinding m_exclusionZone;
    SecureProfileBinding m_secureProfiles;
    LanguageBinding m_language;
    CNetworkDrives m_network;  // the network drives need no library here
};

extern CSiblingLibs g_Siblings;
