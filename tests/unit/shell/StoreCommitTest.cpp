#include "session/StoreCommit.h"

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include "options/StoreKeys.h"
#include "session/ProcessState.h"
#include "support/SiblingTest.h"

namespace {

class StoreCommitTest : public SiblingTest {
protected:
    StoreCommitTest() { AddSibling("Q9SSCtrl"); }
};

TEST_F(StoreCommitTest, CommitWritesTheWorkingCopyToTheLiveStore) {
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    BeginStoreEdit();
    SetWord(CES_Pop3, CEK_Pop3Port, 4110);
    CommitWorkingCopy();
    DropWorkingCopy();  // no edit session is left; the value stays
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 4110u);
}

TEST_F(StoreCommitTest, DropLeavesTheLiveStoreAsItWas) {
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    BeginStoreEdit();
    SetWord(CES_Pop3, CEK_Pop3Port, 4110);
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 4110u);  // the working copy
    DropWorkingCopy();
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 110u);
}

TEST_F(StoreCommitTest, AnnounceWritesTheLevelAndSignalsOnceForItem32) {
    g_nProtectLevel = 8;
    AnnounceCommit();
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), 8u);
    EXPECT_EQ(Journal(), (std::vector<std::string>{
                             JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1)}));
}

}  // namespace
