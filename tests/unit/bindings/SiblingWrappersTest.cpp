// The wrappers of the mail account, messenger, spam filter and exclusion zone
// libraries, against the built libraries, without them, and against a
// library without their entry points. The owners' own rules (freed once,
// the calls of an empty owner) are in MailAccountsTest and ExclusionZoneTest.

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "BindingTest.h"
#include "ZoneRecords.h"
#include "session/SiblingLibs.h"

namespace {

constexpr const char* kOwner = "Q9Pro2004";

class SiblingWrappersTest : public BindingTest {};

uint32_t WordAt(const std::vector<uint8_t>& buffer, size_t offset) {
    uint32_t value = 0;
    std::memcpy(&value, buffer.data() + offset, sizeof value);
    return value;
}

}  // namespace

TEST_F(SiblingWrappersTest, MailAccountsRoundTrip) {
    AddSibling("Q9P3ATHL");
    Install().Write("Q9P3Accounts.ini",
                    "[Account1]\nProfile=alice@example.org\nClient=Desk Mail\nProtected=1\n\n"
                    "[Account2]\nProfile=bob@example.net\nClient=Terminal Mailer\nProtected=0\n");
    {
        MailAccounts accounts = g_Siblings.CreateMailAccounts();
        ASSERT_FALSE(accounts.IsEmpty());
        EXPECT_EQ(accounts.Read(), 1);
        ASSERT_EQ(accounts.Count(), 2);
        EXPECT_EQ(accounts.ProfileName(0), "alice@example.org");
        EXPECT_EQ(accounts.ClientName(1), "Terminal Mailer");
        EXPECT_EQ(accounts.IsProtected(0), 1);
        EXPECT_EQ(accounts.IsProtected(1), 0);
        EXPECT_EQ(accounts.SetProtected(0, 0), 1);
        EXPECT_EQ(accounts.SetProtected(1, 1), 1);
        EXPECT_EQ(accounts.SetProtected(5, 1), 0);
        EXPECT_EQ(accounts.ProfileName(5), "");
        EXPECT_EQ(accounts.Save(0), 1);
    }
    MailAccounts reread = g_Siblings.CreateMailAccounts();
    ASSERT_EQ(reread.Read(), 1);
    EXPECT_EQ(reread.IsProtected(0), 0);
    EXPECT_EQ(reread.IsProtected(1), 1);
}

TEST_F(SiblingWrappersTest, MessengersAsInstalled) {
    AddSibling("Q9IMcfg");
    Install().Write("Q9IMcfg.ini", "[Installed]\n0=1\n1=0\n3=1\n");
    EXPECT_EQ(g_Siblings.GetIMInstall(0), 1);
    EXPECT_EQ(g_Siblings.GetIMInstall(1), 0);
    EXPECT_EQ(g_Siblings.GetIMInstall(2), 0);
    EXPECT_EQ(g_Siblings.GetIMInstall(3), 1);
}

TEST_F(SiblingWrappersTest, SpamFilterRulesThroughTheManager) {
    AddSibling("Q9MsgFlt");
    Install().Write("Q9MsgFlt.rules",
                    "Q9MsgFlt Rules 1\n\n[Rule]\nName=Lottery\nField=Subject\n"
                    "Words=lottery\nAction=Spam\nEnabled=Yes\n");
    ASSERT_EQ(g_Siblings.MsgFltInitManager(), 1);
    EXPECT_EQ(g_Siblings.MsgFltGetRuleCount(), 1);
    const std::string mail = "From: a@example.org\nSubject: Lottery win\n\nbody";
    const auto address = reinterpret_cast<uintptr_t>(mail.c_str());
    EXPECT_EQ(g_Siblings.MsgFltApplyRules(static_cast<uint32_t>(address),
                                          static_cast<uint32_t>(uint64_t{address} >> 32)),
              1);
    Install().Write("Q9MsgFlt.rules", "Q9MsgFlt Rules 1\n");
    EXPECT_EQ(g_Siblings.MsgFltReloadManager(), 1);
    EXPECT_EQ(g_Siblings.MsgFltGetRuleCount(), 0);
    EXPECT_EQ(g_Siblings.MsgFltWriteRules(), 1);
    EXPECT_EQ(g_Siblings.MsgFltReleaseManager(), 1);
    EXPECT_EQ(g_Siblings.MsgFltGetRuleCount(), 0);
    EXPECT_EQ(g_Siblings.MsgFltReleaseManager(), 0);
}

