// The "Other Configurations" page against the built Q9SSCtrl: what it shows,
// which fields it checks and how, the bits it saves, the tray icon's
// registration, and the alert sound's file chooser and Play.

#include <Q9CfgE.h>

#include <QApplication>
#include <QFileDialog>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "controls/IconStatic.h"
#include "controls/NumberSpin.h"
#include "framework/DialogControls.h"
#include "framework/ImageList.h"
#include "options/StoreKeys.h"
#include "pages/general/OtherConfigPage.h"
#include "q9cfgul.h"
#include "session/SiblingLibs.h"
#include "support/LocaleEnvironment.h"
#include "support/ScopedVariable.h"
#include "support/WaveFile.h"
#include "text/MessageService.h"

namespace other_config_test {
namespace {

constexpr int kHomeAlarm = 1126;
constexpr int kTray = 1076;
constexpr int kProductEvents = 1000;
constexpr int kUpdateEvents = 1127;
constexpr int kWarningEvents = 1128;
constexpr int kSound = 1004;
constexpr int kSoundPath = 1005;
constexpr int kBrowse = 1006;
constexpr int kPlay = 1007;
constexpr int kSaveScanLogs = 1015;
constexpr int kScanLogSpace = 1016;
constexpr int kScanLogSize = 1010;
constexpr int kScanLogSpin = 1009;
constexpr int kEventLogSpace = 1017;
constexpr int kEventLogCount = 1011;
constexpr int kEventLogSpin = 1012;
constexpr int kBackupSpace = 1018;
constexpr int kBackupSize = 1013;
constexpr int kBackupSpin = 1014;

constexpr int32_t kTrayCode = 112;
constexpr uint32_t kTrayBit = 0x100000;

// The three number fields and the store keys they edit.
struct NumberField {
    int field;
    int spin;
    int box;
    uint32_t key;
};
constexpr NumberField kNumberFields[] = {
    {kScanLogSize, kScanLogSpin, kScanLogSpace, CEK_ScanLogSize},
    {kEventLogCount, kEventLogSpin, kEventLogSpace, CEK_EventLogCount},
    {kBackupSize, kBackupSpin, kBackupSpace, CEK_BackupSize},
};

const std::string kRangeText = "Please enter the values between 512 ~ 4,194,303.";
const std::string kNoFileText = "No file exists.";
const std::string kLengthText =
    "The number of words exceeds allowable length.\nPlease enter less than 255 words.";

class OtherConfigPageTest : public SwitchPageTest {
protected:
    COtherConfigPage* Make(uint32_t flags = 0) { return MakePage<COtherConfigPage>(flags); }

    // A page whose values all pass: the sound box on with an existing file.
    COtherConfigPage* MakeValid() {
        SetWord(CES_General, CEK_GeneralOptions, 0x4);
        const std::string wave = SoundFile();
        Q9CfgE_SetStrEx(CES_General, CEK_AlertSound, wave.c_str());
        return Make();
    }

    std::string SoundFile() const {
        Install().Write("alert.wav", SilentWave());
        return Install().PathOf("alert.wav");
    }

    static QLineEdit* Field(COtherConfigPage* page, int id) {
        return qobject_cast<QLineEdit*>(ctl::Find(page, id));
    }
    static void Type(COtherConfigPage* page, int id, const QString& text) {
        QLineEdit* field = Field(page, id);
        field->clear();
        QTest::keyClicks(field, text);
    }
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const RecordedMessage& message : m_messages.messages) texts.push_back(message.text);
        return texts;
    }
};

// --- First display ----------------------------------------------------------

