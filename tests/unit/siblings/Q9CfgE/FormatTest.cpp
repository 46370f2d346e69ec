// The text format: what hand-written files may hold, how the store writes
// files, and what happens to a file it cannot parse.
#include <cctype>
#include <cstring>

#include "StoreTest.h"
#include "support/DamagedContent.h"

namespace store_test {
namespace {

class FormatTest : public StoreTest {};

TEST_F(FormatTest, HandWrittenFileWithNamesNumbersAndEscapesIsRead) {
    WriteFile(LiveFile(),
              "\xEF\xBB\xBFQ9 Configuration Store 1\r\n"
              "; a comment\r\n"
              "  # another comment\r\n"
              "\r\n"
              "[ ces_general ]\r\n"
              "cek_generaloptions = dword:3\r\n"
              "CEK_AlertSound=\"a\\\\b \\\"c\\\" \\x41\\n\\t\"  \r\n"
              "2=dword:FFFFFFFF\r\n"
              "0x3=dword:00000010\r\n"
              "[4]\r\n"
              "CEK_ScanOptions=dword:0000abcd\r\n"
              "[0x10000003]\r\n"
              "CEK_SchedCurDir=\"/opt/q9/\"\r\n"
              "[CES_Exclude]\r\n"
              "record=0,1,\"/home/user/private\"\r\n"
              "CEK_ExcludeEnable=dword:1\r\n"
              "record = 0x2 , 255 , \"/big.iso\"\r\n");
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 3u);
    EXPECT_STREQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), "a\\b \"c\" A\n\t");
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 0xFFFFFFFFu);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kEventLogCount), 0x10u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemScan, kScanOptions), 0xabcdu);
    EXPECT_STREQ(Q9CfgE_GetStrEx(kSchedule3, kSchedCurDir), "/opt/q9/");
    EXPECT_EQ(Q9CfgE_GetDWEx(kExclude, kExcludeEnable), 1u);
    const auto* list = static_cast<const unsigned char*>(Q9CfgE_GetObjectList(kExclude, 0));
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list[0], 4 + std::strlen("/home/user/private") + 1);
    EXPECT_STREQ(reinterpret_cast<const char*>(list + 4), "/home/user/private");
    const unsigned char* second = list + list[0];
    EXPECT_EQ(second[2], 2);
    EXPECT_EQ(second[3], 255);
    EXPECT_STREQ(reinterpret_cast<const char*>(second + 4), "/big.iso");
}

TEST_F(FormatTest, WriterOrdersSectionsAndKeysAndUsesNamesWhereKnown) {
    Q9CfgE_SetDWEx(kSchedule3, kSchedOn, 1);
    Q9CfgE_SetStrEx(kSchedule3, kSchedCurDir, "/opt/q9/");
    const unsigned char record[] = {6, 0, 0, 1, 'x', 0};
    Q9CfgE_SetObjectList(kExclude, 0, record);
    Q9CfgE_SetDWEx(kExclude, kExcludeEnable, 1);
    Q9CfgE_SetDWEx(13, 99, 0xABCDEF);
    Q9CfgE_SetStrEx(kGeneral, kAlertSound, "a.wav");
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 3);
    Q9CfgE_SetDWEx(Q9CFGE_SCHEDULE_DEFAULT, kScanOptions, 2);
    EXPECT_EQ(ReadFile(LiveFile()), std::string(kHeader) +
                                        "\n[CES_General]\n"
                                        "CEK_GeneralOptions=dword:00000003\n"
                                        "CEK_AlertSound=\"a.wav\"\n"
                                        "\n[CES_Exclude]\n"
                                        "CEK_ExcludeEnable=dword:00000001\n"
                                        "record=0,1,\"x\"\n"
                                        "\n[13]\n"
                                        "99=dword:00abcdef\n"
                                        "\n[0x10000003]\n"
                                        "CEK_SchedOn=dword:00000001\n"
                                        "CEK_SchedCurDir=\"/opt/q9/\"\n"
                                        "\n[CES_ScheduleDefault]\n"
                                        "CEK_ScanOptions=dword:00000002\n");
}

TEST_F(FormatTest, WrittenFileReadsBackTheSame) {
    WriteFile(LiveFile(), std::string(kHeader) +
                              "[CES_Pop3]\nCEK_WarnMailServer=\"smtp \\x01\"\n"
                              "[CES_ScreenSaver]\nrecord=3,1,\"/tmp\"\n");
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 3);  // makes the store write the file
    const std::string written = ReadFile(LiveFile());
    EXPECT_NE(written.find("CEK_WarnMailServer=\"smtp \\x01\"\n"), std::string::npos);
    EXPECT_STREQ(Q9CfgE_GetStrEx(8, 23), "smtp \x01");
    EXPECT_NE(Q9CfgE_GetObjectList(kScreenSaver, 0), nullptr);
}

struct BadFile {
    const char* why;
    const char* body;  // after the first line, unless it replaces it
    size_t line;
    bool wholeFile = false;
};

class UnparseableFileTest : public StoreTest, public testing::WithParamInterface<BadFile> {
protected:
    std::string Content() const {
        const BadFile& bad = GetParam();
        return bad.wholeFile ? std::string(bad.body) : std::string(kHeader) + bad.body;
    }
};

