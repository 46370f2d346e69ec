#pragma once

// The store as the C functions see it: one per process. It reads and writes
// the current file (the live store "Q9Cfg.dat" of the installation, or a file
// selected by path), or in edit mode a working copy of it; absent keys read
// the factory defaults "Q9CfgDef.dat". Every member function locks the one
// mutex, so the store may be called from any thread.

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>

#include "ChangeSet.h"
#include "EditLock.h"
#include "KeptCopies.h"
#include "StoreFile.h"
#include "WorkingCopy.h"

namespace cfge {

class ConfigStore {
public:
    static constexpr const char* kLiveFileName = "Q9Cfg.dat";
    static constexpr const char* kDefaultsFileName = "Q9CfgDef.dat";

    static ConfigStore& Instance();

    uint32_t GetWord(uint32_t section, uint32_t key);
    bool SetWord(uint32_t section, uint32_t key, uint32_t word);
    const char* GetText(uint32_t section, uint32_t key);
    bool SetText(uint32_t section, uint32_t key, const char* text);

    // The deciphered text; nullopt when absent or when it cannot be
    // deciphered (then *unopenable is set, and it is reported once).
    std::optional<std::string> GetSealed(uint32_t section, uint32_t key, bool* unopenable);
    bool SetSealed(uint32_t section, uint32_t key, const char* text);

    uint32_t DefaultWord(uint32_t section, uint32_t key);
    const char* DefaultText(uint32_t section, uint32_t key);

    const void* ObjectList(uint32_t section);
    bool SetRecord(uint32_t section, uint16_t index, const void* record);

    // Q9CfgE_SetStyleEx: 1, Q9CFGE_BUSY, or 0 for an unknown combination or
    // a level file that cannot be loaded.
    int32_t SetStyle(uint32_t style, const char* path, uint32_t mode);
    bool Unlock();
    bool Flush(uint32_t section, uint32_t commit);
    // Bumps the installation's change mark.
    bool MarkModified();

private:
    ConfigStore() = default;

    std::string CurrentPath() const;
    StoreFile& FileAt(const std::string& path);
    const StoreValue* FindCurrent(uint32_t section, uint32_t key);
    const StoreValue* FindDefault(uint32_t section, uint32_t key);
    const StoreValue* Find(uint32_t section, uint32_t key);
    const std::vector<StoreRecord>& CurrentRecords(uint32_t section);

    bool Change(const StoreFile::Change& change, const std::function<void(ChangeSet&)>& note);
    bool SetValue(uint32_t section, uint32_t key, std::optional<StoreValue> value);
    bool EmptyList(uint32_t section);

    int32_t EnterEditMode();
    int32_t LoadLevel(const std::string& path);
    void EndEditMode();
    bool Editing() const { return m_working != nullptr; }

    std::mutex m_mutex;
    std::string m_selectedPath;  // empty: the live store
    std::map<std::string, std::unique_ptr<StoreFile>> m_files;
    StoreFile::Snapshot m_current;   // keeps the values found by the last read
    StoreFile::Snapshot m_defaults;  // likewise for the defaults

    std::unique_ptr<WorkingCopy> m_working;  // edit mode when not null
    std::string m_editPath;                  // the file the working copy belongs to
    EditLock m_editLock;

    KeptCopies m_texts;
    KeptCopies m_defaultTexts;
    KeptCopies m_lists;
    std::set<std::string> m_reportedSealed;
};

}  // namespace cfge