TEST_F(OtherConfigPageTest, TemplateHasEveryControlWithItsCaption) {
    COtherConfigPage* page = Make();
    EXPECT_EQ(ctl::GetText(page, kHomeAlarm), "Display an urgent alarm on the Home screen");
    EXPECT_EQ(ctl::GetText(page, kTray), "Display an alert icon at the task tray ");
    EXPECT_EQ(ctl::GetText(page, kUpdateEvents), "Show swift update event messages");
    EXPECT_EQ(ctl::GetText(page, kWarningEvents), "Show security warning messages");
    EXPECT_EQ(ctl::GetText(page, kSound),
              "By emitting an alert sound whenever a virus is detected");
    EXPECT_EQ(ctl::GetText(page, kBrowse), "...");
    EXPECT_EQ(ctl::GetText(page, kPlay), "Play");
    EXPECT_EQ(ctl::GetText(page, kSaveScanLogs), "Save the scan logs");
    EXPECT_EQ(ctl::GetText(page, kScanLogSpace), "Space to save scan logs ");
    EXPECT_EQ(ctl::GetText(page, kEventLogSpace), "Space to save event logs");
    EXPECT_EQ(ctl::GetText(page, kBackupSpace), "Space to save backup folders ");
    EXPECT_EQ(Field(page, kSoundPath)->maxLength(), 260);
    EXPECT_EQ(page->size(), QSize(484, 390));
}

TEST_F(OtherConfigPageTest, ProductEventsNameTheProductOfTheInstallation) {
    // Without the secure profile library the name is empty, as every text
    // of a missing library is.
    EXPECT_EQ(ctl::GetText(Make(), kProductEvents), "Show  event messages");
    AddSibling("OrvInst");
    // A profile without a name gives the product's own.
    Install().Write("Q9Sec.dat", "IsLight=0\n");
    EXPECT_EQ(ctl::GetText(Make(), kProductEvents), "Show Q9Pro 2004 event messages");
    Install().Write("Q9Sec.dat", "ProductName=Q9 Shield\n");
    EXPECT_EQ(ctl::GetText(Make(), kProductEvents), "Show Q9 Shield event messages");
    // The master edition names itself, whatever the profile says.
    EXPECT_EQ(ctl::GetText(Make(DMF_Master), kProductEvents),
              "Show Q9Pro 2004 Master event messages");
}

TEST_F(OtherConfigPageTest, EveryNumberFieldTakes512UpTo4194303) {
    COtherConfigPage* page = Make();
    for (const NumberField& number : kNumberFields) {
        auto* spin = qobject_cast<CNumberSpin*>(ctl::Find(page, number.spin));
        ASSERT_NE(spin, nullptr) << number.spin;
        EXPECT_EQ(spin->GetBuddy(), Field(page, number.field)) << number.spin;
        int32_t low = 0;
        int32_t high = 0;
        spin->GetRange32(low, high);
        EXPECT_EQ(low, 512) << number.spin;
        EXPECT_EQ(high, 4194303) << number.spin;
    }
}

TEST_F(OtherConfigPageTest, TheUrgentAlarmIsNotOfferedInUsEnglish) {
    AddSibling("OrvI18N");
    LocaleEnvironment locale;
    locale.UseLocale("en_US.UTF-8");
    EXPECT_FALSE(IsEnabled(Make(), kHomeAlarm));
    locale.UseLocale("de_DE.UTF-8");
    EXPECT_TRUE(IsEnabled(Make(), kHomeAlarm));
    locale.UseLocale("en_GB.UTF-8");
    EXPECT_TRUE(IsEnabled(Make(), kHomeAlarm));
}

TEST_F(OtherConfigPageTest, SetIconsGivesTheAlertAndTheRecordsPictures) {
    COtherConfigPage* page = Make();
    const ImageList icons = ImageList::PageIcons();
    page->SetIcons(&icons);
    const auto* alert = qobject_cast<CIconStatic*>(ctl::Find(page, 1056));
    const auto* records = qobject_cast<CIconStatic*>(ctl::Find(page, 1065));
    ASSERT_NE(alert, nullptr);
    ASSERT_NE(records, nullptr);
    EXPECT_EQ(alert->Index(), 17);
    EXPECT_EQ(records->Index(), 1);
}

// --- Load and the enable rules ------------------------------------------------

