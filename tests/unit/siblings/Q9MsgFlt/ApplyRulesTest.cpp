#include <gtest/gtest.h>

#include <cstdint>

#include "MsgFltTestSupport.h"
#include "Q9MsgFlt.h"

namespace {

const std::string kRules =
    "Q9MsgFlt Rules 1\n"
    "[Rule]\nName=Boss\nField=Sender\nWords=boss@example.com\nAction=Pass\nEnabled=Yes\n"
    "[Rule]\nName=Lottery\nField=Subject\nWords=lottery, you have won\nAction=Spam\nEnabled=Yes\n"
    "[Rule]\nName=Pills\nField=Body\nWords=pills\nAction=Delete\nEnabled=Yes\n"
    "[Rule]\nName=Greeting\nField=Subject\nWords=hello\nAction=Delete\nEnabled=No\n"
    "[Rule]\nName=Team\nField=Recipient\nWords=team@example.com\nAction=Spam\nEnabled=Yes\n";

// The message's address in the two words the export takes.
int32_t Apply(const std::string& message) {
    const auto address = static_cast<uint64_t>(reinterpret_cast<uintptr_t>(message.c_str()));
    return PFN_ApplyRules(static_cast<uint32_t>(address), static_cast<uint32_t>(address >> 32));
}

class ApplyRulesTest : public MsgFltTest {
protected:
    void SetUp() override {
        WriteRules(kRules);
        ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    }
};

}  // namespace

TEST_F(ApplyRulesTest, MatchingRuleGivesItsAction) {
    EXPECT_EQ(Apply("From: a@b.c\r\nSubject: You have WON a prize\r\n\r\nHi"),
              Q9MSGFLT_MARK_AS_SPAM);
    EXPECT_EQ(Apply("From: a@b.c\nSubject: offer\n\nCheap PILLS here"), Q9MSGFLT_DELETE);
    EXPECT_EQ(Apply("From: Boss <boss@example.com>\nSubject: hi\n\nx"), Q9MSGFLT_LET_THROUGH);
}

TEST_F(ApplyRulesTest, FirstMatchingRuleDecides) {
    EXPECT_EQ(Apply("From: boss@example.com\nSubject: lottery\n\npills"), Q9MSGFLT_LET_THROUGH);
}

TEST_F(ApplyRulesTest, RuleThatIsOffIsIgnored) {
    EXPECT_EQ(Apply("From: a@b.c\nSubject: Hello there\n\nx"), Q9MSGFLT_NO_MATCH);
}

TEST_F(ApplyRulesTest, RuleLooksOnlyAtItsField) {
    EXPECT_EQ(Apply("From: a@b.c\nSubject: pills\n\nthe lottery"), Q9MSGFLT_NO_MATCH);
    // Header lines after the empty line are body text.
    EXPECT_EQ(Apply("From: a@b.c\n\nFrom: boss@example.com"), Q9MSGFLT_NO_MATCH);
}

TEST_F(ApplyRulesTest, RecipientIsToAndCc) {
    EXPECT_EQ(Apply("To: team@example.com\n\nx"), Q9MSGFLT_MARK_AS_SPAM);
    EXPECT_EQ(Apply("To: me@example.com\nCC: Team <team@example.com>\n\nx"), Q9MSGFLT_MARK_AS_SPAM);
}

TEST_F(ApplyRulesTest, FoldedHeaderLinesAreJoined) {
    EXPECT_EQ(Apply("Subject: Congratulations,\r\n\tyou have\r\n won!\r\n\r\nx"),
              Q9MSGFLT_MARK_AS_SPAM);
}

TEST_F(ApplyRulesTest, NullMessageMatchesNothing) {
    EXPECT_EQ(PFN_ApplyRules(0, 0), Q9MSGFLT_NO_MATCH);
}

TEST_F(ApplyRulesTest, WithoutAManagerNothingMatches) {
    Q9MsgFltAPI_ReleaseManager();
    EXPECT_EQ(Apply("Subject: lottery\n\nx"), Q9MSGFLT_NO_MATCH);
}
