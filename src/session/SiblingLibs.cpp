#include "session/SiblingLibs.h"

#include <cstdio>

#include "options/SwitchWord.h"
#include "session/ProcessState.h"

CSiblingLibs g_Siblings;

namespace {

using platform::SharedLibrary;

// Secure profile texts are read into a buffer of this size.
constexpr uint32_t kSecTextCapacity = 1024;

using ItemEntry = int32_t(int32_t);
using ManagerEntry = int32_t();

// The entry point of the ops that pass the item alone.
const char* ItemEntryOf(int32_t op) {
    switch (op) {
        case SC_IsRegistered:
            return "Q9SSCtrl_IsRegistered";
        case SC_Register:
            return "Q9SSCtrl_Register";
        case SC_SetCfgChanged:
            return "Q9SSCtrl_SetCfgChanged";
        default:
            return "Q9SSCtrl_CanBeRegister";
    }
}

int32_t LoadInto(SharedLibrary& library, const char* baseName) {
    return library.Load(g_szModuleDir, baseName) ? 1 : 0;
}

// A library without a handle of its own: loaded for one operation, freed
// when the returned object goes.
SharedLibrary LoadForOneCall(const char* baseName) {
    SharedLibrary library;
    library.Load(g_szModuleDir, baseName);
    return library;
}

std::string ProfilePath(const char* fileName) { return g_szModuleDir + (fileName ? fileName : ""); }

std::string TextOrEmpty(const char* text) { return text ? text : ""; }

// The value of key, or defaultText when the library answers 0 (no value) or
// lacks the entry point.
std::string ReadSecString(const SharedLibrary& orvInst, const char* section, const char* key,
                          const char* defaultText, const std::string& path) {
    using Entry = int32_t(const char*, const char*, const char*, char*, uint32_t, const char*);
    std::string buffer(kSecTextCapacity, '\0');
    const int32_t copied =
        orvInst.CallOr<Entry>(0, "OrvInst2_GetSecProfileString", section, key, defaultText,
                              buffer.data(), kSecTextCapacity, path.c_str());
    if (copied == 0) return TextOrEmpty(defaultText);
    return std::string(buffer.c_str());
}

// "1031_ProductName": the language id, right-aligned in four places, and the
// key.
std::string LanguageKey(uint32_t language, const char* key) {
    char prefix[16];
    std::snprintf(prefix, sizeof prefix, "%4u_", language);
    return prefix + TextOrEmpty(key);
}

}  // namespace

CSiblingLibs::~CSiblingLibs() { Release(); }

int32_t CSiblingLibs::LoadSSCtrl() { return LoadInto(m_hSSCtrl, "Q9SSCtrl"); }
int32_t CSiblingLibs::LoadP3Athl() { return LoadInto(m_hP3Athl, "Q9P3ATHL"); }
int32_t CSiblingLibs::LoadIMcfg() { return LoadInto(m_hIMcfg, "Q9IMcfg"); }
int32_t CSiblingLibs::LoadMsgFlt() { return LoadInto(m_hMsgFlt, "Q9MsgFlt"); }
int32_t CSiblingLibs::LoadDMZ() { return LoadInto(m_hDMZ, "OrvDMZ"); }

void CSiblingLibs::Release() {
    m_hSSCtrl.Release();
    m_hP3Athl.Release();
    m_hIMcfg.Release();
    m_hDMZ.Release();
    m_hMsgFlt.Release();
}

// --- Function registration ---------------------------------------------------

int32_t CSiblingLibs::ServiceControl(int32_t op, int32_t item, int32_t option) {
    if (op == SC_IsRegistered && IsPending(item)) return StoredSwitchState(item);
    if (!LoadSSCtrl()) return 0;
    return CallSSCtrl(op, item, option);
}

bool CSiblingLibs::IsPending(int32_t item) const {
    return g_bLevelPending != 0 || (m_pendingMask & SwitchBitOf(item)) != 0;
}

int32_t CSiblingLibs::CallSSCtrl(int32_t op, int32_t item, int32_t option) {
    if (op == SC_Unregister) {
        return m_hSSCtrl.CallOr<int32_t(int32_t, int32_t, int32_t)>(0, "Q9SSCtrl_Unregister", item,
                                                                    kUnregisterTimeoutMs, option);
    }
    return m_hSSCtrl.CallOr<ItemEntry>(0, ItemEntryOf(op), item);
}