TEST_F(OtherConfigPageTest, LoadShowsTheStoredValues) {
    SetWord(CES_General, CEK_GeneralOptions, 0x1 | 0x4 | 0x20);
    SetWord(CES_General, CEK_EventOptions, 0x2);
    SetWord(CES_General, CEK_HomeAlarm, 1);
    SetWord(CES_General, CEK_ScanLogSize, 2048);
    SetWord(CES_General, CEK_EventLogCount, 1000);
    SetWord(CES_General, CEK_BackupSize, 102400);
    Q9CfgE_SetStrEx(CES_General, CEK_AlertSound, "/home/user/alarm.wav");
    COtherConfigPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kHomeAlarm));
    EXPECT_TRUE(IsChecked(page, kSaveScanLogs));
    EXPECT_TRUE(IsChecked(page, kSound));
    EXPECT_FALSE(IsChecked(page, kScanLogSpace));
    EXPECT_TRUE(IsChecked(page, kEventLogSpace));
    EXPECT_FALSE(IsChecked(page, kBackupSpace));
    EXPECT_FALSE(IsChecked(page, kProductEvents));
    EXPECT_TRUE(IsChecked(page, kUpdateEvents));
    EXPECT_FALSE(IsChecked(page, kWarningEvents));
    EXPECT_EQ(ctl::GetText(page, kScanLogSize), "2,048");
    EXPECT_EQ(ctl::GetText(page, kEventLogCount), "1,000");
    EXPECT_EQ(ctl::GetText(page, kBackupSize), "102,400");
    EXPECT_EQ(ctl::GetText(page, kSoundPath), "/home/user/alarm.wav");
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(OtherConfigPageTest, ANumberBelowTheRangeIsShownAsItsLowEnd) {
    SetWord(CES_General, CEK_ScanLogSize, 100);
    EXPECT_EQ(ctl::GetText(Make(), kScanLogSize), "512");
}

TEST_F(OtherConfigPageTest, TheTrayBoxFollowsTheRegistrationNotTheStoredBit) {
    SetWord(CES_Switch, CEK_Switch_General, kTrayBit);
    EXPECT_FALSE(IsChecked(Make(), kTray));
    SetWord(CES_Switch, CEK_Switch_General, 0);
    SetRegistered({kTrayCode});
    EXPECT_TRUE(IsChecked(Make(), kTray));
    const std::vector<std::string> asked = CallsOf("Q9SSCtrl_IsRegistered");
    ASSERT_FALSE(asked.empty());
    EXPECT_EQ(asked.back(), "112\t-\t1");
}

TEST_F(OtherConfigPageTest, EachBoxEnablesTheRestOfItsRow) {
    SetWord(CES_General, CEK_GeneralOptions, 0);
    COtherConfigPage* page = Make();
    const std::vector<std::pair<int, std::vector<int>>> rows = {
        {kTray, {kProductEvents, kUpdateEvents, kWarningEvents}},
        {kSound, {kSoundPath, kBrowse, kPlay}},
        {kScanLogSpace, {kScanLogSize, kScanLogSpin}},
        {kEventLogSpace, {kEventLogCount, kEventLogSpin}},
        {kBackupSpace, {kBackupSize, kBackupSpin}},
    };
    for (const auto& [box, dependents] : rows) {
        for (int dependent : dependents) EXPECT_FALSE(IsEnabled(page, dependent)) << dependent;
        Click(page, box);
        for (int dependent : dependents) EXPECT_TRUE(IsEnabled(page, dependent)) << dependent;
    }
    // Unchecking the tray box disables the three "Show" boxes again.
    Click(page, kTray);
    for (int id : {kProductEvents, kUpdateEvents, kWarningEvents})
        EXPECT_FALSE(IsEnabled(page, id));
    EXPECT_TRUE(IsEnabled(page, kHomeAlarm));
    EXPECT_TRUE(IsEnabled(page, kSaveScanLogs));
}

// --- What marks the page ----------------------------------------------------------