TEST_P(UnparseableFileTest, IsReportedOnceReadsAsEmptyAndIsNeverWritten) {
    WriteFile(DefaultsFile(), std::string(kHeader) + "[CES_General]\nCEK_ScanLogSize=dword:00000009\n");
    const std::string content = Content();
    WriteFile(LiveFile(), content);
    StderrCapture errors;

    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 0u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 9u);  // the default
    EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1), 0);
    EXPECT_EQ(Q9CfgE_SetStrEx(kExclude, Q9CFGE_KEY_OBJECT_LIST, nullptr), 0);
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), 1);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    EXPECT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 0);
    ResetStore();

    EXPECT_EQ(ReadFile(LiveFile()), content);
    const std::string text = errors.Text();
    const std::string where = LiveFile() + " cannot be parsed (line " +
                              std::to_string(GetParam().line) + ":";
    EXPECT_EQ(CountOf(text, where), 1u) << text;
}

const BadFile kBadFiles[] = {
    {"wrong first line", "Q9 Configuration Store 2\n[CES_General]\n", 1, true},
    // The writer always writes the first line: no bytes at all is damage.
    {"empty file", "", 1, true},
    {"unknown section", "[CES_Nothing]\n", 2},
    {"unknown key", "[CES_General]\nCEK_Nothing=dword:1\n", 3},
    {"key number too large", "[CES_General]\n4294967296=dword:1\n", 3},
    {"object list key", "[CES_General]\n0xFFFFFFFF=dword:1\n", 3},
    {"nine hex digits", "[CES_General]\nCEK_GeneralOptions=dword:000000001\n", 3},
    {"no hex digits", "[CES_General]\nCEK_GeneralOptions=dword:\n", 3},
    {"bad hex", "[CES_General]\nCEK_GeneralOptions=dword:12g4\n", 3},
    {"unterminated string", "[CES_General]\nCEK_AlertSound=\"abc\n", 3},
    {"text after string", "[CES_General]\nCEK_AlertSound=\"abc\" x\n", 3},
    {"unknown escape", "[CES_General]\nCEK_AlertSound=\"a\\qb\"\n", 3},
    {"NUL escape", "[CES_General]\nCEK_AlertSound=\"a\\x00b\"\n", 3},
    {"unknown value", "[CES_General]\nCEK_AlertSound=word:1\n", 3},
    {"not base64", "[CES_Authorization]\nCEK_AuthPassword=enc:a b\n", 3},
    {"line outside a section", "CEK_GeneralOptions=dword:1\n", 2},
    {"no equals sign", "[CES_General]\nCEK_GeneralOptions\n", 3},
    {"duplicate key", "[CES_General]\nCEK_GeneralOptions=dword:1\n0=dword:2\n", 4},
    {"duplicate section", "[CES_General]\n[CES_Exclude]\n[0]\n", 4},
    {"unclosed header", "[CES_General\n", 2},
    {"record kind too large", "[CES_Exclude]\nrecord=256,1,\"x\"\n", 3},
    {"record without text", "[CES_Exclude]\nrecord=0,1\n", 3},
};

INSTANTIATE_TEST_SUITE_P(Cases, UnparseableFileTest, testing::ValuesIn(kBadFiles),
                         [](const testing::TestParamInfo<BadFile>& param) {
                             std::string name = param.param.why;
                             for (char& c : name) {
                                 if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                             }
                             return name;
                         });

TEST_F(FormatTest, EveryDamageIsListedAsUnreadableAndRefusesChanges) {
    const std::string valid = std::string(kHeader) + "[CES_General]\nCEK_AlertSound=\"/a.wav\"\n";
    for (const Damage damage : kEveryDamage) {
        SCOPED_TRACE(NameOf(damage));
        const std::string text = Damaged(valid, CutInside(valid, "\"/a.wav"), damage);
        WriteFile(LiveFile(), text);
        EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1), 0);
        EXPECT_TRUE(IsListedUnreadable(LiveFile()));
        EXPECT_TRUE(ReadFile(LiveFile()) == text) << "the file is kept";
    }
    WriteFile(LiveFile(), valid);
    EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1), 1);
    EXPECT_FALSE(IsListedUnreadable(LiveFile()));
}

TEST_F(FormatTest, ChangedCorruptFileIsReportedAgain) {
    WriteFile(LiveFile(), std::string(kHeader) + "[CES_Nothing]\n");
    StderrCapture errors;
    Q9CfgE_GetDWEx(kGeneral, kGeneralOptions);
    Q9CfgE_GetDWEx(kGeneral, kGeneralOptions);
    WriteFile(LiveFile(), std::string(kHeader) + "\n[CES_General]\nCEK_Nothing=dword:1\n");
    Q9CfgE_GetDWEx(kGeneral, kGeneralOptions);
    Q9CfgE_GetDWEx(kGeneral, kGeneralOptions);
    const std::string text = errors.Text();
    EXPECT_EQ(CountOf(text, "cannot be parsed (line 2:"), 1u) << text;
    EXPECT_EQ(CountOf(text, "cannot be parsed (line 4:"), 1u) << text;
}

TEST_F(FormatTest, RepairedFileIsReadAndWrittenAgain) {
    WriteFile(LiveFile(), std::string(kHeader) + "[CES_Nothing]\n");
    {
        StderrCapture errors;
        EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1), 0);
    }
    WriteFile(LiveFile(), std::string(kHeader) + "[CES_General]\nCEK_ScanLogSize=dword:2\n");
    EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 2u);
}

}  // namespace
}  // namespace store_test