TEST_F(SiblingWrappersTest, ZoneRecordRoundTrip) {
    AddSibling("OrvDMZ");
    ExclusionZone zone = g_Siblings.CreateExclusionZone();
    ASSERT_FALSE(zone.IsEmpty());
    const std::vector<uint8_t> record = ZoneRecord("/home/user/private", 0x102);
    EXPECT_EQ(zone.Add(kOwner, kOwner, ZoneBuffer(record).data()), 1);

    const int32_t size = zone.Enumerate(kOwner, kOwner, nullptr, 0);
    ASSERT_EQ(size, static_cast<int32_t>(record.size() + 4));
    std::vector<uint8_t> read(static_cast<size_t>(size), 0xEE);
    EXPECT_EQ(zone.Enumerate(kOwner, kOwner, read.data(), size), size);
    EXPECT_EQ(WordAt(read, 0), record.size());
    EXPECT_EQ(WordAt(read, 4), 1u);
    EXPECT_EQ(WordAt(read, 8), 0x102u);
    EXPECT_STREQ(reinterpret_cast<const char*>(read.data() + 16), kOwner);
    EXPECT_STREQ(reinterpret_cast<const char*>(read.data() + 536), "/home/user/private");
    EXPECT_EQ(WordAt(read, record.size()), 0u);

    EXPECT_EQ(zone.Delete(kOwner, kOwner), 1);
    EXPECT_EQ(zone.Enumerate(kOwner, kOwner, nullptr, 0), 0);
    zone = ExclusionZone();
    EXPECT_NE(Install().Read("OrvDMZ.zone").find("OrvDMZ Zone 1"), std::string::npos);
}

TEST_F(SiblingWrappersTest, MissingLibrariesAnswerZeroNullOrEmpty) {
    Install().Write("Q9IMcfg.ini", "[Installed]\n0=1\n");
    EXPECT_TRUE(g_Siblings.CreateMailAccounts().IsEmpty());
    EXPECT_EQ(g_Siblings.GetIMInstall(0), 0);
    EXPECT_EQ(g_Siblings.MsgFltInitManager(), 0);
    EXPECT_EQ(g_Siblings.MsgFltReleaseManager(), 0);
    EXPECT_EQ(g_Siblings.MsgFltDoProperty(), 0);
    EXPECT_EQ(g_Siblings.MsgFltApplyRules(1, 0), 0);
    EXPECT_EQ(g_Siblings.MsgFltReloadManager(), 0);
    EXPECT_EQ(g_Siblings.MsgFltWriteRules(), 0);
    EXPECT_EQ(g_Siblings.MsgFltGetRuleCount(), 0);
    EXPECT_TRUE(g_Siblings.CreateExclusionZone().IsEmpty());
}

TEST_F(SiblingWrappersTest, LibrariesWithoutEntryPointsAnswerZeroNullOrEmpty) {
    for (const char* name : {"Q9P3ATHL", "Q9IMcfg", "Q9MsgFlt", "OrvDMZ"}) AddProbeAs(name);
    EXPECT_TRUE(g_Siblings.CreateMailAccounts().IsEmpty());
    EXPECT_EQ(g_Siblings.GetIMInstall(0), 0);
    EXPECT_EQ(g_Siblings.MsgFltInitManager(), 0);
    EXPECT_EQ(g_Siblings.MsgFltGetRuleCount(), 0);
    EXPECT_TRUE(g_Siblings.CreateExclusionZone().IsEmpty());
}

TEST_F(SiblingWrappersTest, RuleEditorResultIsPassedOn) {
    AddProbeAs("Q9MsgFlt");  // its editor reports changed rules without showing anything
    EXPECT_EQ(g_Siblings.MsgFltDoProperty(), 1);
}