TEST_F(OtherConfigPageTest, ClicksAndTypingMarkThePageButOnlyTheTrayNeedsApply) {
    for (int id : {kHomeAlarm, kProductEvents, kUpdateEvents, kWarningEvents, kSound, kSaveScanLogs,
                   kScanLogSpace, kEventLogSpace, kBackupSpace}) {
        SetWord(CES_General, CEK_GeneralOptions, 0x74);
        SetRegistered({kTrayCode});
        COtherConfigPage* page = Make();
        Click(page, id);
        EXPECT_EQ(page->IsModified(), 1) << id;
        EXPECT_EQ(page->NeedApply(), 0) << id;
        delete page;
    }
    for (int id : {kSoundPath, kScanLogSize, kEventLogCount, kBackupSize}) {
        SetWord(CES_General, CEK_GeneralOptions, 0x74);
        COtherConfigPage* page = Make();
        QTest::keyClicks(Field(page, id), "1");
        EXPECT_EQ(page->IsModified(), 1) << id;
        EXPECT_EQ(page->NeedApply(), 0) << id;
        delete page;
    }
    COtherConfigPage* page = Make();
    Click(page, kTray);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(OtherConfigPageTest, ClearingTheTrayBoxInTheNormalEditionShowsNoWarning) {
    SetRegistered({kTrayCode});
    COtherConfigPage* page = Make();
    Click(page, kTray);
    EXPECT_FALSE(IsChecked(page, kTray));
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(OtherConfigPageTest, ClearingTheTrayBoxInTheMasterEditionWarnsOfTheLostMessages) {
    SetRegistered({kTrayCode});
    COtherConfigPage* page = Make(DMF_Master);
    Click(page, kTray);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text,
              "If you disable this option, all the alert messages from the tray icon cannot be "
              "viewed.");
    EXPECT_EQ(m_messages.messages[0].caption, "Information");
    EXPECT_FALSE(IsChecked(page, kTray));
    // Checking it again says nothing.
    Click(page, kTray);
    EXPECT_EQ(m_messages.messages.size(), 1U);
}

// --- Validate ---------------------------------------------------------------------

TEST_F(OtherConfigPageTest, NumbersAreCheckedWhateverTheirBoxesAndTheSoundBoxSay) {
    for (const NumberField& number : kNumberFields) {
        SetWord(CES_General, CEK_GeneralOptions, 0);
        COtherConfigPage* page = Make();
        ASSERT_FALSE(IsEnabled(page, number.field));
        Field(page, number.field)->setText("100");
        EXPECT_EQ(page->Validate(), 1) << number.field;
        ASSERT_EQ(m_messages.messages.size(), 1U) << number.field;
        EXPECT_EQ(m_messages.messages[0].text, kRangeText);
        EXPECT_EQ(m_messages.messages[0].caption, "Configuration Error");
        m_messages.messages.clear();
        delete page;
    }
}

TEST_F(OtherConfigPageTest, TheRangeEndsPassAndTheNumbersBeyondThemDoNot) {
    for (const NumberField& number : kNumberFields) {
        COtherConfigPage* page = MakeValid();
        for (const char* text : {"512", "4,194,303", "4194303"}) {
            Field(page, number.field)->setText(text);
            EXPECT_EQ(page->Validate(), 0) << number.field << " " << text;
        }
        for (const char* text : {"511", "4,194,304", "4194304"}) {
            Field(page, number.field)->setText(text);
            EXPECT_EQ(page->Validate(), 1) << number.field << " " << text;
        }
        Field(page, number.field)->setText("512");
        delete page;
    }
    EXPECT_EQ(Texts(), std::vector<std::string>(9, kRangeText));
}

TEST_F(OtherConfigPageTest, AnEmptySoundPathWithTheSoundOnIsNoFile) {
    SetWord(CES_General, CEK_GeneralOptions, 0x4);
    COtherConfigPage* page = Make();
    ASSERT_TRUE(IsChecked(page, kSound));
    ASSERT_EQ(ctl::GetText(page, kSoundPath), "");
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kNoFileText);
    EXPECT_EQ(m_messages.messages[0].caption, "Configuration Error");
}

