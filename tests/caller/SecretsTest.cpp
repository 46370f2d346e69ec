// Secrets across whole sessions, with the diagnostic log switched on: the
// product's password set on the security page, the run-as and network
// accounts of a scheduled scan, an enciphered value brought in by a silent
// policy and recorded in the policy history. Afterwards no file of the
// installation, of its registry or the diagnostic log holds any of them in
// clear, nor does the registration journal, and every file that holds one
// enciphered or scrambled is its owner's only.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>
#include <filesystem>
#include <string>
#include <vector>

#include "BoxAnswerer.h"
#include "CallerSessionTest.h"
#include "DialogDriver.h"
#include "Q9CfgE.h"
#include "ScheduleSteps.h"
#include "q9cfgul.h"
#include "support/TemporaryRegistry.h"

namespace secrets_test {
namespace {

namespace fs = std::filesystem;

constexpr int32_t kSecurityPage = 17;
constexpr const char* kHives = "../hives";
constexpr const char* kDiagLog = "/tmp/q9cfgul.log";

const std::vector<std::string> kSecrets = {"Product-Pw-4711", "Run-As-Pw-0815", "Share-Pw-2342",
                                           "Policy-Pw-1337"};

bool HoldsASecretEnciphered(const std::string& text, const fs::path& path) {
    return text.find("enc:") != std::string::npos || text.find("\"AI\"=") != std::string::npos ||
           path.filename() == "q9install.key";
}

mode_t ModeOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 0777;
}

class SecretsTest : public CallerSessionTest {
protected:
    void SetUp() override {
        StartCaller({"Q9SSCtrl", "OrvDMZ"});
        fs::create_directories(caller->install.PathOf(kHives));
        caller->install.Write(std::string(kHives) + "/HKLM.reg",
                              "Windows Registry Editor Version 5.00\n\n"
                              "[HKEY_LOCAL_MACHINE\\Software\\Orvtek\\Q9CfgUL]\n"
                              "\"Debug\"=dword:00000001\n");
        m_logBefore = TemporaryRegistry::ReadFile(kDiagLog).size();
    }

    void SetProductPassword() {
        DialogDriver driver([](QDialog* dialog) {
            DialogDriver::Find<QCheckBox>(dialog, 1002)->click();
            QTest::keyClicks(DialogDriver::Find<QLineEdit>(dialog, 1021), kSecrets[0].c_str());
            QTest::keyClicks(DialogDriver::Find<QLineEdit>(dialog, 1022), kSecrets[0].c_str());
            DialogDriver::Find<QPushButton>(dialog, 1)->click();
        });
        int32_t page = kSecurityPage;
        EXPECT_EQ(doModal(0, DMF_ModeSinglePage | DMF_NoAuthenticate, &page, nullptr, nullptr), 1);
        EXPECT_TRUE(driver.Done());
    }

    void AddScheduleWithAccounts() {
        BoxAnswerer boxes;
        DialogDriver driver([](QDialog* dialog) {
            schedule_steps::AddScanWithAccounts(dialog,
                                                {"runner", kSecrets[1], "share", kSecrets[2]});
            schedule_steps::Click(dialog, 1);
        });
        int32_t page = schedule_steps::kSchedulePage;
        EXPECT_EQ(doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, &page, nullptr, nullptr), 1);
        EXPECT_TRUE(driver.Done());
        EXPECT_TRUE(boxes.boxes.empty());
    }

    // A policy that sets a new product password, applied silently to the
    // live store, so that the history keeps a copy of the store.
    void ApplyPolicyWithAPassword() {
        const std::string policy = caller->install.PathOf("policy.dat");
        Q9CfgE_SetStyleEx(257, policy.c_str(), 0);
        ASSERT_EQ(Q9CfgE_SetEncStrEx(3, 9, kSecrets[3].c_str()), 1);
        Q9CfgE_SetStyleEx(257, "", 0);
        const std::string base = caller->install.PathOf("Q9Cfg.dat");
        EXPECT_EQ(doModal(0, DMF_Silent, nullptr, base.c_str(), policy.c_str()), 1);
        fs::remove(policy);
    }

    // Every regular file of the installation and of its registry folder.
    std::vector<fs::path> Files() const {
        std::vector<fs::path> files;
        for (const char* root : {".", kHives}) {
            for (const auto& entry :
                 fs::recursive_directory_iterator(caller->install.PathOf(root))) {
                if (entry.is_regular_file() && entry.path().extension() != ".so") {
                    files.push_back(entry.path());
                }
            }
        }
        return files;
    }

    // No file holds a secret in clear; at least minimum files hold one
    // enciphered or scrambled, each readable by its owner only.
    void ExpectNoSecretInClear(int minimum) const {
        int enciphered = 0;
        for (const fs::path& path : Files()) {
            const std::string text = TemporaryRegistry::ReadFile(path.string());
            for (const std::string& secret : kSecrets) {
                EXPECT_EQ(text.find(secret), std::string::npos) << secret << " in " << path;
            }
            if (HoldsASecretEnciphered(text, path)) {
                ++enciphered;
                EXPECT_EQ(ModeOf(path), 0600u) << path;
            }
        }
        EXPECT_GE(enciphered, minimum);
    }

    std::size_t m_logBefore = 0;
};

}  // namespace

TEST_F(SecretsTest, NoSecretStandsInClearAnywhereAndEveryFileHoldingOneIsTheOwnersOnly) {
    SetProductPassword();
    AddScheduleWithAccounts();
    // The store, the hive with the run-as account, the key.
    ExpectNoSecretInClear(3);
    // The policy rebuilds the job keys from the store, which does not keep
    // the run-as account; the history keeps a copy of the store.
    ApplyPolicyWithAPassword();
    ExpectNoSecretInClear(3);

    const std::string log = TemporaryRegistry::ReadFile(kDiagLog).substr(m_logBefore);
    EXPECT_NE(log.find("After DMZ"), std::string::npos) << "the log was on";
    const std::string journal = caller->install.Read("Q9SSCtrl.journal");
    EXPECT_FALSE(journal.empty());
    for (const std::string& secret : kSecrets) {
        EXPECT_EQ(log.find(secret), std::string::npos) << secret;
        EXPECT_EQ(journal.find(secret), std::string::npos) << secret;
    }
}

}  // namespace secrets_test
