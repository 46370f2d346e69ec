// Files opened apart: the walk of a policy merge and the writing back.
#include <vector>

#include "StoreTest.h"

namespace store_test {
namespace {

class SeparateFileTest : public StoreTest {
protected:
    static Q9CfgEHandle Open(const std::string& path) {
        return Q9CfgE_Create(Q9CFGE_STYLE_FILE, path.c_str(), 0);
    }

    // Copies every value of policy into target, as the silent policy path does.
    static void Merge(Q9CfgEHandle policy, Q9CfgEHandle target) {
        for (uint16_t i = 0;; ++i) {
            const uint32_t section = Q9CfgE_Enum(policy, 0, i);
            if (section == 0) break;
            for (uint16_t j = 0;; ++j) {
                const uint32_t key = Q9CfgE_Enum(policy, section, j);
                if (key == 0) break;
                uint32_t scratch = 0;
                const void* value = Q9CfgE_GetStr(policy, section, key, &scratch);
                EXPECT_EQ(Q9CfgE_SetStr(target, section, key, value), 1);
            }
        }
    }
};

TEST_F(SeparateFileTest, PolicyMergeKeepsTypesAndLeavesTheRestOfTheTarget) {
    Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, "policy-secret");  // sealed here
    const std::string sealedLine = [&] {
        const std::string live = ReadFile(LiveFile());
        const size_t at = live.find("CEK_AuthPassword=");
        return live.substr(at, live.find('\n', at) - at + 1);
    }();
    const std::string target = PathOf("OrvIni.dat");
    WriteFile(target, std::string(kHeader) +
                          "[CES_General]\nCEK_GeneralOptions=dword:1\nCEK_AlertSound=\"keep.wav\"\n"
                          "[CES_Exclude]\nCEK_ExcludeEnable=dword:0\nrecord=0,1,\"/old\"\n"
                          "[CES_Switch]\nCEK_Switch_Scan=dword:1\nCEK_Switch_ScanMask=dword:1\n");
    const std::string policy = PathOf("policy.dat");
    WriteFile(policy, std::string(kHeader) +
                          "; written by an administrator\n"
                          "[CES_General]\nCEK_GeneralOptions=dword:ff\n"
                          "[CES_Authorization]\nCEK_AuthEnabled=dword:1\n" + sealedLine +
                          "[CES_Exclude]\nCEK_ExcludeEnable=dword:1\nrecord=0,1,\"/new1\"\n"
                          "record=1,1,\"/new2\"\n"
                          "[CES_Switch]\nCEK_Switch_Scan=dword:3\n"
                          "[0x10000002]\nCEK_SchedCmdLine=\"scan \\\"all\\\"\"\n");

    Q9CfgEHandle targetFile = Open(target);
    Q9CfgEHandle policyFile = Open(policy);
    ASSERT_NE(targetFile, nullptr);
    ASSERT_NE(policyFile, nullptr);
    Merge(policyFile, targetFile);
    EXPECT_EQ(Q9CfgE_Close(policyFile), 1);
    EXPECT_EQ(Q9CfgE_Close(targetFile), 1);

    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, target.c_str(), Q9CFGE_MODE_PLAIN), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 1u);  // section 0 cannot be merged
    EXPECT_STREQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), "keep.wav");
    EXPECT_EQ(Q9CfgE_GetDWEx(kAuthorization, kAuthEnabled), 1u);
    std::vector<char> password(64);
    uint32_t length = static_cast<uint32_t>(password.size());
    EXPECT_EQ(Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, password.data(), &length), 1);
    EXPECT_STREQ(password.data(), "policy-secret");
    EXPECT_EQ(Q9CfgE_GetDWEx(kExclude, kExcludeEnable), 1u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSwitch, 42), 3u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSwitch, 43), 1u);
    EXPECT_STREQ(Q9CfgE_GetStrEx(Q9CFGE_SCHEDULE_FIRST | 2, kSchedCmdLine), "scan \"all\"");
    const std::string merged = ReadFile(target);
    EXPECT_NE(merged.find("record=0,1,\"/new1\"\nrecord=1,1,\"/new2\"\n"), std::string::npos);
    EXPECT_EQ(merged.find("/old"), std::string::npos);
    EXPECT_EQ(merged.find("policy-secret"), std::string::npos);
    // The policy file is only read.
    EXPECT_NE(ReadFile(policy).find("; written by an administrator"), std::string::npos);
}

