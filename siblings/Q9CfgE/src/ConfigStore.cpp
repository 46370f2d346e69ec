#include "ConfigStore.h"

#include "ChangeMark.h"
#include "KeyNames.h"
#include "ObjectListBuffer.h"
#include "Q9CfgE.h"
#include "common/InstallDirectory.h"
#include "common/SecretBox.h"
#include "platform/ProblemReport.h"

namespace cfge {
namespace {

constexpr auto kEditLockWait = std::chrono::seconds(5);

// "Q9Cfg.dat" is locked for editing as "Q9Cfg.edit.lock".
std::string EditLockPathOf(const std::string& path) {
    constexpr std::string_view kSuffix = ".dat";
    const bool hasSuffix = path.size() > kSuffix.size() &&
                           path.compare(path.size() - kSuffix.size(), kSuffix.size(), kSuffix) == 0;
    return (hasSuffix ? path.substr(0, path.size() - kSuffix.size()) : path) + ".edit.lock";
}

std::string Describe(uint32_t section, uint32_t key) {
    return "section " + std::to_string(section) + " key " + std::to_string(key);
}

// Keys and sections that stand for "all" or "the object list" hold no value.
bool IsValueAddress(uint32_t section, uint32_t key) {
    return section != Q9CFGE_ALL_SECTIONS && key != Q9CFGE_KEY_OBJECT_LIST;
}

}  // namespace

ConfigStore& ConfigStore::Instance() {
    static ConfigStore store;
    return store;
}

std::string ConfigStore::CurrentPath() const {
    return m_selectedPath.empty() ? sibling::InstallFile(kLiveFileName) : m_selectedPath;
}

StoreFile& ConfigStore::FileAt(const std::string& path) {
    std::unique_ptr<StoreFile>& file = m_files[path];
    if (!file) file = std::make_unique<StoreFile>(path);
    return *file;
}

const StoreValue* ConfigStore::FindCurrent(uint32_t section, uint32_t key) {
    if (Editing()) return m_working->Values().Find(section, key);
    m_current = FileAt(CurrentPath()).Read();
    return m_current.data->Find(section, key);
}

const StoreValue* ConfigStore::FindDefault(uint32_t section, uint32_t key) {
    m_defaults = FileAt(sibling::InstallFile(kDefaultsFileName)).Read();
    return m_defaults.data->Find(section, key);
}

const StoreValue* ConfigStore::Find(uint32_t section, uint32_t key) {
    const StoreValue* value = FindCurrent(section, key);
    return value ? value : FindDefault(section, key);
}

const std::vector<StoreRecord>& ConfigStore::CurrentRecords(uint32_t section) {
    if (Editing()) return m_working->Values().Records(section);
    m_current = FileAt(CurrentPath()).Read();
    return m_current.data->Records(section);
}

uint32_t ConfigStore::GetWord(uint32_t section, uint32_t key) {
    const std::lock_guard lock(m_mutex);
    const StoreValue* value = Find(section, key);
    return (value && value->type == ValueType::Dword) ? value->word : 0;
}

const char* ConfigStore::GetText(uint32_t section, uint32_t key) {
    const std::lock_guard lock(m_mutex);
    const StoreValue* value = Find(section, key);
    if (!value || value->type != ValueType::Text) return nullptr;
    return m_texts.Keep(KeptCopies::IdOf(section, key), value->text);
}

uint32_t ConfigStore::DefaultWord(uint32_t section, uint32_t key) {
    const std::lock_guard lock(m_mutex);
    const StoreValue* value = FindDefault(section, key);
    return (value && value->type == ValueType::Dword) ? value->word : 0;
}

const char* ConfigStore::DefaultText(uint32_t section, uint32_t key) {
    const std::lock_guard lock(m_mutex);
    const StoreValue* value = FindDefault(section, key);
    if (!value || value->type != ValueType::Text) return nullptr;
    return m_defaultTexts.Keep(KeptCopies::IdOf(section, key), value->text);
}

std::optional<std::string> ConfigStore::GetSealed(uint32_t section, uint32_t key,
                                                  bool* unopenable) {
    const std::lock_guard lock(m_mutex);
    *unopenable = false;
    const StoreValue* value = Find(section, key);
    if (!value || value->type != ValueType::Sealed) return std::nullopt;
    std::optional<std::string> plain = sibling::SecretBox().Open(value->text);
    if (!plain) {
        *unopenable = true;
        if (m_reportedSealed.insert(value->text).second) {
            platform::ReportProblem("the enciphered value of " + Describe(section, key) +
                                    " cannot be deciphered with this installation's key; it "
                                    "reads as absent");
        }
    }
    return plain;
}

const void* ConfigStore::ObjectList(uint32_t section) {
    const std::lock_guard lock(m_mutex);
    const std::vector<StoreRecord>& records = CurrentRecords(section);
    if (records.empty()) return nullptr;
    return m_lists.Keep(section, ObjectListBuffer::Encode(records));
}

bool ConfigStore::Change(const StoreFile::Change& change,
                         const std::function<void(ChangeSet&)>& note) {
    if (Editing()) return m_working->Change(change, note);
    return FileAt(CurrentPath()).Modify(change);
}

// A value, or no value (the key then reads its factory default).
bool ConfigStore::SetValue(uint32_t section, uint32_t key, std::optional<StoreValue> value) {
    if (!IsValueAddress(section, key)) return false;
    return Change(
        [&](StoreData& data) {
            if (value) {
                data.Set(section, key, std::move(*value));
            } else {
                data.Erase(section, key);
            }
            return true;
        },
        [section, key](ChangeSet& changes) { changes.KeyChanged(section, key); });
}

bool ConfigStore::SetWord(uint32_t section, uint32_t key, uint32_t word) {
    const std::lock_guard lock(m_mutex);
    return SetValue(section, key, StoreValue{ValueType::Dword, word, {}});
}

bool ConfigStore::SetText(uint32_t section, uint32_t key, const char* text) {
    const std::lock_guard lock(m_mutex);
    if (key == Q9CFGE_KEY_OBJECT_LIST) return !text && EmptyList(section);
    if (!text) return SetValue(section, key, std::nullopt);
    return SetValue(section, key, StoreValue{ValueType::Text, 0, text});
}

bool ConfigStore::SetSealed(uint32_t section, uint32_t key, const char* text) {
    const std::lock_guard lock(m_mutex);
    if (!text) return SetValue(section, key, std::nullopt);
    std::optional<std::string> sealed = sibling::SecretBox().Seal(text);
    if (!sealed) return false;
    return SetValue(section, key, StoreValue{ValueType::Sealed, 0, std::move(*sealed)});
}

// On a schedule entry the whole entry goes: an entry exists exactly while
// its working folder is there.
bool ConfigStore::EmptyList(uint32_t section) {
    if (section == Q9CFGE_ALL_SECTIONS) return false;
    const bool wholeEntry = KeyNames::IsScheduleEntry(section);
    return Change(
        [&](StoreData& data) {
            if (wholeEntry) {
                data.EraseSection(section);
            } else {
                data.SetRecords(section, {});
            }
            return true;
        },
        [&](ChangeSet& changes) {
            if (wholeEntry) {
                changes.EntryRemoved(section);
            } else {
                changes.ListChanged(section);
            }
        });
}

bool ConfigStore::SetRecord(uint32_t section, uint16_t index, const void* record) {
    const std::lock_guard lock(m_mutex);
    std::optional<StoreRecord> decoded = ObjectListBuffer::DecodeRecord(record);
    if (!decoded || section == Q9CFGE_ALL_SECTIONS) return false;
    return Change([&](StoreData& data) { return data.PutRecord(section, index, *decoded); },
                  [section](ChangeSet& changes) { changes.ListChanged(section); });
}

int32_t ConfigStore::SetStyle(uint32_t style, const char* path, uint32_t mode) {
    const std::lock_guard lock(m_mutex);
    if (style == Q9CFGE_STYLE_FILE && mode == Q9CFGE_MODE_PLAIN) {
        EndEditMode();
        if (path) m_selectedPath = path;
        return 1;
    }
    if (style == Q9CFGE_STYLE_FILE && mode == Q9CFGE_MODE_EDIT && path && *path) {
        return LoadLevel(path);
    }
    if (style == Q9CFGE_STYLE_EDIT && !path && mode == Q9CFGE_MODE_EDIT) return EnterEditMode();
    if (style == Q9CFGE_STYLE_EDIT && !path && mode == Q9CFGE_MODE_RESUME) {
        return Editing() ? 1 : EnterEditMode();
    }
    return 0;
}

// The working copy starts as the file's fresh values, without a copy: the
// first change makes one.
int32_t ConfigStore::EnterEditMode() {
    const std::string path = CurrentPath();
    if (m_editPath != path) m_editLock.Release();
    // Without a lock file nobody can hold the lock; the commit tells whether
    // the file can be written.
    const bool busy =
        m_editLock.Acquire(EditLockPathOf(path), kEditLockWait) == EditLock::Result::Busy;
    if (!m_working) m_working = std::make_unique<WorkingCopy>();
    m_working->Reset(FileAt(path).Read().data);
    m_editPath = path;
    return busy ? Q9CFGE_BUSY : 1;
}

int32_t ConfigStore::LoadLevel(const std::string& path) {
    if (!Editing()) EnterEditMode();
    const StoreFile::Snapshot level = FileAt(path).Read();
    if (level.missing) platform::ReportProblem("the level file " + path + " does not exist");
    if (level.missing || !level.Writable()) return 0;
    m_working->LoadLevel(*level.data);
    return 1;
}

void ConfigStore::EndEditMode() {
    m_working.reset();
    m_editPath.clear();
    m_editLock.Release();
}

bool ConfigStore::Unlock() {
    const std::lock_guard lock(m_mutex);
    m_editLock.Release();
    return true;
}

bool ConfigStore::Flush(uint32_t section, uint32_t commit) {
    const std::lock_guard lock(m_mutex);
    if (!Editing() || commit == 0) return true;
    const bool all = section == Q9CFGE_ALL_SECTIONS;
    const std::optional<uint32_t> only = all ? std::nullopt : std::optional<uint32_t>(section);
    if (!m_working->Commit(FileAt(m_editPath), only)) {
        platform::ReportProblem("the changes could not be committed to " + m_editPath +
                                "; they are kept");
        return false;
    }
    if (all) EndEditMode();
    return true;
}

bool ConfigStore::MarkModified() {
    const std::lock_guard lock(m_mutex);
    return ChangeMark::Bump(sibling::InstallFile(ChangeMark::kFileName));
}

}  // namespace cfge