TEST_F(OtherConfigPageTest, TheSoundPathMustNameAFileOfAtMost255Characters) {
    COtherConfigPage* page = MakeValid();
    EXPECT_EQ(page->Validate(), 0);
    Field(page, kSoundPath)->setText(QString::fromStdString(Install().Directory()));
    EXPECT_EQ(page->Validate(), 1);
    Field(page, kSoundPath)->setText(QString::fromStdString(Install().PathOf("missing.wav")));
    EXPECT_EQ(page->Validate(), 1);
    Field(page, kSoundPath)->setText(QString(256, 'a'));
    EXPECT_EQ(page->Validate(), 1);
    EXPECT_EQ(Texts(), (std::vector<std::string>{kNoFileText, kNoFileText, kLengthText}));
}

TEST_F(OtherConfigPageTest, WithTheSoundOffAnyPathPasses) {
    COtherConfigPage* page = MakeValid();
    Click(page, kSound);
    for (const QString& path : {QString(), QString("/no/such/file.wav"), QString(256, 'a')}) {
        Field(page, kSoundPath)->setText(path);
        EXPECT_EQ(page->Validate(), 0) << path.toStdString();
    }
    EXPECT_TRUE(m_messages.messages.empty());
}

// --- Save, Default and Apply ----------------------------------------------------

TEST_F(OtherConfigPageTest, SaveWritesEachValueAndKeepsTheBitsOfOthers) {
    SetWord(CES_General, CEK_GeneralOptions, 0xFF00 | 0x1);
    SetWord(CES_General, CEK_EventOptions, 0xF0 | 0x1);
    SetWord(CES_General, CEK_HomeAlarm, 0);
    SetWord(CES_Switch, CEK_Switch_General, 0x200000);
    SetWord(CES_Switch, CEK_Switch_GeneralMask, 0x100000);
    COtherConfigPage* page = Make();
    for (int id : {kHomeAlarm, kTray, kUpdateEvents, kSaveScanLogs, kScanLogSpace, kBackupSpace})
        Click(page, id);
    Field(page, kScanLogSize)->setText("4,096");
    Field(page, kEventLogCount)->setText("600");
    Field(page, kBackupSize)->setText("1,000,000");
    Field(page, kSoundPath)->setText("/sounds/virus.wav");
    page->Save();
    EXPECT_EQ(Word(CES_General, CEK_GeneralOptions), 0xFF00U | 0x10 | 0x40);
    // The event word is made of its three bits alone.
    EXPECT_EQ(Word(CES_General, CEK_EventOptions), 0x1U | 0x2);
    EXPECT_EQ(Word(CES_General, CEK_HomeAlarm), 1U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_General), 0x200000U | kTrayBit);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), 0xFFFFFFFFU);
    EXPECT_EQ(Word(CES_General, CEK_ScanLogSize), 4096U);
    EXPECT_EQ(Word(CES_General, CEK_EventLogCount), 600U);
    EXPECT_EQ(Word(CES_General, CEK_BackupSize), 1000000U);
    EXPECT_STREQ(Q9CfgE_GetStrEx(CES_General, CEK_AlertSound), "/sounds/virus.wav");
    EXPECT_EQ(g_Siblings.GetPending(), kTrayBit);
}

TEST_F(OtherConfigPageTest, ClearedBoxesAreSavedClearAndTheHomeAlarmAsZero) {
    SetWord(CES_General, CEK_GeneralOptions, 0xFFFFFFFF);
    SetWord(CES_General, CEK_EventOptions, 0xFFFFFFFF);
    SetWord(CES_General, CEK_HomeAlarm, 1);
    SetWord(CES_Switch, CEK_Switch_General, 0xFFFFFFFF);
    SetRegistered({kTrayCode});
    COtherConfigPage* page = Make();
    for (int id : {kHomeAlarm, kProductEvents, kUpdateEvents, kWarningEvents, kTray, kSound,
                   kSaveScanLogs, kScanLogSpace, kEventLogSpace, kBackupSpace})
        Click(page, id);
    page->Save();
    EXPECT_EQ(Word(CES_General, CEK_GeneralOptions), ~0x75U);
    EXPECT_EQ(Word(CES_General, CEK_EventOptions), 0U);
    EXPECT_EQ(Word(CES_General, CEK_HomeAlarm), 0U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_General), ~kTrayBit);
}