TEST_F(SeparateFileTest, EnumListsSectionsAndKeysAscendingWithTheListLast) {
    const std::string path = PathOf("walk.dat");
    WriteFile(path, std::string(kHeader) +
                        "[CES_ScreenSaver]\nrecord=0,1,\"/\"\nCEK_ScanOptions=dword:1\n"
                        "[0]\nCEK_GeneralOptions=dword:1\nCEK_AlertSound=\"x\"\n"
                        "[CES_SystemScan]\n11=dword:1\n10=dword:1\n");
    Q9CfgEHandle file = Open(path);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(Q9CfgE_Enum(file, 0, 0), kSystemScan);
    EXPECT_EQ(Q9CfgE_Enum(file, 0, 1), kScreenSaver);
    EXPECT_EQ(Q9CfgE_Enum(file, 0, 2), 0u);
    EXPECT_EQ(Q9CfgE_Enum(file, kSystemScan, 0), 10u);
    EXPECT_EQ(Q9CfgE_Enum(file, kSystemScan, 1), 11u);
    EXPECT_EQ(Q9CfgE_Enum(file, kSystemScan, 2), 0u);
    EXPECT_EQ(Q9CfgE_Enum(file, kScreenSaver, 0), kScanOptions);
    EXPECT_EQ(Q9CfgE_Enum(file, kScreenSaver, 1), Q9CFGE_KEY_OBJECT_LIST);
    EXPECT_EQ(Q9CfgE_Enum(file, kScreenSaver, 2), 0u);
    EXPECT_EQ(Q9CfgE_Enum(file, 99, 0), 0u);
    EXPECT_EQ(Q9CfgE_Close(file), 1);
}

TEST_F(SeparateFileTest, GetStrTellsTheTypeInTheScratchWord) {
    const std::string path = PathOf("types.dat");
    WriteFile(path, std::string(kHeader) +
                        "[CES_Exclude]\nCEK_ExcludeEnable=dword:1\nCEK_ExcludeText=\"t\"\n"
                        "CEK_AuthPassword=enc:AAAA\nrecord=0,1,\"/\"\n");
    Q9CfgEHandle file = Open(path);
    ASSERT_NE(file, nullptr);
    uint32_t type = 0;
    EXPECT_NE(Q9CfgE_GetStr(file, kExclude, kExcludeEnable, &type), nullptr);
    EXPECT_EQ(type, Q9CFGE_TYPE_DWORD);
    EXPECT_NE(Q9CfgE_GetStr(file, kExclude, 49, &type), nullptr);
    EXPECT_EQ(type, Q9CFGE_TYPE_TEXT);
    EXPECT_NE(Q9CfgE_GetStr(file, kExclude, kAuthPassword, &type), nullptr);
    EXPECT_EQ(type, Q9CFGE_TYPE_SEALED);
    EXPECT_NE(Q9CfgE_GetStr(file, kExclude, Q9CFGE_KEY_OBJECT_LIST, &type), nullptr);
    EXPECT_EQ(type, Q9CFGE_TYPE_OBJECT_LIST);
    EXPECT_EQ(Q9CfgE_GetStr(file, kExclude, 77, &type), nullptr);
    EXPECT_EQ(type, 0u);
    EXPECT_EQ(Q9CfgE_Close(file), 1);
}

TEST_F(SeparateFileTest, MissingFileIsAnEmptyStoreThatCloseCreates) {
    const std::string source = PathOf("source.dat");
    WriteFile(source, std::string(kHeader) + "[CES_Pop3]\nCEK_Pop3Port=dword:6e\n");
    const std::string path = PathOf("new.dat");
    Q9CfgEHandle from = Open(source);
    Q9CfgEHandle file = Open(path);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(Q9CfgE_Enum(file, 0, 0), 0u);
    EXPECT_EQ(Q9CfgE_SetStr(file, 8, 26, Q9CfgE_GetStr(from, 8, 26, nullptr)), 1);
    EXPECT_FALSE(Exists(path));
    EXPECT_EQ(Q9CfgE_Close(file), 1);
    EXPECT_EQ(Q9CfgE_Close(from), 1);
    EXPECT_EQ(ReadFile(path), std::string(kHeader) + "\n[CES_Pop3]\nCEK_Pop3Port=dword:0000006e\n");
}

TEST_F(SeparateFileTest, CloseWithoutChangesWritesNothing) {
    const std::string path = PathOf("same.dat");
    const std::string content = std::string(kHeader) + "; comment\n[CES_Pop3]\nCEK_Pop3Port=dword:6e\n";
    WriteFile(path, content);
    Q9CfgEHandle file = Open(path);
    ASSERT_NE(file, nullptr);
    Q9CfgE_GetStr(file, 8, 26, nullptr);
    EXPECT_EQ(Q9CfgE_Close(file), 1);
    EXPECT_EQ(ReadFile(path), content);
    Q9CfgEHandle missing = Open(PathOf("never.dat"));
    EXPECT_EQ(Q9CfgE_Close(missing), 1);
    EXPECT_FALSE(Exists(PathOf("never.dat")));
}

