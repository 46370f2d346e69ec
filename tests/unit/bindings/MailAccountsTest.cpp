// The owned mail account object: against the built library, against the
// handle probe (which records every object made and freed), without the
// library and against a library without its entry points.

#include <string>
#include <utility>
#include <vector>

#include "BindingTest.h"
#include "session/MailAccounts.h"
#include "session/SiblingLibs.h"

namespace {

class MailAccountsTest : public BindingTest {};

using Lines = std::vector<std::string>;

}  // namespace

TEST_F(MailAccountsTest, ReadsChangesAndSavesTheAccounts) {
    AddSibling("Q9P3ATHL");
    Install().Write("Q9P3Accounts.ini",
                    "[Account1]\nProfile=alice@example.org\nClient=Desk Mail\nProtected=1\n\n"
                    "[Account2]\nProfile=bob@example.net\nClient=Terminal Mailer\nProtected=0\n");
    {
        MailAccounts accounts = g_Siblings.CreateMailAccounts();
        ASSERT_FALSE(accounts.IsEmpty());
        EXPECT_EQ(accounts.Count(), 0);
        EXPECT_EQ(accounts.Read(), 1);
        ASSERT_EQ(accounts.Count(), 2);
        EXPECT_EQ(accounts.ProfileName(1), "bob@example.net");
        EXPECT_EQ(accounts.ClientName(0), "Desk Mail");
        EXPECT_EQ(accounts.IsProtected(0), 1);
        EXPECT_EQ(accounts.SetProtected(0, 0), 1);
        EXPECT_EQ(accounts.SetProtected(2, 1), 0);
        EXPECT_EQ(accounts.Save(0), 1);
    }
    MailAccounts reread = g_Siblings.CreateMailAccounts();
    ASSERT_EQ(reread.Read(), 1);
    EXPECT_EQ(reread.IsProtected(0), 0);
    EXPECT_EQ(reread.IsProtected(1), 0);
}

TEST_F(MailAccountsTest, ObjectIsFreedOnceWhenItGoes) {
    AddHandleProbeAs("Q9P3ATHL");
    {
        MailAccounts accounts = g_Siblings.CreateMailAccounts();
        EXPECT_FALSE(accounts.IsEmpty());
        EXPECT_EQ(Handles(), Lines{"Q9P3ATHL_Create 1"});
    }
    EXPECT_EQ(Handles(), (Lines{"Q9P3ATHL_Create 1", "Q9P3ATHL_Free 1", "unload libQ9P3ATHL.so"}));
}

TEST_F(MailAccountsTest, MovingHandsTheObjectOnWithoutFreeingIt) {
    AddHandleProbeAs("Q9P3ATHL");
    {
        MailAccounts first = g_Siblings.CreateMailAccounts();
        MailAccounts second(std::move(first));
        MailAccounts third;
        third = std::move(second);
        EXPECT_TRUE(first.IsEmpty());
        EXPECT_TRUE(second.IsEmpty());
        EXPECT_FALSE(third.IsEmpty());
        EXPECT_EQ(Handles(), Lines{"Q9P3ATHL_Create 1"});
    }
    EXPECT_EQ(Handles(), (Lines{"Q9P3ATHL_Create 1", "Q9P3ATHL_Free 1", "unload libQ9P3ATHL.so"}));
}

TEST_F(MailAccountsTest, AssigningOverAnObjectFreesTheOldOne) {
    AddHandleProbeAs("Q9P3ATHL");
    {
        MailAccounts accounts = g_Siblings.CreateMailAccounts();
        accounts = g_Siblings.CreateMailAccounts();
        EXPECT_EQ(Handles(), (Lines{"Q9P3ATHL_Create 1", "Q9P3ATHL_Create 2", "Q9P3ATHL_Free 1"}));
        accounts = MailAccounts();
        EXPECT_TRUE(accounts.IsEmpty());
    }
    EXPECT_EQ(Handles(), (Lines{"Q9P3ATHL_Create 1", "Q9P3ATHL_Create 2", "Q9P3ATHL_Free 1",
                                "Q9P3ATHL_Free 2", "unload libQ9P3ATHL.so"}));
}

TEST_F(MailAccountsTest, ObjectKeepsItsLibraryLoadedAcrossRelease) {
    AddHandleProbeAs("Q9P3ATHL");
    {
        MailAccounts accounts = g_Siblings.CreateMailAccounts();
        g_Siblings.LoadP3Athl();
        g_Siblings.Release();
        RemoveLibrary("Q9P3ATHL");
        EXPECT_EQ(Handles(), Lines{"Q9P3ATHL_Create 1"});
    }
    EXPECT_EQ(Handles(), (Lines{"Q9P3ATHL_Create 1", "Q9P3ATHL_Free 1", "unload libQ9P3ATHL.so"}));
}

TEST_F(MailAccountsTest, MissingLibraryGivesAnEmptyHarmlessObject) {
    Install().Write("Q9P3Accounts.ini", "[Account1]\nProfile=alice@example.org\n");
    MailAccounts accounts = g_Siblings.CreateMailAccounts();
    EXPECT_TRUE(accounts.IsEmpty());
    EXPECT_EQ(accounts.Read(), 0);
    EXPECT_EQ(accounts.Count(), 0);
    EXPECT_EQ(accounts.ProfileName(0), "");
    EXPECT_EQ(accounts.ClientName(0), "");
    EXPECT_EQ(accounts.IsProtected(0), 0);
    EXPECT_EQ(accounts.SetProtected(0, 1), 0);
    EXPECT_EQ(accounts.Save(0), 0);
    // Installing the library afterwards does not bring an object into being.
    AddHandleProbeAs("Q9P3ATHL");
    EXPECT_EQ(accounts.Count(), 0);
    accounts = MailAccounts();
    EXPECT_TRUE(Handles().empty());
}

TEST_F(MailAccountsTest, LibraryWithoutEntryPointsGivesAnEmptyObjectAndIsLetGo) {
    AddProbeAs("Q9P3ATHL");
    MailAccounts accounts = g_Siblings.CreateMailAccounts();
    EXPECT_TRUE(accounts.IsEmpty());
    EXPECT_EQ(accounts.Read(), 0);
    EXPECT_EQ(accounts.Count(), 0);
    EXPECT_EQ(Unloads(), Lines{"libQ9P3ATHL.so"});
}
