#include <gtest/gtest.h>

#include "MsgFltTestSupport.h"
#include "Q9MsgFlt.h"
#include "support/DamagedContent.h"
#include "support/StderrCapture.h"

namespace {

class RuleManagerTest : public MsgFltTest {};

}  // namespace

TEST_F(RuleManagerTest, CallsWithoutAManagerAnswerZero) {
    WriteRules(kTwoRules);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 0);
    EXPECT_EQ(Q9MsgFltAPI_WriteRules(), 0);
    EXPECT_EQ(Q9MsgFltAPI_ReloadManager(), 0);
    EXPECT_EQ(Q9MsgFltAPI_ReleaseManager(), 0);
    EXPECT_EQ(RulesText(), kTwoRules);
}

TEST_F(RuleManagerTest, AbsentFileIsAnEmptyRuleSetAndIsNotCreated) {
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 0);
    EXPECT_FALSE(std::filesystem::exists(RulesPath()));
}

TEST_F(RuleManagerTest, InitLoadsTheRulesFile) {
    WriteRules(kTwoRules);
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 2);
}

TEST_F(RuleManagerTest, ManagerIsReferenceCounted) {
    WriteRules(kTwoRules);
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_ReleaseManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 2);
    EXPECT_EQ(Q9MsgFltAPI_ReleaseManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 0);
    EXPECT_EQ(Q9MsgFltAPI_ReleaseManager(), 0);
}

TEST_F(RuleManagerTest, LaterInitSharesTheLoadedRules) {
    WriteRules(kTwoRules);
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    WriteRules("Q9MsgFlt Rules 1\n");
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 2);
    // Once the last reference is gone, the next Init reads the file again.
    Q9MsgFltAPI_ReleaseManager();
    Q9MsgFltAPI_ReleaseManager();
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 0);
}

TEST_F(RuleManagerTest, UnparseableFileFailsInitIsReportedAndKept) {
    const std::vector<std::string> broken = {
        // The writer always writes the first line: a file without it was
        // emptied by something else.
        "",
        "\n\n",
        "# a comment alone\n",
        "not rules\n",
        "Q9MsgFlt Rules 2\n",
        "Q9MsgFlt Rules 1\nName=outside a rule\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=A\nField=Subject\nWords=x\nAction=Spam\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=A\nField=Header\nWords=x\nAction=Spam\nEnabled=Yes\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=A\nField=Subject\nWords=x\nAction=Keep\nEnabled=Yes\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=A\nField=Subject\nWords=x\nAction=Spam\nEnabled=1\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=\nField=Subject\nWords=x\nAction=Spam\nEnabled=Yes\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=A\nField=Subject\nWords= , \nAction=Spam\nEnabled=Yes\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=A\nField=Subject\nWords=\x05\nAction=Spam\nEnabled=Yes\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=\x01\nField=Subject\nWords=x\nAction=Spam\nEnabled=Yes\n",
        "Q9MsgFlt Rules "
        "1\n[Rule]\nName=A\nName=B\nField=Subject\nWords=x\nAction=Spam\nEnabled=Yes\n",
        "Q9MsgFlt Rules "
        "1\n[Rule]\nName=A\nField=Subject\nWords=x\nAction=Spam\nEnabled=Yes\nColour=red\n",
        "Q9MsgFlt Rules 1\n[Rule]\nName=A\nField=Subject\n[Rule]\nName=B\nField=Body\nWords=x\n"
        "Action=Spam\nEnabled=Yes\n",
    };
    for (const auto& text : broken) {
        WriteRules(text);
        StderrCapture reported;
        EXPECT_EQ(Q9MsgFltAPI_InitManager(), 0) << text;
        EXPECT_NE(reported.Text().find("is not a rules file"), std::string::npos) << text;
        EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 0);
        EXPECT_EQ(RulesText(), text);
    }
}

