#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "Q9P3ATHL.h"
#include "support/StderrCapture.h"
#include "support/TemporaryInstallation.h"
#include "platform/SharedLibrary.h"
#include "support/TestPaths.h"

namespace {

const char* const kAccounts =
    "; accounts of the mail clients\n"
    "[Account1]\n"
    "Profile=alice@example.org\n"
    "Client=Desk Mail\n"
    "Protected=1\n"
    "\n"
    "[Options]\n"
    "Profile=not an account\n"
    "\n"
    "[account2]\n"
    "Profile = bob@example.net \n"
    "Client = Terminal Mailer\n"
    "Protected = 0\n"
    "\n"
    "[AccountX]\n"
    "Profile=not an account either\n"
    "\n"
    "[Account10]\n"
    "Client=Desk Mail\n";

struct AccountsDeleter {
    void operator()(void* accounts) const { Q9P3ATHL_Free(accounts); }
};
using Accounts = std::unique_ptr<void, AccountsDeleter>;

class Q9P3ATHLTest : public testing::Test {
protected:
    static Accounts Create() { return Accounts(Q9P3ATHL_Create()); }

    Accounts Loaded(const std::string& text) const {
        installation.Write("Q9P3Accounts.ini", text);
        Accounts accounts = Create();
        EXPECT_EQ(Q9P3ATHL_Load(accounts.get()), 1);
        return accounts;
    }

    TemporaryInstallation installation;
};

}  // namespace

TEST_F(Q9P3ATHLTest, LoadedByNameItAnswersAsTheSystemCallsIt) {
    installation.Write("Q9P3Accounts.ini", kAccounts);
    platform::SharedLibrary library;
    ASSERT_TRUE(library.Load(TestPath("library"), "Q9P3ATHL"));
    void* accounts = library.CallOr<void*()>(nullptr, "Q9P3ATHL_Create");
    ASSERT_NE(accounts, nullptr);
    EXPECT_EQ(library.CallOr<int32_t(void*)>(0, "Q9P3ATHL_Load", accounts), 1);
    EXPECT_EQ(library.CallOr<int32_t(void*)>(0, "Q9P3ATHL_GetCount", accounts), 3);
    EXPECT_STREQ(
        library.CallOr<const char*(void*, int32_t)>("", "Q9P3ATHL_GetProfileName", accounts, 1),
        "bob@example.net");
    EXPECT_STREQ(
        library.CallOr<const char*(void*, int32_t)>("", "Q9P3ATHL_GetMUAName", accounts, 1),
        "Terminal Mailer");
    EXPECT_EQ(library.CallOr<int32_t(void*, int32_t)>(0, "Q9P3ATHL_GetProtected", accounts, 0), 1);
    EXPECT_EQ(library.CallOr<int32_t(void*, int32_t, uint32_t)>(0, "Q9P3ATHL_SetProtected2",
                                                                accounts, 1, 1u),
              1);
    EXPECT_EQ(library.CallOr<int32_t(void*, uint32_t)>(0, "Q9P3ATHL_Save", accounts, 0u), 1);
    EXPECT_TRUE(library.CallIfPresent<void(void*)>("Q9P3ATHL_Free", accounts));
    EXPECT_NE(installation.Read("Q9P3Accounts.ini").find("Protected=1\n\n[AccountX]"),
              std::string::npos);
}

TEST_F(Q9P3ATHLTest, LoadListsTheAccountSectionsInFileOrder) {
    const Accounts accounts = Loaded(kAccounts);
    ASSERT_EQ(Q9P3ATHL_GetCount(accounts.get()), 3);
    EXPECT_STREQ(Q9P3ATHL_GetProfileName(accounts.get(), 0), "alice@example.org");
    EXPECT_STREQ(Q9P3ATHL_GetMUAName(accounts.get(), 0), "Desk Mail");
    EXPECT_EQ(Q9P3ATHL_GetProtected(accounts.get(), 0), 1);
    EXPECT_STREQ(Q9P3ATHL_GetProfileName(accounts.get(), 1), "bob@example.net");
    EXPECT_STREQ(Q9P3ATHL_GetMUAName(accounts.get(), 1), "Terminal Mailer");
    EXPECT_EQ(Q9P3ATHL_GetProtected(accounts.get(), 1), 0);
    // An account section without a Profile or Protected value.
    EXPECT_STREQ(Q9P3ATHL_GetProfileName(accounts.get(), 2), "");
    EXPECT_STREQ(Q9P3ATHL_GetMUAName(accounts.get(), 2), "Desk Mail");
    EXPECT_EQ(Q9P3ATHL_GetProtected(accounts.get(), 2), 0);
}

TEST_F(Q9P3ATHLTest, NewObjectIsEmptyAndMissingFileLoadsAsNoAccounts) {
    const Accounts accounts = Create();
    ASSERT_NE(accounts, nullptr);
    EXPECT_EQ(Q9P3ATHL_GetCount(accounts.get()), 0);
    EXPECT_EQ(Q9P3ATHL_Load(accounts.get()), 1);
    EXPECT_EQ(Q9P3ATHL_GetCount(accounts.get()), 0);
    EXPECT_STREQ(Q9P3ATHL_GetProfileName(accounts.get(), 0), "");
}

TEST_F(Q9P3ATHLTest, IndexOutOfRangeAnswersEmptyAndZero) {
    const Accounts accounts = Loaded(kAccounts);
    for (const int32_t index : {-1, 3, 1000}) {
        EXPECT_STREQ(Q9P3ATHL_GetProfileName(accounts.get(), index), "");
        EXPECT_STREQ(Q9P3ATHL_GetMUAName(accounts.get(), index), "");
        EXPECT_EQ(Q9P3ATHL_GetProtected(accounts.get(), index), 0);
        EXPECT_EQ(Q9P3ATHL_SetProtected2(accounts.get(), index, 1), 0);
    }
}

