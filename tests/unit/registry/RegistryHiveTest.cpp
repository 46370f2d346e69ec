#include <gtest/gtest.h>

#include <sstream>

#include "RegistryTestValues.h"
#include "platform/RegistryHive.h"

namespace {

using platform::RegistryHive;
using registry_test::AllByteValues;
using registry_test::DwordData;
using registry_test::StringData;

constexpr const char* kRoot = "HKEY_LOCAL_MACHINE";
using registry_test::kHiveHeader;

RegistryHive::Key& Create(RegistryHive& hive, const std::string& path) {
    bool created = false;
    return hive.CreateKey(RegistryHive::SplitPath(path), &created);
}

const RegistryHive::Value* Find(const RegistryHive& hive, const std::string& path,
                                const std::string& name) {
    const RegistryHive::Key* key = hive.FindKey(RegistryHive::SplitPath(path));
    return key ? key->FindValue(name) : nullptr;
}

RegistryHive Parsed(const std::string& text) {
    RegistryHive hive(kRoot);
    RegistryHive::ParseError error;
    EXPECT_TRUE(hive.Parse(text, &error)) << "line " << error.line << ": " << error.message;
    return hive;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

TEST(RegistryHiveFormat, WritesTheExpectedText) {
    RegistryHive hive(kRoot);
    RegistryHive::Key& key = Create(hive, "Software\\Orvtek\\Q9CfgUL");
    key.SetValue("Debug", platform::kRegDword, DwordData(1));
    key.SetValue("Name", platform::kRegSz, StringData("a \"quoted\" text with a \\ backslash"));
    key.SetValue("", platform::kRegSz, StringData("the key's default value"));
    key.SetValue("Blob", platform::kRegBinary, std::string("\x00\x01\x02\xff", 4));
    key.SetValue("Lines", platform::kRegSz, StringData("a\nb"));
    key.SetValue("Multi", 7, std::string("a\0b\0\0", 5));
    key.SetValue("Short", platform::kRegDword, "\x01\x02");
    key.SetValue("None", platform::kRegNone, "");
    key.SetValue("Empty", platform::kRegSz, StringData(""));
    key.SetValue("Max", platform::kRegDword, DwordData(0xFFFFFFFF));
    Create(hive, "Software\\Orvtek\\Empty");
    Create(hive, "SOFTWARE\\alpha");

    EXPECT_EQ(hive.ToText(), kHiveHeader +
                                 "[HKEY_LOCAL_MACHINE\\Software]\n"
                                 "\n"
                                 "[HKEY_LOCAL_MACHINE\\Software\\alpha]\n"
                                 "\n"
                                 "[HKEY_LOCAL_MACHINE\\Software\\Orvtek]\n"
                                 "\n"
                                 "[HKEY_LOCAL_MACHINE\\Software\\Orvtek\\Empty]\n"
                                 "\n"
                                 "[HKEY_LOCAL_MACHINE\\Software\\Orvtek\\Q9CfgUL]\n"
                                 "\"Debug\"=dword:00000001\n"
                                 "\"Name\"=\"a \\\"quoted\\\" text with a \\\\ backslash\"\n"
                                 "@=\"the key's default value\"\n"
                                 "\"Blob\"=hex:00,01,02,ff\n"
                                 "\"Lines\"=hex(1):61,0a,62,00\n"
                                 "\"Multi\"=hex(7):61,00,62,00,00\n"
                                 "\"Short\"=hex(4):01,02\n"
                                 "\"None\"=hex(0):\n"
                                 "\"Empty\"=\"\"\n"
                                 "\"Max\"=dword:ffffffff\n"
                                 "\n");
}

TEST(RegistryHiveFormat, EmptyHiveIsTheHeaderOnly) {
    EXPECT_EQ(RegistryHive(kRoot).ToText(), kHiveHeader);
}

TEST(RegistryHiveFormat, RootSectionOnlyWhenTheRootHasValues) {
    RegistryHive hive(kRoot);
    hive.Root().SetValue("AtRoot", platform::kRegDword, DwordData(2));
    Create(hive, "Child");
    EXPECT_EQ(hive.ToText(), kHiveHeader +
                                 "[HKEY_LOCAL_MACHINE]\n"
                                 "\"AtRoot\"=dword:00000002\n"
                                 "\n"
                                 "[HKEY_LOCAL_MACHINE\\Child]\n"
                                 "\n");
}

TEST(RegistryHiveFormat, StringsThatCannotBeQuotedAreWrittenAsHex) {
    RegistryHive hive(kRoot);
    RegistryHive::Key& key = Create(hive, "K");
    key.SetValue("CarriageReturn", platform::kRegSz, StringData("a\rb"));
    key.SetValue("InnerZero", platform::kRegSz, std::string("a\0b\0", 4));
    key.SetValue("NoTerminator", platform::kRegSz, "ab");
    key.SetValue("TwoTerminators", platform::kRegSz, std::string("ab\0\0", 4));
    key.SetValue("ZeroBytes", platform::kRegSz, "");
    const std::string text = hive.ToText();
    EXPECT_NE(text.find("\"CarriageReturn\"=hex(1):61,0d,62,00\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\"InnerZero\"=hex(1):61,00,62,00\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\"NoTerminator\"=hex(1):61,62\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\"TwoTerminators\"=hex(1):61,62,00,00\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\"ZeroBytes\"=hex(1):\n"), std::string::npos) << text;

    const RegistryHive back = Parsed(text);
    for (const RegistryHive::Value& value : key.values) {
        const RegistryHive::Value* read = Find(back, "K", value.name);
        ASSERT_NE(read, nullptr) << value.name;
        EXPECT_EQ(read->type, platform::kRegSz) << value.name;
        EXPECT_EQ(read->data, value.data) << value.name;
    }
}

TEST(RegistryHiveFormat, WrapsLongHexListsAtEightyColumns) {
    RegistryHive hive(kRoot);
    std::string bytes;
    for (int i = 0; i < 30; ++i) bytes.push_back(static_cast<char>(i));
    Create(hive, "K").SetValue("Blob", platform::kRegBinary, bytes);
    EXPECT_EQ(
        hive.ToText(),
        kHiveHeader +
            "[HKEY_LOCAL_MACHINE\\K]\n"
            "\"Blob\"=hex:00,01,02,03,04,05,06,07,08,09,0a,0b,0c,0d,0e,0f,10,11,12,13,14,15,\\\n"
            "  16,17,18,19,1a,1b,1c,1d\n"
            "\n");
}

TEST(RegistryHiveFormat, LongListsKeepEveryLineShortAndReadBack) {
    RegistryHive hive(kRoot);
    std::string bytes;
    for (int round = 0; round < 8; ++round) bytes += AllByteValues();
    Create(hive, "K").SetValue("Blob", platform::kRegBinary, bytes);
    Create(hive, "K").SetValue("Multi", 7, bytes);
    const std::string text = hive.ToText();
    const std::vector<std::string> lines = LinesOf(text);
    size_t continued = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
        EXPECT_LE(lines[i].size(), 80u) << "line " << i + 1;
        if (!lines[i].empty() && lines[i].back() == '\\') {
            ++continued;
            EXPECT_EQ(lines[i].substr(lines[i].size() - 2), ",\\");
            ASSERT_LT(i + 1, lines.size());
            EXPECT_EQ(lines[i + 1].substr(0, 2), "  ");
        }
    }
    EXPECT_GT(continued, 100u);
    const RegistryHive back = Parsed(text);
    EXPECT_EQ(Find(back, "K", "Blob")->data, bytes);
    EXPECT_EQ(Find(back, "K", "Multi")->data, bytes);
    EXPECT_EQ(Find(back, "K", "Multi")->type, 7u);
}

TEST(RegistryHiveFormat, SortsSubkeysIgnoringCaseWithLettersFoldedUp) {
    RegistryHive hive(kRoot);
    for (const char* name : {"b", "_x", "C", "A", "a1", "Z"}) Create(hive, name);
    std::vector<std::string> names;
    for (const RegistryHive::Key& key : hive.Root().subkeys) names.push_back(key.name);
    // '_' sorts after the letters because they compare as upper case.
    EXPECT_EQ(names, (std::vector<std::string>{"A", "a1", "b", "C", "Z", "_x"}));
}

TEST(RegistryHiveFormat, WritesParentsBeforeChildrenWhateverTheFileOrder) {
    const RegistryHive hive = Parsed(kHiveHeader +
                                     "[HKEY_LOCAL_MACHINE\\A\\B\\C]\n"
                                     "\"x\"=dword:00000001\n"
                                     "\n"
                                     "[HKEY_LOCAL_MACHINE\\A]\n");
    EXPECT_EQ(hive.ToText(), kHiveHeader +
                                 "[HKEY_LOCAL_MACHINE\\A]\n\n"
                                 "[HKEY_LOCAL_MACHINE\\A\\B]\n\n"
                                 "[HKEY_LOCAL_MACHINE\\A\\B\\C]\n"
                                 "\"x\"=dword:00000001\n\n");
}

TEST(RegistryHiveParse, ReadsAHandWrittenFile) {
    const std::string text =
        "\xEF\xBB\xBFWindows Registry Editor Version 5.00\r\n"
        "\r\n"
        "[HKEY_LOCAL_MACHINE\\Software\\Orvtek\\Q9CfgUL]\r\n"
        "\"Debug\"=dword:00000001\r\n"
        "\"Name\"=\"a \\\"quoted\\\" text with a \\\\ backslash\"\r\n"
        "@=\"the key's default value\"\r\n"
        "\"Blob\"=hex:00,01,02,ff\r\n"
        "\"Wrapped\"=hex:00,01,02,03,04,05,06,07,08,09,0a,0b,0c,0d,0e,0f,10,11,12,13,14,15,\\\r\n"
        "  16,17,\\\r\n"
        "  18,19\r\n"
        "\"Multi\"=hex(7):61,00,62,00,00,00\r\n"
        "\"AsDword\"=hex(4):2a,00,00,00\r\n"
        "\"AsString\"=hex(1):68,69,00\r\n"
        "\"AsBinary\"=hex(3):0A,0b\r\n"
        "\"Qword\"=hex(b):01,00,00,00,00,00,00,00\r\n"
        "\"ShortDword\"=dword:ABCD\r\n"
        "\"Text\"=\"caf\xC3\xA9 [x]=@\"\r\n"
        "\r\n"
        "[HKEY_LOCAL_MACHINE\\Software\\Orvtek\\Q9CfgUL\\Sub Key/with slash]\r\n"
        "\r\n";
    const RegistryHive hive = Parsed(text);
    const std::string path = "Software\\Orvtek\\Q9CfgUL";
    const auto expect = [&](const char* name, uint32_t type, const std::string& data) {
        const RegistryHive::Value* value = Find(hive, path, name);
        ASSERT_NE(value, nullptr) << name;
        EXPECT_EQ(value->type, type) << name;
        EXPECT_EQ(value->data, data) << name;
    };
    expect("Debug", platform::kRegDword, DwordData(1));
    expect("Name", platform::kRegSz, StringData("a \"quoted\" text with a \\ backslash"));
    expect("", platform::kRegSz, StringData("the key's default value"));
    expect("Blob", platform::kRegBinary, std::string("\x00\x01\x02\xff", 4));
    std::string wrapped;
    for (int i = 0; i < 26; ++i) wrapped.push_back(static_cast<char>(i));
    expect("Wrapped", platform::kRegBinary, wrapped);
    expect("Multi", 7, std::string("a\0b\0\0\0", 6));
    expect("AsDword", platform::kRegDword, DwordData(42));
    expect("AsString", platform::kRegSz, StringData("hi"));
    expect("AsBinary", platform::kRegBinary, "\x0a\x0b");
    expect("Qword", 11, std::string("\x01\0\0\0\0\0\0\0", 8));
    expect("ShortDword", platform::kRegDword, DwordData(0xABCD));
    expect("Text", platform::kRegSz, StringData("caf\xC3\xA9 [x]=@"));
    EXPECT_NE(hive.FindKey(RegistryHive::SplitPath(path + "\\sub key/WITH slash")), nullptr);

    std::vector<std::string> order;
    for (const auto& value : hive.FindKey(RegistryHive::SplitPath(path))->values) {
        order.push_back(value.name);
    }
    EXPECT_EQ(order,
              (std::vector<std::string>{"Debug", "Name", "", "Blob", "Wrapped", "Multi", "AsDword",
                                        "AsString", "AsBinary", "Qword", "ShortDword", "Text"}));
}

TEST(RegistryHiveParse, RewritesAHandWrittenFileCanonically) {
    const RegistryHive hive = Parsed(
        "Windows Registry Editor Version 5.00\r\n"
        "[hkey_local_machine\\\\Software\\]  \r\n"
        "  \"A\" = hex(4):2a,00,00,00\r\n"
        "\"B\"=hex(3):01\r\n"
        "\"C\"=hex(1):68,69,00\r\n");
    EXPECT_EQ(hive.ToText(), kHiveHeader +
                                 "[HKEY_LOCAL_MACHINE\\Software]\n"
                                 "\"A\"=dword:0000002a\n"
                                 "\"B\"=hex:01\n"
                                 "\"C\"=\"hi\"\n"
                                 "\n");
}

TEST(RegistryHiveParse, DuplicateValueNamesKeepFirstPlaceAndLastData) {
    const RegistryHive hive = Parsed(kHiveHeader +
                                     "[HKEY_LOCAL_MACHINE\\K]\n"
                                     "\"x\"=dword:00000001\n"
                                     "\"y\"=dword:00000002\n"
                                     "\"X\"=dword:00000003\n");
    const RegistryHive::Key* key = hive.FindKey({"K"});
    ASSERT_EQ(key->values.size(), 2u);
    EXPECT_EQ(key->values[0].name, "x");
    EXPECT_EQ(key->values[0].data, DwordData(3));
}

TEST(RegistryHiveParse, RepeatedSectionsAddToTheSameKey) {
    const RegistryHive hive = Parsed(kHiveHeader +
                                     "[HKEY_LOCAL_MACHINE\\K]\n\"a\"=dword:00000001\n\n"
                                     "[HKEY_LOCAL_MACHINE\\k]\n\"b\"=dword:00000002\n");
    ASSERT_EQ(hive.Root().subkeys.size(), 1u);
    EXPECT_EQ(hive.Root().subkeys[0].values.size(), 2u);
}

TEST(RegistryHiveParse, FailureLeavesTheHiveEmpty) {
    RegistryHive hive = Parsed(kHiveHeader + "[HKEY_LOCAL_MACHINE\\K]\n");
    ASSERT_FALSE(hive.Root().subkeys.empty());
    RegistryHive::ParseError error;
    EXPECT_FALSE(hive.Parse("garbage", &error));
    EXPECT_TRUE(hive.Root().subkeys.empty());
}

struct BadText {
    const char* name;
    const char* text;
    int line;
};

void PrintTo(const BadText& bad, std::ostream* out) { *out << bad.name; }

class RegistryHiveParseError : public ::testing::TestWithParam<BadText> {};

TEST_P(RegistryHiveParseError, IsRejectedWithItsLine) {
    RegistryHive hive(kRoot);
    RegistryHive::ParseError error;
    EXPECT_FALSE(hive.Parse(GetParam().text, &error));
    EXPECT_EQ(error.line, GetParam().line) << error.message;
    EXPECT_FALSE(error.message.empty());
}

#define HEADER "Windows Registry Editor Version 5.00\n\n"
#define SECTION HEADER "[HKEY_LOCAL_MACHINE\\K]\n"

INSTANTIATE_TEST_SUITE_P(
    RegistryHiveParseErrors, RegistryHiveParseError,
    ::testing::Values(
        BadText{"Empty", "", 1},
        BadText{"OtherHeader", "Registry Version 4\n\n[HKEY_LOCAL_MACHINE\\K]\n", 1},
        BadText{"HeaderWithTrailingBlank", "Windows Registry Editor Version 5.00 \n", 1},
        BadText{"ValueOutsideSection", HEADER "\"x\"=dword:00000001\n", 3},
        BadText{"OtherRoot", HEADER "[HKEY_CURRENT_USER\\K]\n", 3},
        BadText{"UnclosedSection", HEADER "[HKEY_LOCAL_MACHINE\\K\n", 3},
        BadText{"KeyDeletion", HEADER "[-HKEY_LOCAL_MACHINE\\K]\n", 3},
        BadText{"EmptySection", HEADER "[]\n", 3}, BadText{"ValueDeletion", SECTION "\"x\"=-\n", 4},
        BadText{"BadEscape", SECTION "\"x\"=\"bad \\n escape\"\n", 4},
        BadText{"UnterminatedData", SECTION "\"x\"=\"open\n", 4},
        BadText{"UnterminatedName", SECTION "\"open=1\n", 4},
        BadText{"TextAfterString", SECTION "\"x\"=\"a\" b\n", 4},
        BadText{"BadHexDigit", SECTION "\"x\"=hex:00,zz\n", 4},
        BadText{"ThreeHexDigits", SECTION "\"x\"=hex:000\n", 4},
        BadText{"TrailingComma", SECTION "\"x\"=hex:00,\n", 4},
        BadText{"MissingComma", SECTION "\"x\"=hex:00 01\n", 4},
        BadText{"BadTypeNumber", SECTION "\"x\"=hex(zz):00\n", 4},
        BadText{"UnclosedType", SECTION "\"x\"=hex(1:00\n", 4},
        BadText{"EndInsideHexList", SECTION "\"x\"=hex:00,\\\n", 4},
        BadText{"BadContinuationLine", SECTION "\n\"x\"=hex:00,\\\n  zz\n", 5},
        BadText{"LongDword", SECTION "\"x\"=dword:123456789\n", 4},
        BadText{"EmptyDword", SECTION "\"x\"=dword:\n", 4},
        BadText{"BadDwordDigit", SECTION "\"x\"=dword:12g4\n", 4},
        BadText{"NoData", SECTION "\"x\"=\n", 4},
        BadText{"UnquotedData", SECTION "\"x\"=text\n", 4},
        BadText{"NoEquals", SECTION "\"x\" dword:00000001\n", 4},
        BadText{"UnquotedName", SECTION "x=dword:00000001\n", 4},
        BadText{"Comment", SECTION "; a comment\n", 4},
        BadText{"DefaultValueDeletion", SECTION "\"ok\"=dword:00000001\n\n\n@=-\n", 7}),
    [](const ::testing::TestParamInfo<BadText>& testCase) {
        return std::string(testCase.param.name);
    });

#undef SECTION
#undef HEADER

TEST(RegistryHivePath, SplitDropsEmptyParts) {
    EXPECT_EQ(RegistryHive::SplitPath("\\a\\\\b c\\d/e\\"),
              (RegistryHive::KeyPath{"a", "b c", "d/e"}));
    EXPECT_TRUE(RegistryHive::SplitPath("").empty());
    EXPECT_TRUE(RegistryHive::SplitPath("\\\\").empty());
    EXPECT_EQ(RegistryHive::JoinPath({"a", "b"}), "a\\b");
}

TEST(RegistryHivePath, NamesCompareIgnoringAsciiCaseOnly) {
    EXPECT_TRUE(RegistryHive::NamesEqual("Software", "sOFTWARE"));
    EXPECT_FALSE(RegistryHive::NamesEqual("Software", "Softwar"));
    EXPECT_FALSE(RegistryHive::NamesEqual("\xC3\xA9", "\xC3\x89"));
    EXPECT_LT(RegistryHive::CompareNames("abc", "ABD"), 0);
    EXPECT_GT(RegistryHive::CompareNames("_", "z"), 0);
}

TEST(RegistryHiveTree, CreateFindAndRemoveKeys) {
    RegistryHive hive(kRoot);
    bool created = false;
    RegistryHive::KeyPath canonical;
    hive.CreateKey({"Software", "Orvtek"}, &created, &canonical);
    EXPECT_TRUE(created);
    hive.CreateKey({"SOFTWARE", "orvtek"}, &created, &canonical);
    EXPECT_FALSE(created);
    EXPECT_EQ(canonical, (RegistryHive::KeyPath{"Software", "Orvtek"}));
    ASSERT_NE(hive.FindKey({"software", "ORVTEK"}, &canonical), nullptr);
    EXPECT_EQ(canonical, (RegistryHive::KeyPath{"Software", "Orvtek"}));
    EXPECT_FALSE(hive.RemoveKey({}));
    EXPECT_FALSE(hive.RemoveKey({"Missing"}));
    EXPECT_TRUE(hive.RemoveKey({"software"}));
    EXPECT_EQ(hive.FindKey({"Software"}), nullptr);
}

TEST(RegistryHiveTree, OverwrittenValueKeepsItsPlaceAndCase) {
    RegistryHive hive(kRoot);
    RegistryHive::Key& key = Create(hive, "K");
    key.SetValue("c", platform::kRegDword, DwordData(1));
    key.SetValue("Alpha", platform::kRegDword, DwordData(2));
    key.SetValue("b", platform::kRegDword, DwordData(3));
    key.SetValue("ALPHA", platform::kRegSz, StringData("x"));
    ASSERT_EQ(key.values.size(), 3u);
    EXPECT_EQ(key.values[1].name, "Alpha");
    EXPECT_EQ(key.values[1].type, platform::kRegSz);
    EXPECT_TRUE(key.DeleteValue("alpha"));
    EXPECT_FALSE(key.DeleteValue("alpha"));
    EXPECT_EQ(key.values.size(), 2u);
}

}  // namespace
