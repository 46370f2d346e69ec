// q9admin run as a separate program on a temporary installation.
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

#include "support/TemporaryInstallation.h"
#include "support/TestPaths.h"

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

class AdminToolTest : public testing::Test {
protected:
    Outcome Run(const QStringList& arguments, const QByteArray& input = {}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("Q9_INSTALL_DIR", QString::fromStdString(install.Directory()));
        environment.insert("Q9_REGISTRY_DIR",
                           QString::fromStdString(install.Directory() + "registry"));
        process.setProcessEnvironment(environment);
        process.start(QString::fromStdString(TestPath("admin")), arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(30000));
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }
    TemporaryInstallation install;
};

}  // namespace

TEST_F(AdminToolTest, HelpListsEveryVerbAndSucceeds) {
    const Outcome outcome = Run({"--help"});
    EXPECT_EQ(outcome.status, 0);
    for (const char* verb : {"store get-dword", "store set-enc", "store dump", "registry get",
                             "registry dump", "journal", "zone", "schedule"}) {
        EXPECT_NE(outcome.out.find(verb), std::string::npos) << verb;
    }
}

TEST_F(AdminToolTest, NoArgumentsOrUnknownVerbIsABadCommandLine) {
    EXPECT_EQ(Run({}).status, 2);
    const Outcome unknown = Run({"store", "frobnicate"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_NE(unknown.err.find("unknown command \"store frobnicate\""), std::string::npos);
}

TEST_F(AdminToolTest, WrongArgumentCountOrBadNumbersAreSaid) {
    const Outcome missing = Run({"store", "get-dword", "0"});
    EXPECT_EQ(missing.status, 2);
    EXPECT_NE(missing.err.find("takes SECTION KEY"), std::string::npos);
    const Outcome bad = Run({"store", "get-dword", "zero", "59"});
    EXPECT_EQ(bad.status, 2);
    EXPECT_NE(bad.err.find("numbers"), std::string::npos);
    EXPECT_EQ(Run({"store", "set-dword", "0", "59", "-1"}).status, 2);
    EXPECT_EQ(Run({"store", "set-dword", "0", "59", "4294967296"}).status, 2);
}

TEST_F(AdminToolTest, StoreWordsTextsAndEncipheredTextsRoundTrip) {
    EXPECT_EQ(Run({"store", "set-dword", "0", "59", "0x4"}).status, 0);
    EXPECT_EQ(Run({"store", "get-dword", "0", "59"}).out, "0x00000004 (4)\n");
    EXPECT_EQ(Run({"store", "set-text", "0", "1", "/usr/share/sounds/a b.wav"}).status, 0);
    EXPECT_EQ(Run({"store", "get-text", "0", "1"}).out, "/usr/share/sounds/a b.wav\n");
    EXPECT_EQ(Run({"store", "set-enc", "3", "9", "-"}, "s3cret word\n").status, 0);
    EXPECT_EQ(Run({"store", "get-enc", "3", "9"}).out, "s3cret word\n");
    const Outcome dump = Run({"store", "dump"});
    EXPECT_EQ(dump.status, 0);
    EXPECT_NE(dump.out.find("dword:00000004"), std::string::npos);
    EXPECT_EQ(dump.out.find("s3cret"), std::string::npos);
}

TEST_F(AdminToolTest, AbsentValuesAnswerOne) {
    EXPECT_EQ(Run({"store", "get-text", "0", "1"}).status, 1);
    EXPECT_EQ(Run({"store", "get-enc", "3", "9"}).status, 1);
    EXPECT_EQ(Run({"store", "get-list", "1"}).status, 1);
    EXPECT_EQ(Run({"registry", "get", "HKLM", "Software\\Nothing", "Debug"}).status, 1);
    EXPECT_EQ(Run({"journal"}).status, 1);
    EXPECT_EQ(Run({"zone"}).status, 1);
}

TEST_F(AdminToolTest, FactoryDefaultsAreRead) {
    install.Write("Q9CfgDef.dat",
                  "Q9 Configuration Store 1\n[CES_General]\nCEK_ProtectLevel=dword:00000002\n"
                  "CEK_AlertSound=\"ding.wav\"\n");
    EXPECT_EQ(Run({"store", "default-dword", "0", "59"}).out, "0x00000002 (2)\n");
    EXPECT_EQ(Run({"store", "default-text", "0", "1"}).out, "ding.wav\n");
    EXPECT_EQ(Run({"store", "get-dword", "0", "59"}).out, "0x00000002 (2)\n");
    EXPECT_NE(Run({"store", "dump"}).out.find("no live store yet"), std::string::npos);
}

TEST_F(AdminToolTest, ObjectListIsShownRecordByRecord) {
    install.Write("Q9Cfg.dat",
                  "Q9 Configuration Store 1\n[CES_Exclude]\nrecord=0,1,\"/home/a\"\n"
                  "record=1,1,\"/home/b.iso\"\n");
    EXPECT_EQ(Run({"store", "get-list", "1"}).out,
              "record=0,1,\"/home/a\"\nrecord=1,1,\"/home/b.iso\"\n");
}

TEST_F(AdminToolTest, RegistryValuesOfEachTypeRoundTrip) {
    const QString key = "Software\\Orvtek\\Q9CfgUL";
    EXPECT_EQ(Run({"registry", "set-dword", "HKLM", key, "Debug", "1"}).status, 0);
    EXPECT_EQ(Run({"registry", "get", "hklm", key, "debug"}).out, "0x00000001 (1)\n");
    EXPECT_EQ(
        Run({"registry", "set-text", "HKCU", "NetWork\\/mnt/s", "RemotePath", "//srv/s"}).status,
        0);
    EXPECT_EQ(Run({"registry", "get", "HKCU", "NetWork\\/mnt/s", "RemotePath"}).out, "//srv/s\n");
    const Outcome dump = Run({"registry", "dump", "HKLM"});
    EXPECT_NE(dump.out.find("\"Debug\"=dword:00000001"), std::string::npos);
    EXPECT_EQ(Run({"registry", "delete-value", "HKLM", key, "Debug"}).status, 0);
    EXPECT_EQ(Run({"registry", "get", "HKLM", key, "Debug"}).status, 1);
    EXPECT_EQ(Run({"registry", "get", "HKXX", key, "Debug"}).status, 2);
}

TEST_F(AdminToolTest, JournalAndZoneFilesArePrinted) {
    install.Write("Q9SSCtrl.journal", "Q9SSCtrl_Register\t32\t-\t1\n");
    EXPECT_EQ(Run({"journal"}).out, "Q9SSCtrl_Register\t32\t-\t1\n");
    install.Write("OrvDMZ.zone", "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x00000102,\"/x\"\n");
    EXPECT_NE(Run({"zone"}).out.find("[Q9Pro2004]"), std::string::npos);
}

// Which row excludes a path, through the command line: this product's and
// another product's zone records, the store's extensions, and a network
// drive's path met by its network path.
TEST_F(AdminToolTest, ExclusionsTestNamesTheRowItsKindAndItsOwner) {
    install.Write("Q9Cfg.dat",
                  "Q9 Configuration Store 1\n[CES_Exclude]\nCEK_ExcludeEnable=dword:00000001\n"
                  "CEK_ExcludeText=\"dmp/tmp\"\n");
    install.Write("OrvDMZ.zone",
                  "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x00000102,\"/data/cache\"\n"
                  "record=1,0x00000101,\"/data/keep.bin\"\n"
                  "record=1,0x00000122,\"//server/share/docs\"\n"
                  "[OtherProduct]\nrecord=1,0x00000002,\"/opt/other\"\n"
                  "record=1,0x00000002,\"//server/share/public\"\n");
    install.Write("mounts", "/dev/sda1 / ext4 rw 0 0\n//server/share /mnt/share cifs rw 0 0\n");
    qputenv("Q9_MOUNT_TABLE", QByteArray::fromStdString(install.PathOf("mounts")));

    const Outcome folder = Run({"exclusions", "test", "/data/cache/a/b.txt"});
    EXPECT_EQ(folder.status, 0);
    EXPECT_EQ(folder.out,
              "/data/cache/a/b.txt: excluded by the folder \"/data/cache\" (owner Q9Pro2004)\n");
    EXPECT_EQ(Run({"exclusions", "test", "/data/keep.bin"}).out,
              "/data/keep.bin: excluded by the file \"/data/keep.bin\" (owner Q9Pro2004)\n");
    EXPECT_EQ(Run({"exclusions", "test", "/home/u/core.DMP"}).out,
              "/home/u/core.DMP: excluded by the extension \"*.dmp\" (owner Q9Pro2004)\n");
    EXPECT_EQ(Run({"exclusions", "test", "/opt/other/x"}).out,
              "/opt/other/x: excluded by the folder \"/opt/other\" (owner OtherProduct)\n");
    EXPECT_EQ(Run({"exclusions", "test", "/mnt/share/public/a"}).out,
              "/mnt/share/public/a: excluded by the folder \"//server/share/public\" (owner "
              "OtherProduct) through the network path //server/share/public/a\n");
    // The derived network form of the product's own folder is not a row.
    EXPECT_EQ(Run({"exclusions", "test", "//server/share/docs/a"}).status, 1);
    const Outcome none = Run({"exclusions", "test", "/data/cachefiles"});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.out, "/data/cachefiles: not excluded\n");
    qunsetenv("Q9_MOUNT_TABLE");
}

TEST_F(AdminToolTest, ExclusionsOutOfForceExcludeNothingOfTheProducts) {
    install.Write("Q9Cfg.dat",
                  "Q9 Configuration Store 1\n[CES_Exclude]\nCEK_ExcludeEnable=dword:00000000\n"
                  "CEK_ExcludeText=\"dmp\"\n");
    install.Write("OrvDMZ.zone",
                  "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=0,0x00000102,\"/data/cache\"\n"
                  "[OtherProduct]\nrecord=1,0x00000002,\"/opt/other\"\n");
    EXPECT_EQ(Run({"exclusions", "test", "/data/cache/x"}).status, 1);
    EXPECT_EQ(Run({"exclusions", "test", "/x/core.dmp"}).status, 1);
    EXPECT_EQ(Run({"exclusions", "test", "/opt/other/x"}).status, 0);
    EXPECT_EQ(Run({"exclusions", "test"}).status, 2);
}

// The scheduled scans of both homes, each named by its section or job key,
// with the accounts told only as being set.
TEST_F(AdminToolTest, ScheduleListsBothHomesWithoutTheAccounts) {
    const QString job = "Software\\ORVTEK\\OrvSD\\Schedule\\Q9SScan0";
    ASSERT_EQ(Run({"registry", "set-dword", "HKLM", job, "On", "1"}).status, 0);
    ASSERT_EQ(Run({"registry", "set-dword", "HKLM", job, "Style", "6"}).status, 0);
    ASSERT_EQ(Run({"registry", "set-dword", "HKLM", "Software\\ORVTEK\\OrvSD\\Schedule\\Other",
                   "On", "1"})
                  .status,
              0);
    const QString section = "0x10000000";
    ASSERT_EQ(Run({"store", "set-dword", section, "32", "0"}).status, 0);
    ASSERT_EQ(Run({"store", "set-dword", section, "33", "6"}).status, 0);
    ASSERT_EQ(Run({"store", "set-text", section, "41", "%Q9%"}).status, 0);
    ASSERT_EQ(Run({"store", "set-enc", section, "50", "share-user"}).status, 0);
    const Outcome outcome = Run({"schedule"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out,
              "store:\n"
              "  section 0x10000000: off, Whenever the system starts, Local hard drives, "
              "network account set\n"
              "registry:\n"
              // The job's network account is that of its store section.
              "  Q9SScan0: on, Whenever the system starts, Local hard drives, network account "
              "set\n");
    EXPECT_EQ(outcome.out.find("share-user"), std::string::npos);
}

TEST_F(AdminToolTest, ScheduleSaysWhenAHomeHoldsNoScan) {
    const Outcome outcome = Run({"schedule"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "store: none\nregistry: none\n");
}