TEST_F(RuleManagerTest, DamagedFileIsListedAsUnreadableAndKept) {
    const std::string valid =
        "Q9MsgFlt Rules 1\n[Rule]\nName=Pharmacy\nField=Body\nWords=cheap\nAction=Delete\n"
        "Enabled=Yes\n";
    for (const Damage damage : kEveryDamage) {
        SCOPED_TRACE(NameOf(damage));
        const std::string text = Damaged(valid, CutInside(valid, "Pharmacy"), damage);
        WriteRules(text);
        EXPECT_EQ(Q9MsgFltAPI_InitManager(), 0);
        EXPECT_EQ(Q9MsgFltAPI_WriteRules(), 0);
        EXPECT_TRUE(IsListedUnreadable(RulesPath()));
        EXPECT_TRUE(RulesText() == text) << "the file is kept";
        // Repaired, it is read again and no longer listed.
        WriteRules(valid);
        ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
        EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 1);
        EXPECT_FALSE(IsListedUnreadable(RulesPath()));
        Q9MsgFltAPI_ReleaseManager();
    }
}

TEST_F(RuleManagerTest, HandEditedFileIsReadAndWrittenBackPlainly) {
    WriteRules(
        "# my rules\r\n  Q9MsgFlt Rules 1\r\n[rule]\r\n  words = cheap , , pills,\r\n"
        "ACTION=delete\r\nname= Pharmacy \r\nenabled=YES\r\nfield=body\r\n");
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 1);
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_EQ(RulesText(),
              "Q9MsgFlt Rules 1\n\n[Rule]\nName=Pharmacy\nField=Body\nWords=cheap, pills\n"
              "Action=Delete\nEnabled=Yes\n");
}

// Control characters in a name or a word are written as spaces; read as
// spaces too, a rule holds what the file will hold after a save, and a word
// of control characters alone is dropped instead of being written as a blank.
TEST_F(RuleManagerTest, ControlCharactersInNamesAndWordsAreReadAsSpaces) {
    const char text[] =
        "Q9MsgFlt Rules 1\n[Rule]\nName=\x01Pills\x7f\nField=Body\n"
        "Words=cheap\x01"
        "deal, \x05, spam\0offer\nAction=Spam\nEnabled=Yes\n";
    WriteRules(std::string(text, sizeof text - 1));
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    const std::string written =
        "Q9MsgFlt Rules 1\n\n[Rule]\nName=Pills\nField=Body\nWords=cheap deal, spam offer\n"
        "Action=Spam\nEnabled=Yes\n";
    EXPECT_EQ(RulesText(), written);
    ASSERT_EQ(Q9MsgFltAPI_ReloadManager(), 1);
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_EQ(RulesText(), written);
}

TEST_F(RuleManagerTest, WriteRulesWritesTheManagersRules) {
    WriteRules(kTwoRules);
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    std::filesystem::remove(RulesPath());
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_EQ(RulesText(), kTwoRules);
}

TEST_F(RuleManagerTest, EmptyRuleSetIsWrittenAsTheFirstLineAlone) {
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_EQ(RulesText(), "Q9MsgFlt Rules 1\n");
}

TEST_F(RuleManagerTest, ReloadReadsTheFileAgain) {
    WriteRules(kTwoRules);
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    WriteRules(
        "Q9MsgFlt Rules 1\n[Rule]\nName=A\nField=Subject\nWords=x\nAction=Spam\nEnabled=Yes\n");
    EXPECT_EQ(Q9MsgFltAPI_ReloadManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 1);
    std::filesystem::remove(RulesPath());
    EXPECT_EQ(Q9MsgFltAPI_ReloadManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 0);
}

TEST_F(RuleManagerTest, ReloadOfAnUnparseableFileKeepsTheRules) {
    WriteRules(kTwoRules);
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    WriteRules("garbage\n");
    StderrCapture reported;
    EXPECT_EQ(Q9MsgFltAPI_ReloadManager(), 0);
    EXPECT_NE(reported.Text().find("is not a rules file"), std::string::npos);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 2);
    EXPECT_EQ(RulesText(), "garbage\n");
}

TEST_F(RuleManagerTest, FailedWriteIsReported) {
    ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    std::filesystem::remove_all(install.Directory());
    StderrCapture reported;
    EXPECT_EQ(Q9MsgFltAPI_WriteRules(), 0);
    EXPECT_NE(reported.Text().find("cannot write"), std::string::npos);
}

TEST_F(RuleManagerTest, UnreadableRulesFileIsReported) {
    std::filesystem::create_directories(RulesPath());
    StderrCapture reported;
    EXPECT_EQ(Q9MsgFltAPI_InitManager(), 0);
    EXPECT_NE(reported.Text().find("cannot read"), std::string::npos);
}
