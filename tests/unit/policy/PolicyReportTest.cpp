// The dry run's report as text and as JSON: names of the key table, values
// old and new, secrets only as changed.

#include "policy/PolicyReport.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "options/StoreKeyNames.h"
#include "options/StoreKeys.h"

namespace {

PolicyPlan SamplePlan() {
    PolicyPlan plan;
    plan.target = "/opt/q9/OrvIni.dat";
    plan.merge = MergeOutcome::kMerged;
    plan.zoneAvailable = true;
    plan.values = {
        {"/opt/q9/OrvIni.dat", CES_SystemScan, CEK_ScanArchive, SnapshotValue{"dword:00000003", false},
         SnapshotValue{"dword:00000007", false}},
        {"/opt/q9/OrvIni.dat", CES_Authorization, CEK_AuthPassword,
         SnapshotValue{"0f3a-digest", true}, SnapshotValue{"77be-digest", true}},
        {"/opt/q9/OrvIni.dat", CES_Exclude, kObjectListKey, std::nullopt,
         SnapshotValue{"record=0,1,\"/srv/cache\"", false}}};
    plan.functions = {{112, FunctionAction::kRegister},
                      {1, FunctionAction::kStop},
                      {144, FunctionAction::kCannotRegister}};
    plan.zone = {{true, {1, 0x102, "Q9Pro2004", "/srv/cache"}},
                 {false, {1, 0x101, "Q9Pro2004", "/srv/old.iso"}}};
    ScheduleJob job;
    job.name = "Q9SScan0";
    job.commandLine = "\"/opt/q9/q9medic\" /o:10000000";
    plan.jobs = {{"Q9SScan0", false, true, job}, {"Q9SScan7", true, false, {}}};
    return plan;
}

}  // namespace

TEST(PolicyReportTest, TextNamesEveryChangeAndHidesSecrets) {
    const std::string text = PlanText(SamplePlan(), "/tmp/policy.dat");
    EXPECT_EQ(text,
              "Merge: /tmp/policy.dat into /opt/q9/OrvIni.dat\n"
              "Values:\n"
              "  /opt/q9/OrvIni.dat: CES_SystemScan, CEK_ScanArchive: dword:00000003 -> dword:00000007\n"
              "  /opt/q9/OrvIni.dat: CES_Authorization, CEK_AuthPassword: enciphered value changed\n"
              "  /opt/q9/OrvIni.dat: CES_Exclude, object list: (absent) -> record=0,1,\"/srv/cache\"\n"
              "Functions:\n"
              "  register: SSCT_TRAY (112)\n"
              "  stop: SSCT_Q9BAR (1)\n"
              "  cannot register, switch bit cleared: SSCT_MESSENGER (144)\n"
              "Exclusion zone:\n"
              "  add /srv/cache (folder, in use)\n"
              "  remove /srv/old.iso (file, in use)\n"
              "Scheduled scans:\n"
              "  write Q9SScan0 (\"/opt/q9/q9medic\" /o:10000000), its run-as account goes\n"
              "  remove Q9SScan7\n"
              "Something would change.\n");
    EXPECT_EQ(text.find("digest"), std::string::npos);
}

TEST(PolicyReportTest, AnEmptyPlanSaysNothingWouldChange) {
    PolicyPlan plan;
    plan.zoneAvailable = true;
    EXPECT_EQ(PlanText(plan, ""), "No policy file: nothing is merged.\nNothing would change.\n");
    plan.zoneAvailable = false;
    plan.merge = MergeOutcome::kNoValues;
    EXPECT_EQ(PlanText(plan, "/tmp/empty.dat"),
              "Not merged: /tmp/empty.dat holds no value to merge (it is empty or no store file).\n"
              "Exclusion zone: no zone library, the zone is left alone.\n"
              "Nothing would change.\n");
}

TEST(PolicyReportTest, JsonCarriesTheSameAndHidesSecrets) {
    const std::string json = PlanJson(SamplePlan(), "/tmp/policy.dat");
    EXPECT_EQ(json.find("digest"), std::string::npos);
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
    EXPECT_EQ(object["merge"].toString(), "merged");
    EXPECT_TRUE(object["changes"].toBool());
    const QJsonArray values = object["values"].toArray();
    ASSERT_EQ(values.size(), 3);
    EXPECT_EQ(values[0].toObject()["section"].toString(), "CES_SystemScan");
    EXPECT_EQ(values[0].toObject()["key"].toString(), "CEK_ScanArchive");
    EXPECT_EQ(values[0].toObject()["after"].toString(), "dword:00000007");
    EXPECT_TRUE(values[1].toObject()["secret"].toBool());
    EXPECT_EQ(values[1].toObject()["after"].toString(), "(enciphered)");
    EXPECT_TRUE(values[2].toObject()["before"].isNull());
    EXPECT_EQ(object["functions"].toArray()[0].toObject()["name"].toString(), "SSCT_TRAY");
    EXPECT_EQ(object["zone"].toArray()[1].toObject()["action"].toString(), "remove");
    EXPECT_TRUE(object["schedule"].toArray()[0].toObject()["losesAccount"].toBool());
}

TEST(StoreKeyNamesTest, NamesSectionsAndKeysOfTheTableAndNumbersTheRest) {
    EXPECT_EQ(StoreSectionName(CES_General), "CES_General");
    EXPECT_EQ(StoreSectionName(CES_PortBlock), "CES_PortBlock");
    EXPECT_EQ(StoreSectionName(CES_ScheduleDefault), "CES_ScheduleDefault");
    EXPECT_EQ(StoreSectionName(ScheduleSection(12)), "schedule entry 12");
    EXPECT_EQ(StoreSectionName(10), "0xa");
    EXPECT_EQ(StoreKeyName(CEK_GeneralOptions), "CEK_GeneralOptions");
    EXPECT_EQ(StoreKeyName(CEK_PortBlockLogLimit), "CEK_PortBlockLogLimit");
    EXPECT_EQ(StoreKeyName(kObjectListKey), "object list");
    EXPECT_EQ(StoreKeyName(17), "17");
}