uint32_t CSiblingLibs::MarkPending(uint32_t setBits, uint32_t clearBits) {
    const uint32_t previous = m_pendingMask;
    m_pendingMask = (m_pendingMask | setBits) & ~clearBits;
    return previous;
}

uint32_t CSiblingLibs::GetPending() const { return m_pendingMask; }

int32_t CSiblingLibs::HasEnoughPrivilege() {
    LoadSSCtrl();
    return m_hSSCtrl.CallOr<int32_t()>(0, "Q9SSCtrl_HasEnoughPrivilege");
}

// --- Mail accounts -----------------------------------------------------------

void* CSiblingLibs::P3Create() {
    LoadP3Athl();
    return m_hP3Athl.CallOr<void*()>(nullptr, "Q9P3ATHL_Create");
}

void CSiblingLibs::P3Free(void* accounts) {
    LoadP3Athl();
    m_hP3Athl.CallIfPresent<void(void*)>("Q9P3ATHL_Free", accounts);
}

int32_t CSiblingLibs::P3Load(void* accounts) {
    LoadP3Athl();
    return m_hP3Athl.CallOr<int32_t(void*)>(0, "Q9P3ATHL_Load", accounts);
}

int32_t CSiblingLibs::P3Save(void* accounts, uint32_t flags) {
    LoadP3Athl();
    return m_hP3Athl.CallOr<int32_t(void*, uint32_t)>(0, "Q9P3ATHL_Save", accounts, flags);
}

int32_t CSiblingLibs::P3GetCount(void* accounts) {
    LoadP3Athl();
    return m_hP3Athl.CallOr<int32_t(void*)>(0, "Q9P3ATHL_GetCount", accounts);
}

std::string CSiblingLibs::P3GetProfileName(void* accounts, int32_t index) {
    LoadP3Athl();
    return TextOrEmpty(m_hP3Athl.CallOr<const char*(void*, int32_t)>(
        nullptr, "Q9P3ATHL_GetProfileName", accounts, index));
}

int32_t CSiblingLibs::P3GetProtected(void* accounts, int32_t index) {
    LoadP3Athl();
    return m_hP3Athl.CallOr<int32_t(void*, int32_t)>(0, "Q9P3ATHL_GetProtected", accounts, index);
}

int32_t CSiblingLibs::P3SetProtected2(void* accounts, int32_t index, uint32_t on) {
    LoadP3Athl();
    return m_hP3Athl.CallOr<int32_t(void*, int32_t, uint32_t)>(0, "Q9P3ATHL_SetProtected2",
                                                               accounts, index, on);
}

std::string CSiblingLibs::P3GetMUAName(void* accounts, int32_t index) {
    LoadP3Athl();
    return TextOrEmpty(m_hP3Athl.CallOr<const char*(void*, int32_t)>(nullptr, "Q9P3ATHL_GetMUAName",
                                                                     accounts, index));
}

// --- Instant messengers ------------------------------------------------------

int32_t CSiblingLibs::GetIMInstall(int32_t index) {
    LoadIMcfg();
    return m_hIMcfg.CallOr<ItemEntry>(0, "GetIMInstall", index);
}

// --- Spam filter -------------------------------------------------------------

int32_t CSiblingLibs::MsgFltInitManager() {
    LoadMsgFlt();
    return m_hMsgFlt.CallOr<ManagerEntry>(0, "Q9MsgFltAPI_InitManager");
}

int32_t CSiblingLibs::MsgFltReleaseManager() {
    LoadMsgFlt();
    return m_hMsgFlt.CallOr<ManagerEntry>(0, "Q9MsgFltAPI_ReleaseManager");
}

int32_t CSiblingLibs::MsgFltDoProperty() {
    LoadMsgFlt();
    return m_hMsgFlt.CallOr<ManagerEntry>(0, "Q9MsgFltAPI_DoProperty");
}

int32_t CSiblingLibs::MsgFltApplyRules(uint32_t low, uint32_t high) {
    LoadMsgFlt();
    return m_hMsgFlt.CallOr<int32_t(uint32_t, uint32_t)>(0, "PFN_ApplyRules", low, high);
}

int32_t CSiblingLibs::MsgFltReloadManager() {
    LoadMsgFlt();
    return m_hMsgFlt.CallOr<ManagerEntry>(0, "Q9MsgFltAPI_ReloadManager");
}

