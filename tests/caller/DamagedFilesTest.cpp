// Every data file a dialog session reads, damaged four ways: cut short,
// replaced by a picture's bytes, emptied, and grown past the size any reader
// takes in. Whole sessions run over each as a person would (boxes answered,
// OK pressed): the library does not crash, the file is named in the
// diagnostic log (on standard error for the hive that holds the log's own
// switch) and in a warning to the user, and the file is left byte for byte
// as it was. The level files and the spam rules, which no dialog reads yet,
// are held to the same in the tests of their readers.

#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "BoxAnswerer.h"
#include "CallerSessionTest.h"
#include "DialogDriver.h"
#include "q9cfgul.h"
#include "support/DamagedContent.h"
#include "support/StderrCapture.h"
#include "support/TemporaryRegistry.h"

namespace damaged_files_test {
namespace {

constexpr const char* kHives = "../hives";
constexpr const char* kDiagLog = "/tmp/q9cfgul.log";
constexpr const char* kLogSwitch =
    "Windows Registry Editor Version 5.00\n\n"
    "[HKEY_LOCAL_MACHINE\\Software\\Orvtek\\Q9CfgUL]\n"
    "\"Debug\"=dword:00000001\n";

struct DataFile {
    const char* name;  // relative to the installation directory
    std::string valid;
    std::size_t cutAt;
    int32_t page;  // the page of the configuration dialog that reads it
    bool holdsTheLogSwitch = false;
    // A profile has no first line, and its writer writes a profile without
    // values as an empty file: no bytes are a valid, empty profile.
    bool emptyIsValid = false;
};

const std::string kStore =
    "Q9 Configuration Store 1\n[CES_General]\nCEK_AlertSound=\"/usr/share/sounds/alert.wav\"\n";
const std::string kZone =
    "OrvDMZ Zone 1\n[OtherProduct]\nrecord=1,0x00000010,\"/opt/other/cache\"\n";
const std::string kProfile = "[Installed]\n0=1\n2=1\n";

std::vector<DataFile> Files() {
    return {
        {"Q9Cfg.dat", kStore, CutInside(kStore, "\"/usr/share"), 16},
        {"OrvDMZ.zone", kZone, CutInside(kZone, "\"/opt/other"), 16},
        {"Q9IMcfg.ini", kProfile, CutInside(kProfile, "[Installed]"), 24, false, true},
        {"../hives/HKLM.reg", kLogSwitch, CutInside(kLogSwitch, "[HKEY_LOCAL_MACHINE"), 16, true},
    };
}

class DamagedFilesTest : public CallerSessionTest {
protected:
    void SetUp() override {
        StartCaller({"Q9SSCtrl", "OrvDMZ", "Q9IMcfg"});
        std::filesystem::create_directories(caller->install.PathOf(kHives));
    }

    // Runs the configuration dialog on the page of file and presses OK (and
    // Cancel when a store that cannot be written holds the dialog open); the
    // texts of the boxes shown.
    std::vector<std::string> RunSession(const DataFile& file) {
        BoxAnswerer boxes;
        DialogDriver driver([](QDialog* dialog) {
            DialogDriver::Find<QPushButton>(dialog, 1)->click();
            if (dialog->isVisible()) dialog->reject();
        });
        int32_t page = file.page;
        doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, &page, nullptr, nullptr);
        EXPECT_TRUE(driver.Done());
        std::vector<std::string> texts;
        for (const Box& box : boxes.boxes) texts.push_back(box.text.toStdString());
        return texts;
    }

    void ExpectDamageHandled(const DataFile& file, Damage damage) {
        SCOPED_TRACE(std::string(file.name) + ", " + NameOf(damage));
        if (!file.holdsTheLogSwitch)
            caller->install.Write(std::string(kHives) + "/HKLM.reg", kLogSwitch);
        const std::string content = Damaged(file.valid, file.cutAt, damage);
        caller->install.Write(file.name, content);
        const std::string path =
            std::filesystem::weakly_canonical(caller->install.PathOf(file.name)).string();
        const std::size_t logBefore = TemporaryRegistry::ReadFile(kDiagLog).size();

        StderrCapture errors;
        const std::vector<std::string> boxes = RunSession(file);
        const std::string reported = file.holdsTheLogSwitch
                                         ? errors.Text()
                                         : TemporaryRegistry::ReadFile(kDiagLog).substr(logBefore);

        EXPECT_TRUE(caller->install.Read(file.name) == content) << "the file is left as it was";
        const auto told = std::find_if(boxes.begin(), boxes.end(), [&](const std::string& text) {
            return text.starts_with("These settings files cannot be read") &&
                   text.find(path) != std::string::npos;
        });
        if (damage == Damage::kEmpty && file.emptyIsValid) {
            EXPECT_EQ(told, boxes.end()) << "an empty profile is a profile without values";
            return;
        }
        EXPECT_NE(reported.find(path), std::string::npos)
            << "the file is named in the " << (file.holdsTheLogSwitch ? "errors" : "log") << ":\n"
            << reported;
        EXPECT_NE(told, boxes.end()) << "the user is told of " << path;
    }
};

}  // namespace

TEST_F(DamagedFilesTest, EveryDataFileDamagedAnyWayIsReportedToldAndKept) {
    for (const DataFile& file : Files()) {
        for (Damage damage : kEveryDamage) {
            ExpectDamageHandled(file, damage);
            caller->install.Write(file.name, file.valid);
        }
    }
}

}  // namespace damaged_files_test