TEST_F(SeparateFileTest, CloseAppliesChangesOnTopOfWritesMadeMeanwhile) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    const std::string source = PathOf("source.dat");
    WriteFile(source, std::string(kHeader) + "[CES_Pop3]\nCEK_Pop3Port=dword:6e\n");
    Q9CfgEHandle from = Open(source);
    Q9CfgEHandle live = Open(LiveFile());
    ASSERT_NE(live, nullptr);
    Q9CfgE_SetStr(live, 8, 26, Q9CfgE_GetStr(from, 8, 26, nullptr));
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 2);  // meanwhile, through the live store
    EXPECT_EQ(Q9CfgE_Close(live), 1);
    EXPECT_EQ(Q9CfgE_Close(from), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(8, 26), 0x6eu);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 2u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 1u);
}

TEST_F(SeparateFileTest, UnparseableFileIsReportedAndNotWrittenOnClose) {
    const std::string source = PathOf("source.dat");
    WriteFile(source, std::string(kHeader) + "[CES_Pop3]\nCEK_Pop3Port=dword:6e\n");
    const std::string path = PathOf("broken.dat");
    const std::string content = std::string(kHeader) + "[CES_Pop3]\nCEK_Pop3Port=dword:xyz\n";
    WriteFile(path, content);
    StderrCapture errors;
    Q9CfgEHandle from = Open(source);
    Q9CfgEHandle file = Open(path);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(Q9CfgE_Enum(file, 0, 0), 0u);
    EXPECT_EQ(Q9CfgE_SetStr(file, 8, 26, Q9CfgE_GetStr(from, 8, 26, nullptr)), 1);
    EXPECT_EQ(Q9CfgE_Close(file), 0);
    Q9CfgE_Close(from);
    EXPECT_EQ(ReadFile(path), content);
    EXPECT_NE(errors.Text().find(path + " cannot be parsed (line 3:"), std::string::npos);
    EXPECT_NE(errors.Text().find("are not written"), std::string::npos);
}

TEST_F(SeparateFileTest, BadArgumentsAnswerZeroOrNull) {
    EXPECT_EQ(Q9CfgE_Create(Q9CFGE_STYLE_EDIT, PathOf("x.dat").c_str(), 0), nullptr);
    EXPECT_EQ(Q9CfgE_Create(Q9CFGE_STYLE_FILE, nullptr, 0), nullptr);
    EXPECT_EQ(Q9CfgE_Create(Q9CFGE_STYLE_FILE, "", 0), nullptr);
    EXPECT_EQ(Q9CfgE_Create(Q9CFGE_STYLE_FILE, Directory().c_str(), 0), nullptr);  // unreadable
    EXPECT_EQ(Q9CfgE_Close(nullptr), 0);
    EXPECT_EQ(Q9CfgE_Enum(nullptr, 0, 0), 0u);
    uint32_t scratch = 5;
    EXPECT_EQ(Q9CfgE_GetStr(nullptr, 1, 1, &scratch), nullptr);
    EXPECT_EQ(scratch, 0u);
    Q9CfgEHandle file = Open(PathOf("x.dat"));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(Q9CfgE_SetStr(nullptr, 1, 1, nullptr), 0);
    EXPECT_EQ(Q9CfgE_SetStr(file, 1, 1, nullptr), 0);
    const uint32_t stray[16] = {};
    EXPECT_EQ(Q9CfgE_SetStr(file, 1, 1, stray), 0);
    EXPECT_EQ(Q9CfgE_Close(file), 1);
    EXPECT_FALSE(Exists(PathOf("x.dat")));
}

TEST_F(SeparateFileTest, ListGoesOnlyToTheListKeyAndValuesOnlyToOthers) {
    const std::string source = PathOf("source.dat");
    WriteFile(source, std::string(kHeader) + "[CES_Exclude]\nCEK_ExcludeEnable=dword:1\nrecord=0,1,\"/\"\n");
    Q9CfgEHandle from = Open(source);
    Q9CfgEHandle to = Open(PathOf("to.dat"));
    EXPECT_EQ(Q9CfgE_SetStr(to, kExclude, kExcludeEnable,
                            Q9CfgE_GetStr(from, kExclude, Q9CFGE_KEY_OBJECT_LIST, nullptr)),
              0);
    EXPECT_EQ(Q9CfgE_SetStr(to, kExclude, Q9CFGE_KEY_OBJECT_LIST,
                            Q9CfgE_GetStr(from, kExclude, kExcludeEnable, nullptr)),
              0);
    Q9CfgE_Close(to);
    Q9CfgE_Close(from);
    EXPECT_FALSE(Exists(PathOf("to.dat")));
}

}  // namespace
}  // namespace store_test