TEST_F(OtherConfigPageTest, TheHomeAlarmIsSavedAsOneOrZeroWhateverWasStored) {
    SetWord(CES_General, CEK_HomeAlarm, 0x3);
    COtherConfigPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kHomeAlarm));
    page->Save();
    EXPECT_EQ(Word(CES_General, CEK_HomeAlarm), 1U);
    SetWord(CES_General, CEK_HomeAlarm, 0x2);
    page->Load();
    EXPECT_FALSE(IsChecked(page, kHomeAlarm));
    page->Save();
    EXPECT_EQ(Word(CES_General, CEK_HomeAlarm), 0U);
}

TEST_F(OtherConfigPageTest, DefaultShowsTheFactoryValuesAndNeedsApply) {
    WriteDefaults(
        "[CES_General]\nCEK_GeneralOptions=dword:00000071\nCEK_ScanLogSize=dword:00000800\n"
        "CEK_EventLogCount=dword:000003e8\nCEK_BackupSize=dword:00019000\n"
        "CEK_EventOptions=dword:00000007\nCEK_HomeAlarm=dword:00000001\n"
        "CEK_AlertSound=\"/usr/share/sounds/alert.wav\"\n"
        "[CES_Switch]\nCEK_Switch_General=dword:00300000\n");
    SetWord(CES_General, CEK_GeneralOptions, 0x4);
    SetWord(CES_General, CEK_EventOptions, 0);
    SetWord(CES_General, CEK_HomeAlarm, 0);
    SetWord(CES_General, CEK_ScanLogSize, 600);
    Q9CfgE_SetStrEx(CES_General, CEK_AlertSound, "/mine.wav");
    COtherConfigPage* page = Make();
    EXPECT_FALSE(IsChecked(page, kTray));
    page->OnDefault();
    EXPECT_TRUE(IsChecked(page, kTray));
    EXPECT_TRUE(IsChecked(page, kHomeAlarm));
    for (int id : {kProductEvents, kUpdateEvents, kWarningEvents, kSaveScanLogs, kScanLogSpace,
                   kEventLogSpace, kBackupSpace}) {
        EXPECT_TRUE(IsChecked(page, id)) << id;
        EXPECT_TRUE(IsEnabled(page, id)) << id;
    }
    EXPECT_FALSE(IsChecked(page, kSound));
    EXPECT_FALSE(IsEnabled(page, kSoundPath));
    EXPECT_EQ(ctl::GetText(page, kScanLogSize), "2,048");
    EXPECT_EQ(ctl::GetText(page, kEventLogCount), "1,000");
    EXPECT_EQ(ctl::GetText(page, kBackupSize), "102,400");
    EXPECT_EQ(ctl::GetText(page, kSoundPath), "/usr/share/sounds/alert.wav");
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
    // Default never writes the store.
    EXPECT_EQ(Word(CES_General, CEK_ScanLogSize), 600U);
    EXPECT_STREQ(Q9CfgE_GetStrEx(CES_General, CEK_AlertSound), "/mine.wav");
}

TEST_F(OtherConfigPageTest, ApplyRegistersTheTrayIconByTheStoredBit) {
    COtherConfigPage* page = Make();
    SetWord(CES_Switch, CEK_Switch_General, kTrayBit);
    ClearJournal();
    page->Apply();
    EXPECT_EQ(Journal(), std::vector<std::string>{Registered(kTrayCode)});
    SetWord(CES_Switch, CEK_Switch_General, ~kTrayBit);
    ClearJournal();
    page->Apply();
    EXPECT_EQ(Journal(), std::vector<std::string>{Unregistered(kTrayCode)});
}

