#include "common/ProfileFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <mutex>
#include <utility>

#include "platform/AtomicFile.h"
#include "platform/FileLock.h"
#include "platform/ProblemReport.h"

namespace sibling {
namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    const std::size_t last = text.find_last_not_of(kBlanks);
    return text.substr(first, last - first + 1);
}

char LowerAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return LowerAscii(x) == LowerAscii(y);
           });
}

bool HoldsLineEnd(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

bool IsValidSectionName(std::string_view name) { return !HoldsLineEnd(name) && Trim(name) == name; }

bool IsValidKey(std::string_view key) {
    return !key.empty() && !HoldsLineEnd(key) && Trim(key) == key &&
           key.find('=') == std::string_view::npos && key.front() != ';' && key.front() != '#' &&
           key.front() != '[';
}

// Reports a problem with a file once per state of the file (its content and
// the problem), since the libraries read their files at every call. Only the
// last reported state of each path is kept: remembering every state would
// grow without end in a process whose files keep changing.
void ReportOnce(const std::string& path, const std::string& content, const std::string& text) {
    static std::mutex mutex;
    static std::map<std::string, std::string> lastReported;  // path -> state
    std::string state = text + '\n' + std::to_string(std::hash<std::string>{}(content));
    {
        const std::lock_guard<std::mutex> guard(mutex);
        std::string& last = lastReported[path];
        if (last == state) return;
        last = std::move(state);
    }
    platform::ReportUnreadableFile(path, text);
}

struct FileText {
    bool readable = true;  // false when the file exists but cannot be read
    int errorNumber = 0;
    std::string text;
};

FileText ReadFileText(const std::string& path) {
    FileText result;
    result.errorNumber = platform::ReadWholeFile(path, &result.text);
    result.readable = result.errorNumber == 0 || result.errorNumber == ENOENT;
    return result;
}

std::optional<int64_t> ParseHex(std::string_view digits) {
    if (digits.empty() || digits.size() > 8) return std::nullopt;
    int64_t value = 0;
    for (const char c : digits) {
        int digit = 0;
        if (c >= '0' && c <= '9') {
            digit = c - '0';
        } else if (c >= 'a' && c <= 'f') {
            digit = c - 'a' + 10;
        } else if (c >= 'A' && c <= 'F') {
            digit = c - 'A' + 10;
        } else {
            return std::nullopt;
        }
        value = value * 16 + digit;
    }
    return value;
}

std::optional<int64_t> ParseDecimal(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
    if (text.empty() || text.size() > 10) return std::nullopt;
    int64_t value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return negative ? -value : value;
}

std::optional<int32_t> ParseInt32(std::string_view text) {
    const bool hex = text.size() > 1 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    const std::optional<int64_t> value = hex ? ParseHex(text.substr(2)) : ParseDecimal(text);
    if (!value || *value < INT32_MIN || *value > int64_t{UINT32_MAX}) return std::nullopt;
    return static_cast<int32_t>(static_cast<uint32_t>(*value));
}

std::string EntryText(std::string_view key, std::string_view value) {
    std::string text(key);
    text += '=';
    text += value;
    return text;
}

}  // namespace

ProfileFile::ProfileFile() { MakeEmpty(); }

void ProfileFile::MakeEmpty() {
    m_sections.clear();
    m_sections.push_back(Section{});
}

ProfileFile ProfileFile::Load(const std::string& path) {
    ProfileFile profile;
    const FileText file = ReadFileText(path);
    if (!file.readable) {
        profile.m_intact = false;
        ReportOnce(path, {},
                   "cannot read " + path + ": " + std::strerror(file.errorNumber) +
                       "; it is taken as empty and left unchanged");
        return profile;
    }
    if (const std::optional<std::size_t> badLine = profile.Parse(file.text)) {
        profile.MakeEmpty();
        profile.m_intact = false;
        ReportOnce(path, file.text,
                   path + ":" + std::to_string(*badLine) +
                       ": not a section, key or comment; the file is taken as empty and left "
                       "unchanged");
        return profile;
    }
    platform::NoteReadableFile(path);
    return profile;
}

std::optional<std::size_t> ProfileFile::Parse(const std::string& text) {
    Section* current = &m_sections.front();
    std::size_t number = 0;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        const std::string_view raw(text.data() + start, end - start);
        start = end + 1;
        ++number;
        const std::string_view line = Trim(raw);
        if (line.empty() || line.front() == ';' || line.front() == '#') {
            current->lines.push_back(Line{std::string(raw), false, {}, {}});
        } else if (line.front() == '[') {
            if (line.size() < 2 || line.back() != ']') return number;
            const std::string_view inner = Trim(line.substr(1, line.size() - 2));
            if (inner.empty()) return number;
            current = FindSection(inner);
            if (!current) {
                m_sections.push_back(Section{std::string(inner), std::string(raw), {}});
                current = &m_sections.back();
            }
        } else {
            const std::size_t equals = line.find('=');
            if (equals == std::string_view::npos) return number;
            const std::string_view key = Trim(line.substr(0, equals));
            if (key.empty()) return number;
            current->lines.push_back(Line{std::string(raw), true, std::string(key),
                                          std::string(Trim(line.substr(equals + 1)))});
        }
    }
    return std::nullopt;
}