int32_t CSiblingLibs::MsgFltWriteRules() {
    LoadMsgFlt();
    return m_hMsgFlt.CallOr<ManagerEntry>(0, "Q9MsgFltAPI_WriteRules");
}

int32_t CSiblingLibs::MsgFltGetRuleCount() {
    LoadMsgFlt();
    return m_hMsgFlt.CallOr<ManagerEntry>(0, "Q9MsgFltAPI_GetRuleCount");
}

// --- Exclusion zone ----------------------------------------------------------

void* CSiblingLibs::DMZCreate() {
    LoadDMZ();
    return m_hDMZ.CallOr<void*()>(nullptr, "OrvDMZ_Create");
}

int32_t CSiblingLibs::DMZAdd(void* zone, const char* owner, const char* owner2,
                             const void* records) {
    LoadDMZ();
    return m_hDMZ.CallOr<int32_t(void*, const char*, const char*, const void*)>(
        0, "OrvDMZ_AddDMZA", zone, owner, owner2, records);
}

int32_t CSiblingLibs::DMZEnum(void* zone, const char* owner, const char* owner2, void* buffer,
                              int32_t size) {
    LoadDMZ();
    return m_hDMZ.CallOr<int32_t(void*, const char*, const char*, void*, int32_t)>(
        0, "OrvDMZ_EnumDMZA", zone, owner, owner2, buffer, size);
}

int32_t CSiblingLibs::DMZDelete(void* zone, const char* owner, const char* owner2) {
    LoadDMZ();
    return m_hDMZ.CallOr<int32_t(void*, const char*, const char*, int32_t)>(0, "OrvDMZ_DeleteDMZA",
                                                                            zone, owner, owner2, 0);
}

void CSiblingLibs::DMZDestroy(void* zone) {
    LoadDMZ();
    m_hDMZ.CallIfPresent<void(void*)>("OrvDMZ_Destroy", zone);
}

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
    const SharedLibrary orvInst = LoadForOneCall("OrvInst");
    const std::string path = ProfilePath(useWarnMail == 1 ? kWarnMailProfileFile : kSecProfileFile);
    return orvInst.CallOr<int32_t(const char*, const char*, int32_t, const char*)>(
        0, "OrvInst2_GetSecProfileInt", section, key, 0, path.c_str());
}

std::string CSiblingLibs::GetSecString(const char* section, const char* key,
                                       const char* defaultText, const char* fileName) {
    const SharedLibrary orvInst = LoadForOneCall("OrvInst");
    return ReadSecString(orvInst, section, key, defaultText, ProfilePath(fileName));
}

int32_t CSiblingLibs::WriteSecString(const char* section, const char* key, const char* value) {
    const SharedLibrary orvInst = LoadForOneCall("OrvInst");
    const std::string path = ProfilePath(kWarnMailProfileFile);
    return orvInst.CallIfPresent<int32_t(const char*, const char*, const char*, const char*)>(
               "OrvInst2_WriteSecProfileString", section, key, value, path.c_str())
               ? 1
               : 0;
}

int32_t CSiblingLibs::WriteSecInt(const char* section, const char* key, int32_t value) {
    const SharedLibrary orvInst = LoadForOneCall("OrvInst");
    const std::string path = ProfilePath(kWarnMailProfileFile);
    return orvInst.CallIfPresent<int32_t(const char*, const char*, int32_t, const char*)>(
               "OrvInst2_WriteSecProfileInt", section, key, value, path.c_str())
               ? 1
               : 0;
}

std::string CSiblingLibs::GetProductString(const char* section, const char* key,
                                           const char* defaultText) {
    const SharedLibrary orvInst = LoadForOneCall("OrvInst");
    if (!orvInst.IsLoaded()) return {};
    const std::string path = ProfilePath(kSecProfileFile);
    // Without a language id there is no language-specific key to ask for.
    const uint32_t language = GetLanguageId();
    if (language != 0) {
        std::string text =
            ReadSecString(orvInst, section, LanguageKey(language, key).c_str(), "", path);
        if (!text.empty()) return text;
    }
    return ReadSecString(orvInst, section, key, defaultText, path);
}

uint32_t CSiblingLibs::GetLanguageId() {
    const SharedLibrary orvI18N = LoadForOneCall("OrvI18N");
    return orvI18N.CallOr<uint32_t()>(0, "OrvI18N_GetLanguage") & 0xFFFFu;
}