TEST_F(OtherConfigPageTest, TheTrayBoxAnswersFromTheStoreWhileItsBitIsPending) {
    SetRegistered({kTrayCode});
    COtherConfigPage* page = Make();
    Click(page, kTray);
    page->Save();
    // The function is still registered, but the session's answer is the
    // user's choice.
    page->Load();
    EXPECT_FALSE(IsChecked(page, kTray));
}

// --- The sound file -------------------------------------------------------------

// Acts on the file dialog the page opens: chooses path, or cancels when it
// is empty. Records the folder the dialog started in.
class FileDialogAnswerer {
public:
    explicit FileDialogAnswerer(QString path) : m_path(std::move(path)) {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            startFolder = dialog->directory().absolutePath();
            nameFilters = dialog->nameFilters();
            if (m_path.isEmpty()) {
                dialog->reject();
                return;
            }
            dialog->selectFile(m_path);
            static_cast<QDialog*>(dialog)->accept();
        });
        m_timer.start(10);
    }

    QString startFolder;
    QStringList nameFilters;

private:
    QString m_path;
    QTimer m_timer;
};

TEST_F(OtherConfigPageTest, TheChosenFileReplacesThePathAndMarksThePage) {
    COtherConfigPage* page = MakeValid();
    const std::string chosen = Install().PathOf("other.wav");
    Install().Write("other.wav", SilentWave());
    FileDialogAnswerer answerer(QString::fromStdString(chosen));
    Click(page, kBrowse);
    EXPECT_EQ(ctl::GetText(page, kSoundPath), chosen);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(answerer.startFolder.toStdString() + "/", Install().Directory());
    EXPECT_EQ(answerer.nameFilters, QStringList{"*.wav"});
}

TEST_F(OtherConfigPageTest, ACancelledFileDialogLeavesThePathAlone) {
    COtherConfigPage* page = MakeValid();
    const std::string before = ctl::GetText(page, kSoundPath);
    FileDialogAnswerer answerer{QString()};
    Click(page, kBrowse);
    EXPECT_EQ(ctl::GetText(page, kSoundPath), before);
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(OtherConfigPageTest, PlayPlaysAnExistingSoundWithoutAWord) {
    ScopedVariable device("CANBERRA_DEVICE", "null");
    COtherConfigPage* page = MakeValid();
    Click(page, kPlay);
    EXPECT_TRUE(m_messages.messages.empty()) << m_messages.messages.front().text;
}

TEST_F(OtherConfigPageTest, PlayChecksThePathFirst) {
    ScopedVariable device("CANBERRA_DEVICE", "null");
    COtherConfigPage* page = MakeValid();
    Field(page, kSoundPath)->setText("");
    Click(page, kPlay);
    Field(page, kSoundPath)->setText(QString(256, 'a'));
    Click(page, kPlay);
    EXPECT_EQ(Texts(), (std::vector<std::string>{kNoFileText, kLengthText}));
}

TEST_F(OtherConfigPageTest, PlayWithoutASoundDeviceSaysSo) {
    ScopedVariable device("CANBERRA_DEVICE", "none-such");
    COtherConfigPage* page = MakeValid();
    Click(page, kPlay);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text,
              "The alert sound cannot be played: no sound device is available.");
    EXPECT_EQ(m_messages.messages[0].caption, "Information");
}

TEST_F(OtherConfigPageTest, PlayOfAFileThatIsNoSoundSaysSo) {
    ScopedVariable device("CANBERRA_DEVICE", "null");
    COtherConfigPage* page = MakeValid();
    Install().Write("notes.wav", "not a sound at all");
    Field(page, kSoundPath)->setText(QString::fromStdString(Install().PathOf("notes.wav")));
    Click(page, kPlay);
    EXPECT_EQ(Texts(), std::vector<std::string>{"This file cannot be played as an alert sound."});
}

}  // namespace
}  // namespace other_config_test
