// The load steps, Release and the pending mask.

#include <string>
#include <vector>

#include "BindingTest.h"
#include "options/SwitchWord.h"
#include "session/SiblingLibs.h"

namespace {

class ReleaseTest : public BindingTest {
protected:
    // A probe under the name of every library that has a handle.
    void AddProbes() const {
        for (const char* name : {"Q9SSCtrl", "Q9P3ATHL", "Q9IMcfg", "Q9MsgFlt", "OrvDMZ"}) {
            AddProbeAs(name);
        }
    }
};

}  // namespace

TEST_F(ReleaseTest, LoadStepsAnswerZeroWithoutTheirLibraries) {
    EXPECT_EQ(g_Siblings.LoadSSCtrl(), 0);
    EXPECT_EQ(g_Siblings.LoadP3Athl(), 0);
    EXPECT_EQ(g_Siblings.LoadIMcfg(), 0);
    EXPECT_EQ(g_Siblings.LoadMsgFlt(), 0);
    EXPECT_EQ(g_Siblings.LoadDMZ(), 0);
}

TEST_F(ReleaseTest, LoadStepsLoadFromTheModuleDirectory) {
    AddProbes();
    EXPECT_EQ(g_Siblings.LoadSSCtrl(), 1);
    EXPECT_EQ(g_Siblings.LoadP3Athl(), 1);
    EXPECT_EQ(g_Siblings.LoadIMcfg(), 1);
    EXPECT_EQ(g_Siblings.LoadMsgFlt(), 1);
    EXPECT_EQ(g_Siblings.LoadDMZ(), 1);
    EXPECT_TRUE(Unloads().empty());
}

TEST_F(ReleaseTest, ReleaseFreesTheLibrariesInItsOrder) {
    AddProbes();
    // Loaded in another order than they are freed.
    g_Siblings.MsgFltGetRuleCount();
    g_Siblings.LoadDMZ();
    g_Siblings.GetIMInstall(0);
    g_Siblings.LoadP3Athl();
    g_Siblings.ServiceControl(1, 32, 2);
    g_Siblings.Release();
    const std::vector<std::string> expected = {"libQ9SSCtrl.so", "libQ9P3ATHL.so", "libQ9IMcfg.so",
                                               "libOrvDMZ.so", "libQ9MsgFlt.so"};
    EXPECT_EQ(Unloads(), expected);
}

TEST_F(ReleaseTest, ReleaseFreesOnlyWhatIsLoaded) {
    AddProbes();
    g_Siblings.GetIMInstall(0);
    g_Siblings.Release();
    g_Siblings.Release();
    EXPECT_EQ(Unloads(), std::vector<std::string>{"libQ9IMcfg.so"});
}

TEST_F(ReleaseTest, LibrariesLoadAgainAfterRelease) {
    AddSibling("Q9SSCtrl");
    EXPECT_EQ(g_Siblings.ServiceControl(0, 32, 2), 1);
    g_Siblings.Release();
    EXPECT_EQ(g_Siblings.ServiceControl(0, 32, 2), 1);
}

TEST_F(ReleaseTest, ReleaseKeepsThePendingMask) {
    AddProbes();
    g_Siblings.LoadSSCtrl();
    g_Siblings.MarkPending(0x200001, 0);
    g_Siblings.Release();
    EXPECT_EQ(g_Siblings.GetPending(), 0x200001u);
}

TEST_F(ReleaseTest, MarkPendingSetsClearsAndAnswersThePreviousMask) {
    EXPECT_EQ(g_Siblings.MarkPending(0x200001, 0), 0u);
    EXPECT_EQ(g_Siblings.GetPending(), 0x200001u);
    EXPECT_EQ(g_Siblings.MarkPending(kPortBlockBit, 0x1), 0x200001u);
    EXPECT_EQ(g_Siblings.GetPending(), 0x1200000u);
    EXPECT_EQ(g_Siblings.MarkPending(0, kAllSwitchBits), 0x1200000u);
    EXPECT_EQ(g_Siblings.GetPending(), 0u);
}

TEST_F(ReleaseTest, MarkPendingClearsAfterSetting) {
    g_Siblings.MarkPending(0xD000, 0x1000);
    EXPECT_EQ(g_Siblings.GetPending(), 0xC000u);
    g_Siblings.MarkPending(0xFF, 0xFF);
    EXPECT_EQ(g_Siblings.GetPending(), 0xC000u);
}
