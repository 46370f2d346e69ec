// Silent policies through the loaded library and through q9cfg, as an
// installer pushes them: the store, the registration journal, the zone file
// and the registry hive all follow; a second apply changes nothing and the
// dry run says so; files that are no policy are refused with a clear
// message and leave the store as it was; q9admin lists and undoes applies.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <filesystem>
#include <string>

#include "CallerSessionTest.h"
#include "q9cfgul.h"
#include "support/TestPaths.h"

namespace policy_caller_test {
namespace {

using PolicyDiffEntry = int32_t(uint32_t, const char*, const char*, char*, uint32_t*);

constexpr const char* kHive = "../hives/HKLM.reg";

const char kPolicy[] =
    "Q9 Configuration Store 1\n"
    "[CES_Switch]\n"
    "CEK_Switch_Scan=dword:00000010\nCEK_Switch_ScanMask=dword:00000030\n"
    "CEK_Switch_General=dword:00100000\nCEK_Switch_GeneralMask=dword:00100000\n"
    "[CES_Exclude]\nCEK_ExcludeEnable=dword:00000001\nrecord=0,1,\"/srv/cache\"\n"
    "[0x10000000]\nCEK_SchedOn=dword:00000001\nCEK_SchedStyle=dword:00000002\n"
    "CEK_SchedDayOfWeek=dword:00000005\nCEK_SchedHour=dword:00000016\n"
    "CEK_SchedCurDir=\"%Q9%\"\n";

struct Outcome {
    int status = -1;
    std::string out;
    std::string err;
};

class PolicyCallerTest : public CallerSessionTest {
protected:
    void SetUp() override {
        StartCaller({"Q9SSCtrl", "OrvDMZ"});
        for (const char* program : {"q9cfg", "q9admin"}) {
            std::filesystem::copy_file(TestPath("library") + "/" + program,
                                       caller->install.PathOf(program));
        }
        caller->install.Write("policy.dat", kPolicy);
        // Bar on: the policy turns it off.
        caller->install.Write("Q9SSCtrl.state", "[Registered]\n1=1\n");
    }

    std::string Base() const { return caller->install.PathOf("Q9Cfg.dat"); }
    std::string Policy() const { return caller->install.PathOf("policy.dat"); }
    std::string Read(const char* name) const { return caller->install.Read(name); }

