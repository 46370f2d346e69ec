#include "StoreWriter.h"

#include <charconv>

#include "KeyNames.h"
#include "Q9CfgE.h"
#include "StoreParser.h"
#include "TextEscape.h"

namespace cfge {
namespace {

constexpr char kHexDigits[] = "0123456789abcdef";

void AppendDecimal(uint32_t number, std::string* out) {
    char digits[10];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out->append(digits, end);
}

void AppendHex8(uint32_t number, std::string* out) {
    char digits[8];
    for (int i = 7; i >= 0; --i, number >>= 4) digits[i] = kHexDigits[number & 0xf];
    out->append(digits, sizeof digits);
}

// Sections without a name: schedule entries and other large numbers in hex,
// the rest in decimal.
void AppendSectionName(uint32_t section, std::string* out) {
    const std::string_view name = KeyNames::SectionName(section);
    if (!name.empty()) {
        out->append(name);
    } else if (section >= Q9CFGE_SCHEDULE_FIRST) {
        out->append("0x");
        AppendHex8(section, out);
    } else {
        AppendDecimal(section, out);
    }
}

void AppendKeyName(uint32_t key, std::string* out) {
    const std::string_view name = KeyNames::KeyName(key);
    if (name.empty()) {
        AppendDecimal(key, out);
    } else {
        out->append(name);
    }
}

void AppendValue(const StoreValue& value, std::string* out) {
    switch (value.type) {
        case ValueType::Dword:
            out->append("dword:");
            AppendHex8(value.word, out);
            break;
        case ValueType::Text: TextEscape::AppendQuoted(value.text, out); break;
        case ValueType::Sealed:
            out->append("enc:");
            out->append(value.text);
            break;
    }
}

void FormatSection(uint32_t number, const StoreSection& section, std::string* out) {
    out->append("\n[");
    AppendSectionName(number, out);
    out->append("]\n");
    for (const auto& [key, value] : section.values) {
        AppendKeyName(key, out);
        out->push_back('=');
        AppendValue(value, out);
        out->push_back('\n');
    }
    for (const StoreRecord& record : section.records) {
        out->append("record=");
        AppendDecimal(record.kind, out);
        out->push_back(',');
        AppendDecimal(record.flag, out);
        out->push_back(',');
        TextEscape::AppendQuoted(record.text, out);
        out->push_back('\n');
    }
}

const std::string& WrittenSection(uint32_t number, const StoreSection& section) {
    if (section.written.empty()) FormatSection(number, section, &section.written);
    return section.written;
}

}  // namespace

std::string StoreWriter::Write(const StoreData& data) {
    size_t size = StoreParser::kHeader.size() + 1;
    for (const auto& [number, section] : data.AllSections()) {
        size += WrittenSection(number, *section).size();
    }
    std::string out;
    out.reserve(size);
    out.append(StoreParser::kHeader);
    out.push_back('\n');
    for (const auto& [number, section] : data.AllSections()) out.append(section->written);
    return out;
}

}  // namespace cfge
