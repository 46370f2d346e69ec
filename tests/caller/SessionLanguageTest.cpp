// A session switches the user's language in through the language library and
// out again when it ends.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QPushButton>
#include <filesystem>

#include "BoxAnswerer.h"
#include "DialogDriver.h"
#include "q9cfgul.h"
#include "CallerInstallation.h"
#include "support/LocaleEnvironment.h"
#include "support/TestPaths.h"

namespace {

using MsgBoxFn = int32_t(int32_t, uint32_t);

// An installation with the language library and a German translation.
void AddGermanTranslation(const TemporaryInstallation& install) {
    std::filesystem::create_directories(install.PathOf("Lang"));
    std::filesystem::copy_file(TestPath("translations") + "/Q9CU_1031.qm", install.PathOf("Lang/Q9CU_1031.qm"));
}

}  // namespace

TEST(SessionLanguage, GermanUserSeesGermanTextsDuringTheSessionOnly) {
    LocaleEnvironment locale;
    locale.UseLocale("de_DE.UTF-8");
    CallerInstallation caller({"OrvI18N"});
    AddGermanTranslation(caller.install);
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    BoxAnswerer answerer;
    EXPECT_EQ(caller.Entry<MsgBoxFn>("Q9CfgUL_MsgBox")(0, 0), 1);
    ASSERT_EQ(answerer.boxes.size(), 1u);
    EXPECT_EQ(answerer.boxes[0].title, "Warnung");
    // The translation is gone with the session.
    EXPECT_EQ(QCoreApplication::translate("StringTable", "Warning"), "Warning");
}

TEST(SessionLanguage, WithoutTheLanguageLibraryTheLibrarysOwnTextsAreUsed) {
    LocaleEnvironment locale;
    locale.UseLocale("de_DE.UTF-8");
    CallerInstallation caller;
    AddGermanTranslation(caller.install);
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    BoxAnswerer answerer;
    EXPECT_EQ(caller.Entry<MsgBoxFn>("Q9CfgUL_MsgBox")(0, 0), 1);
    ASSERT_EQ(answerer.boxes.size(), 1u);
    EXPECT_EQ(answerer.boxes[0].title, "Warning");
}

TEST(SessionLanguage, GermanUserSeesTheConfigurationDialogInGerman) {
    LocaleEnvironment locale;
    locale.UseLocale("de_DE.UTF-8");
    CallerInstallation caller({"OrvI18N", "Q9SSCtrl"});
    caller.install.Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
    AddGermanTranslation(caller.install);
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    QString cancel;
    QString monitor;
    QString title;
    DialogDriver driver([&](QDialog* dialog) {
        title = dialog->windowTitle();
        monitor = DialogDriver::Find<QCheckBox>(dialog, 1005)->text();
        auto* button = DialogDriver::Find<QPushButton>(dialog, 2);
        cancel = button->text();
        button->click();
    });
    using DoModalFn = int32_t(uint64_t, uint32_t, int32_t*, const char*, const char*);
    int32_t page = 0;
    EXPECT_EQ(caller.Entry<DoModalFn>("Q9CfgUL_DoModal")(0, DMF_NoAuthenticate, &page, nullptr,
                                                         nullptr),
              2);
    EXPECT_EQ(title, "Konfiguration");
    EXPECT_EQ(monitor, "Systemüberwachung");
    EXPECT_EQ(cancel, "Abbrechen");
}