TEST_F(Q9P3ATHLTest, NullObjectAnswersNothing) {
    installation.Write("Q9P3Accounts.ini", kAccounts);
    EXPECT_EQ(Q9P3ATHL_Load(nullptr), 0);
    EXPECT_EQ(Q9P3ATHL_Save(nullptr, 0), 0);
    EXPECT_EQ(Q9P3ATHL_GetCount(nullptr), 0);
    EXPECT_STREQ(Q9P3ATHL_GetProfileName(nullptr, 0), "");
    EXPECT_STREQ(Q9P3ATHL_GetMUAName(nullptr, 0), "");
    EXPECT_EQ(Q9P3ATHL_GetProtected(nullptr, 0), 0);
    EXPECT_EQ(Q9P3ATHL_SetProtected2(nullptr, 0, 1), 0);
    Q9P3ATHL_Free(nullptr);
    EXPECT_EQ(installation.Read("Q9P3Accounts.ini"), kAccounts);
}

TEST_F(Q9P3ATHLTest, SetProtectedChangesTheObjectOnlyUntilSave) {
    const Accounts accounts = Loaded(kAccounts);
    EXPECT_EQ(Q9P3ATHL_SetProtected2(accounts.get(), 0, 0), 1);
    EXPECT_EQ(Q9P3ATHL_SetProtected2(accounts.get(), 1, 7), 1);
    EXPECT_EQ(Q9P3ATHL_GetProtected(accounts.get(), 0), 0);
    EXPECT_EQ(Q9P3ATHL_GetProtected(accounts.get(), 1), 1);
    EXPECT_EQ(installation.Read("Q9P3Accounts.ini"), kAccounts);
}

TEST_F(Q9P3ATHLTest, SaveWritesOnlyTheProtectedValuesBack) {
    const Accounts accounts = Loaded(kAccounts);
    Q9P3ATHL_SetProtected2(accounts.get(), 0, 0);
    Q9P3ATHL_SetProtected2(accounts.get(), 1, 1);
    Q9P3ATHL_SetProtected2(accounts.get(), 2, 1);
    ASSERT_EQ(Q9P3ATHL_Save(accounts.get(), 0), 1);

    std::string expected = kAccounts;
    expected.replace(expected.find("Protected=1"), 11, "Protected=0");
    expected.replace(expected.find("Protected = 0"), 13, "Protected=1");
    expected += "Protected=1\n";
    EXPECT_EQ(installation.Read("Q9P3Accounts.ini"), expected);

    const Accounts reread = Loaded(expected);
    EXPECT_EQ(Q9P3ATHL_GetProtected(reread.get(), 0), 0);
    EXPECT_EQ(Q9P3ATHL_GetProtected(reread.get(), 1), 1);
    EXPECT_EQ(Q9P3ATHL_GetProtected(reread.get(), 2), 1);
}

TEST_F(Q9P3ATHLTest, SaveDoesNotBringBackAnAccountRemovedMeanwhile) {
    const Accounts accounts =
        Loaded("[Account1]\nProfile=a\nProtected=0\n[Account2]\nProfile=b\nProtected=0\n");
    installation.Write("Q9P3Accounts.ini", "[Account1]\nProfile=a\nProtected=0\n");
    Q9P3ATHL_SetProtected2(accounts.get(), 0, 1);
    Q9P3ATHL_SetProtected2(accounts.get(), 1, 1);
    ASSERT_EQ(Q9P3ATHL_Save(accounts.get(), 0), 1);
    EXPECT_EQ(installation.Read("Q9P3Accounts.ini"), "[Account1]\nProfile=a\nProtected=1\n");
}

TEST_F(Q9P3ATHLTest, SaveOfNoAccountsDoesNotCreateTheFile) {
    const Accounts accounts = Create();
    ASSERT_EQ(Q9P3ATHL_Load(accounts.get()), 1);
    EXPECT_EQ(Q9P3ATHL_Save(accounts.get(), 0), 1);
    EXPECT_FALSE(installation.Exists("Q9P3Accounts.ini"));
}

TEST_F(Q9P3ATHLTest, LoadAgainReplacesTheList) {
    const Accounts accounts = Loaded(kAccounts);
    installation.Write("Q9P3Accounts.ini", "[Account7]\nProfile=carol\nClient=Web\nProtected=1\n");
    ASSERT_EQ(Q9P3ATHL_Load(accounts.get()), 1);
    ASSERT_EQ(Q9P3ATHL_GetCount(accounts.get()), 1);
    EXPECT_STREQ(Q9P3ATHL_GetProfileName(accounts.get(), 0), "carol");
}

TEST_F(Q9P3ATHLTest, CorruptFileLoadsNoAccountsIsReportedAndIsNotWritten) {
    const std::string corrupt = "[Account1]\nProfile=a\nProtected\n";
    installation.Write("Q9P3Accounts.ini", corrupt);
    const StderrCapture errors;
    const Accounts accounts = Create();
    EXPECT_EQ(Q9P3ATHL_Load(accounts.get()), 0);
    EXPECT_EQ(Q9P3ATHL_GetCount(accounts.get()), 0);
    EXPECT_EQ(Q9P3ATHL_Save(accounts.get(), 0), 0);
    EXPECT_EQ(installation.Read("Q9P3Accounts.ini"), corrupt);
    EXPECT_NE(errors.Text().find("Q9P3Accounts.ini:3"), std::string::npos) << errors.Text();
}