const ProfileFile::Section* ProfileFile::FindSection(std::string_view name) const {
    for (const Section& section : m_sections) {
        if (SameName(section.name, name)) return &section;
    }
    return nullptr;
}

ProfileFile::Section* ProfileFile::FindSection(std::string_view name) {
    return const_cast<Section*>(std::as_const(*this).FindSection(name));
}

ProfileFile::Section& ProfileFile::SectionForWriting(std::string_view name) {
    if (Section* existing = FindSection(name)) return *existing;
    // Keep a blank line between the sections of the file.
    Section& last = m_sections.back();
    const bool fileEmpty = m_sections.size() == 1 && last.lines.empty();
    if (!fileEmpty && (last.lines.empty() || !Trim(last.lines.back().text).empty())) {
        last.lines.push_back(Line{});
    }
    m_sections.push_back(Section{std::string(name), "[" + std::string(name) + "]", {}});
    return m_sections.back();
}

std::optional<std::string> ProfileFile::Get(std::string_view section, std::string_view key) const {
    const Section* found = FindSection(section);
    if (!found) return std::nullopt;
    for (const Line& line : found->lines) {
        if (line.isEntry && SameName(line.key, key)) return line.value;
    }
    return std::nullopt;
}

std::optional<int32_t> ProfileFile::GetInt(std::string_view section, std::string_view key) const {
    const std::optional<std::string> value = Get(section, key);
    if (!value) return std::nullopt;
    return ParseInt32(*value);
}

bool ProfileFile::Set(std::string_view section, std::string_view key, std::string_view value) {
    if (!m_intact || !IsValidSectionName(section) || !IsValidKey(key) || HoldsLineEnd(value)) {
        return false;
    }
    const std::string_view trimmed = Trim(value);
    Section& target = SectionForWriting(section);
    for (Line& line : target.lines) {
        if (line.isEntry && SameName(line.key, key)) {
            if (line.value != trimmed) {
                line.text = EntryText(line.key, trimmed);
                line.value = std::string(trimmed);
            }
            return true;
        }
    }
    // After the last key; in a section without keys, after its last comment.
    std::size_t position = 0;
    for (std::size_t i = 0; i < target.lines.size(); ++i) {
        if (target.lines[i].isEntry || !Trim(target.lines[i].text).empty()) position = i + 1;
    }
    const auto at = target.lines.begin() + static_cast<std::ptrdiff_t>(position);
    target.lines.insert(
        at, Line{EntryText(key, trimmed), true, std::string(key), std::string(trimmed)});
    return true;
}

bool ProfileFile::Remove(std::string_view section, std::string_view key) {
    Section* found = m_intact ? FindSection(section) : nullptr;
    if (!found) return false;
    const auto removed =
        std::remove_if(found->lines.begin(), found->lines.end(),
                       [&](const Line& line) { return line.isEntry && SameName(line.key, key); });
    const bool any = removed != found->lines.end();
    found->lines.erase(removed, found->lines.end());
    return any;
}

std::vector<std::string> ProfileFile::Sections() const {
    std::vector<std::string> names;
    for (std::size_t i = 1; i < m_sections.size(); ++i) names.push_back(m_sections[i].name);
    return names;
}

std::vector<std::string> ProfileFile::Keys(std::string_view section) const {
    std::vector<std::string> keys;
    const Section* found = FindSection(section);
    if (!found) return keys;
    for (const Line& line : found->lines) {
        if (!line.isEntry) continue;
        const bool known = std::any_of(keys.begin(), keys.end(), [&](const std::string& key) {
            return SameName(key, line.key);
        });
        if (!known) keys.push_back(line.key);
    }
    return keys;
}

std::string ProfileFile::Text() const {
    std::string text;
    for (const Section& section : m_sections) {
        if (!section.header.empty()) text += section.header + '\n';
        for (const Line& line : section.lines) text += line.text + '\n';
    }
    return text;
}

bool ProfileFile::Update(const std::string& path, const std::function<bool(ProfileFile&)>& change) {
    const platform::FileLock lock(path + ".lock");
    if (!lock.IsLocked()) {
        platform::ReportProblem("cannot lock " + path +
                                ".lock: " + std::strerror(lock.ErrorNumber()));
        return false;
    }
    ProfileFile profile = Load(path);
    if (!profile.m_intact) return false;
    const std::string before = profile.Text();
    if (!change(profile)) return false;
    const std::string after = profile.Text();
    if (after == before) return true;
    int errorNumber = 0;
    if (!platform::WriteFileAtomically(path, after, &errorNumber)) {
        platform::ReportProblem("cannot write " + path + ": " + std::strerror(errorNumber));
        return false;
    }
    return true;
}

}  // namespace sibling