    Outcome Run(const char* program, const QStringList& arguments) const {
        QProcess process;
        process.start(QString::fromStdString(caller->install.PathOf(program)), arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }

    Outcome Host(QStringList arguments) const {
        arguments << "--base" << QString::fromStdString(Base());
        return Run("q9cfg", arguments);
    }

    int32_t ApplySilently() {
        return doModal(0, DMF_Silent, nullptr, Base().c_str(), Policy().c_str());
    }

    int32_t Diff(std::string* report) const {
        auto* diff = caller->Entry<PolicyDiffEntry>("Q9CfgUL_PolicyDiff");
        EXPECT_NE(diff, nullptr);
        uint32_t size = 0;
        diff(0, Base().c_str(), Policy().c_str(), nullptr, &size);
        std::string text(size, '\0');
        const int32_t result = diff(0, Base().c_str(), Policy().c_str(), text.data(), &size);
        text.resize(size > 0 ? size - 1 : 0);
        *report = text;
        return result;
    }

    // The files an apply brings into line, to see that a second one changes
    // none of them (the services' notice is counted anew each time).
    std::string Everything() const {
        return Read("Q9Cfg.dat") + Read("OrvDMZ.zone") + Read(kHive);
    }

    void ExpectTheProductFollowsThePolicy() const {
        const std::string store = Read("Q9Cfg.dat");
        EXPECT_NE(store.find("CEK_Switch_Scan=dword:00000010"), std::string::npos) << store;
        EXPECT_NE(store.find("record=0,1,\"/srv/cache\""), std::string::npos);
        const std::string journal = Read("Q9SSCtrl.journal");
        EXPECT_NE(journal.find("Q9SSCtrl_Register\t0\t"), std::string::npos) << journal;
        EXPECT_NE(journal.find("Q9SSCtrl_Unregister\t1\t"), std::string::npos);
        EXPECT_NE(journal.find("Q9SSCtrl_Register\t112\t"), std::string::npos);
        EXPECT_NE(journal.find("Q9SSCtrl_SetCfgChanged\t32\t"), std::string::npos);
        EXPECT_NE(Read("OrvDMZ.zone").find("record=1,0x00000102,\"/srv/cache\""),
                  std::string::npos)
            << Read("OrvDMZ.zone");
        const std::string hive = Read(kHive);
        EXPECT_NE(hive.find("Schedule\\Q9SScan0]"), std::string::npos) << hive;
        EXPECT_NE(hive.find("\"Hour\"=dword:00000016"), std::string::npos);
        EXPECT_NE(hive.find("\"DayOfWeek\"=dword:00000005"), std::string::npos);
    }

    // A bad policy is refused by q9cfg before anything is called.
    void ExpectRefused(const std::string& why) const {
        const std::string store = Read("Q9Cfg.dat");
        const Outcome outcome = Host({"policy", "apply", QString::fromStdString(Policy())});
        EXPECT_EQ(outcome.status, 3) << outcome.err;
        EXPECT_NE(outcome.err.find("the policy was not applied. Not merged: "), std::string::npos)
            << outcome.err;
        EXPECT_NE(outcome.err.find(why), std::string::npos) << outcome.err;
        EXPECT_EQ(Read("Q9Cfg.dat"), store);
        EXPECT_FALSE(caller->install.Exists("Q9Policy.history"));
    }
};

}  // namespace

TEST_F(PolicyCallerTest, ThroughTheEntryPointTheProductFollowsAndASecondApplyChangesNothing) {
    std::string report;
    EXPECT_EQ(Diff(&report), 1);
    EXPECT_NE(report.find("stop: SSCT_Q9BAR (1)"), std::string::npos) << report;
    EXPECT_EQ(ApplySilently(), 1);
    ExpectTheProductFollowsThePolicy();

    const std::string after = Everything();
    EXPECT_EQ(Diff(&report), 0) << report;
    EXPECT_NE(report.find("Nothing would change."), std::string::npos);
    EXPECT_EQ(ApplySilently(), 1);
    EXPECT_EQ(Everything(), after);
}

TEST_F(PolicyCallerTest, ThroughTheHostProgramTheDryRunTellsAndTheApplyDoes) {
    const std::string store = Read("Q9Cfg.dat");
    const Outcome diff = Host({"policy", "diff", QString::fromStdString(Policy())});
    EXPECT_EQ(diff.status, 1) << diff.err;
    EXPECT_NE(diff.out.find("CES_Exclude, object list: (absent) -> record=0,1,\"/srv/cache\""),
              std::string::npos)
        << diff.out;
    EXPECT_NE(diff.out.find("add /srv/cache (folder, in use)"), std::string::npos);
    EXPECT_NE(diff.out.find("write Q9SScan0"), std::string::npos);
    EXPECT_EQ(Read("Q9Cfg.dat"), store) << "the dry run changes nothing";

    const Outcome json = Host({"policy", "diff", QString::fromStdString(Policy()), "--json"});
    EXPECT_EQ(json.status, 1);
    const QJsonObject object =
        QJsonDocument::fromJson(QByteArray::fromStdString(json.out)).object();
    EXPECT_EQ(object["merge"].toString(), "merged");
    EXPECT_TRUE(object["changes"].toBool());

    const Outcome apply = Host({"policy", "apply", QString::fromStdString(Policy())});
    EXPECT_EQ(apply.status, 0) << apply.err;
    EXPECT_EQ(apply.out, "result: 1\n");
    ExpectTheProductFollowsThePolicy();

    const Outcome again = Host({"policy", "diff", QString::fromStdString(Policy())});
    EXPECT_EQ(again.status, 0) << again.out;
    EXPECT_NE(again.out.find("Nothing would change."), std::string::npos);
}

TEST_F(PolicyCallerTest, EveryApplyIsRecordedAndTheLastCanBeUndone) {
    ASSERT_EQ(Host({"policy", "apply", QString::fromStdString(Policy())}).status, 0);
    struct stat status {};
    ASSERT_EQ(stat(caller->install.PathOf("Q9Policy.history").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    const Outcome history = Run("q9admin", {"policy", "history"});
    EXPECT_EQ(history.status, 0);
    EXPECT_NE(history.out.find("#1 apply"), std::string::npos) << history.out;
    EXPECT_NE(history.out.find("policy " + Policy()), std::string::npos);
    EXPECT_NE(history.out.find("CES_Switch, CEK_Switch_Scan: (absent) -> dword:00000010"),
              std::string::npos);

    const Outcome undo = Run("q9admin", {"policy", "undo"});
    EXPECT_EQ(undo.status, 0) << undo.err;
    EXPECT_NE(undo.out.find("entry 1 undone"), std::string::npos);
    EXPECT_EQ(Read(kHive).find("Q9SScan0"), std::string::npos);
    EXPECT_EQ(Read("OrvDMZ.zone").find("/srv/cache"), std::string::npos);
    EXPECT_EQ(Read("Q9Cfg.dat").find("/srv/cache"), std::string::npos);
    EXPECT_NE(Run("q9admin", {"policy", "history"}).out.find("#2 undo of #1"), std::string::npos);
}

TEST_F(PolicyCallerTest, AnEmptyPolicyIsRefused) {
    caller->install.Write("policy.dat", "");
    ExpectRefused("holds no value to merge");
}

TEST_F(PolicyCallerTest, ATruncatedPolicyIsRefused) {
    caller->install.Write("policy.dat", std::string(kPolicy).substr(0, 60));
    ExpectRefused("holds no value to merge");
}

TEST_F(PolicyCallerTest, ABinaryPolicyIsRefused) {
    caller->install.Write("policy.dat", std::string("\x7f" "ELF\x02\x01\x01\0\0\0", 10));
    ExpectRefused("holds no value to merge");
}

TEST_F(PolicyCallerTest, AnEnormousPolicyIsRefused) {
    std::filesystem::resize_file(Policy(), 17u << 20);
    ExpectRefused("is larger than 16 MiB");
}

TEST_F(PolicyCallerTest, APolicyNamingUnknownSectionsAndKeysIsRefused) {
    caller->install.Write("policy.dat",
                          "Q9 Configuration Store 1\n[CES_Nowhere]\nCEK_Nothing=dword:00000001\n");
    ExpectRefused("holds no value to merge");
}

TEST_F(PolicyCallerTest, AMissingPolicyIsRefused) {
    std::filesystem::remove(Policy());
    ExpectRefused("holds no value to merge");
}

TEST_F(PolicyCallerTest, ABasePathLongerThanTheLimitIsRefused) {
    const std::string store = Read("Q9Cfg.dat");
    const Outcome outcome = Run("q9cfg", {"policy", "apply", QString::fromStdString(Policy()),
                                          "--base", QString(300, 'b')});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_NE(outcome.err.find("longer than 260 characters"), std::string::npos) << outcome.err;
    EXPECT_EQ(Read("Q9Cfg.dat"), store);
}

}  // namespace policy_caller_test
