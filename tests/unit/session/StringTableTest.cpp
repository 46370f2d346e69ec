#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QString>
#include <QTranslator>
#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "support/TestPaths.h"
#include "text/StringTable.h"

namespace {

// The inserts of a text, in order: printf conversions (%d, %ld, %s, %02d),
// positional inserts of the interval texts (%1, %2: a digit right after the
// percent sign), the placeholders of the mail templates (%V, %C, ...), the
// fields of the date formats (%Y, %a) and "%%".
std::vector<std::string> Inserts(const std::string& text) {
    static const QRegularExpression kInsert(
        R"(%(%|[1-9][0-9]*|[-+ #0]*[0-9]*(\.[0-9]+)?(hh|h|ll|l|L|z|j|t)?[A-Za-z]))");
    std::vector<std::string> inserts;
    QRegularExpressionMatchIterator it = kInsert.globalMatch(QString::fromStdString(text));
    while (it.hasNext()) inserts.push_back(it.next().captured(0).toStdString());
    return inserts;
}

std::ptrdiff_t LineBreaks(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
}

}  // namespace

TEST(StringTable, CaptionsOfAllMessages) {
    EXPECT_EQ(LoadString(900), "Configuration Error");
    EXPECT_EQ(LoadString(901), "Information");
    EXPECT_EQ(LoadString(902), "Warning");
    EXPECT_EQ(LoadString(903), "Error");
    EXPECT_EQ(LoadString(57344), "Configuration");
    EXPECT_EQ(LoadString(57353), "Warning");
}

TEST(StringTable, SharedValidatorTexts) {
    EXPECT_EQ(LoadString(1000), "Please enter the values between %s ~ %s.");
    EXPECT_EQ(LoadString(57354),
              "The number of words exceeds allowable length.\nPlease enter less than %d words.");
}

TEST(StringTable, UnknownIdIsEmpty) {
    EXPECT_EQ(LoadString(5), "");
    EXPECT_FALSE(HasString(5));
    EXPECT_TRUE(HasString(900));
}

TEST(StringTable, EveryIdHasText) {
    const std::vector<uint32_t> ids = StringIds();
    EXPECT_GE(ids.size(), 200u);
    EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
    for (const uint32_t id : ids) {
        SCOPED_TRACE(id);
        EXPECT_TRUE(HasString(id));
        EXPECT_FALSE(LoadString(id).empty());
    }
}

TEST(StringTable, PageTitles) {
    EXPECT_EQ(LoadString(1), "Easy Configuration");
    EXPECT_EQ(LoadString(17), "System Scan/Monitoring");
    EXPECT_EQ(LoadString(13), "Internet monitoring");
    EXPECT_EQ(LoadString(16), "Internet Monitoring");
    EXPECT_EQ(LoadString(57358), "Alarm E-mail");
    EXPECT_EQ(LoadString(57413), "Ports List");
}

TEST(StringTable, ShellAndFunctionPageQuestions) {
    EXPECT_EQ(LoadString(strings::kSwitchToCustomized),
              "Switch to customized setting.\nProtection level set in easy configuration will no "
              "longer have an effect.");
    EXPECT_EQ(LoadString(strings::kLowBattery), "Not enough batteries.");
    EXPECT_EQ(LoadString(strings::kOfficeGuardQuestion),
              "If Office Guard is selected, you may have to restart the system when files "
              "related to Office Guard are patched.\nDo you want to select the Office Guard?");
    EXPECT_EQ(LoadString(strings::kExplorerScanQuestion),
              "If Explorer Scan is selected, you may have to restart the system when files "
              "related to Explorer Scan are patched.\nDo you want to select the Explorer Scan?");
    EXPECT_EQ(strings::kSwitchToCustomized, 1033u);
    EXPECT_EQ(strings::kLowBattery, 1022u);
    EXPECT_EQ(strings::kOfficeGuardQuestion, 57396u);
    EXPECT_EQ(strings::kExplorerScanQuestion, 57397u);
}

TEST(StringTable, SystemMonitorClosingQuestions) {
    EXPECT_EQ(strings::kCloseMonitorQuestion, 1019u);
    EXPECT_EQ(strings::kCloseMonitorRestartQuestion, 1027u);
    EXPECT_EQ(LoadString(strings::kCloseMonitorQuestion),
              "The system monitoring will be closed.\nWhen restarting the system, the system "
              "monitoring will not restart automatically.\nAre you sure you want to close?");
    EXPECT_EQ(LoadString(strings::kCloseMonitorRestartQuestion),
              "The system monitoring will be closed.\nAfter approximately %d minutes when the "
              "system restarts, system monitoring will restart again\nDo you want to close?");
}

TEST(StringTable, TextsWithQuotesBackslashesAndTrailingBlanks) {
    EXPECT_EQ(LoadString(1015),
              "The following characters cannot be used as a file type.\n\n\\ : * \"\" . < > |");
    EXPECT_EQ(LoadString(1034),
              "Either \"Scan Local Drive Reading\" or \"Scan Local Drive Writing\" must be "
              "selected.");
    EXPECT_EQ(LoadString(1048), "You cannot leave this blank. Please type in a valid format. ");
    EXPECT_EQ(LoadString(1004),
              "All items will be deleted. \n Are you sure you want to delete all?");
}

TEST(StringTable, ScheduleAndReportTexts) {
    EXPECT_EQ(LoadString(1203), "Every month %1day %2");
    EXPECT_EQ(LoadString(1204), "Local hard drives");
    EXPECT_EQ(LoadString(316), "%YYear %mMonth %dDay");
    EXPECT_EQ(LoadString(1421), "(Exclude some items)");
    EXPECT_EQ(LoadString(1431), "Customized");
}

TEST(StringTable, PortRuleAndMailTexts) {
    EXPECT_EQ(LoadString(57390), "Romote Port");
    EXPECT_EQ(LoadString(57393), "TCP,UDP");
    EXPECT_EQ(LoadString(57395), "Unlimited");
    EXPECT_EQ(LoadString(57377),
              "Virus Count:%V\r\nSet Time:%T\r\nComputer Name : %C\r\nIP : %I\r\n");
}

TEST(StringTable, InsertsOfTheEnglishTexts) {
    EXPECT_EQ(Inserts(LoadString(1000)), (std::vector<std::string>{"%s", "%s"}));
    EXPECT_EQ(Inserts(LoadString(1203)), (std::vector<std::string>{"%1", "%2"}));
    EXPECT_EQ(Inserts(LoadString(316)), (std::vector<std::string>{"%Y", "%m", "%d"}));
    EXPECT_EQ(Inserts(LoadString(57377)), (std::vector<std::string>{"%V", "%T", "%C", "%I"}));
    EXPECT_EQ(Inserts(LoadString(57355)), (std::vector<std::string>{"%d", "%d"}));
    EXPECT_EQ(Inserts(LoadString(1002)), (std::vector<std::string>{}));
    EXPECT_EQ(Inserts("%ld of %02d, 100%%"), (std::vector<std::string>{"%ld", "%02d", "%%"}));
}

// The German translation as built into the library's translation folder.
class GermanStringTable : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(
            m_translator.load(QString::fromStdString(TestPath("translations") + "/Q9CU_1031.qm")))
            << TestPath("translations");
    }

    // No translator is installed in this program, so LoadString gives the
    // English text, which is the key of the translation.
    std::string German(uint32_t id) const {
        return m_translator.translate("StringTable", LoadString(id).c_str()).toStdString();
    }

    QTranslator m_translator;
};

TEST_F(GermanStringTable, EveryTextIsTranslated) {
    // Names and formats that read the same in German.
    const std::set<uint32_t> kSameInGerman = {314,  501,   1301,  1302,  1303,
                                              1308, 57391, 57392, 57393, 57407};
    for (const uint32_t id : StringIds()) {
        SCOPED_TRACE(id);
        const std::string german = German(id);
        EXPECT_FALSE(german.empty());
        if (kSameInGerman.count(id) == 0) {
            EXPECT_NE(german, LoadString(id));
        }
    }
}

TEST_F(GermanStringTable, InsertsAndLineBreaksStayInPlace) {
    for (const uint32_t id : StringIds()) {
        SCOPED_TRACE(id);
        const std::string english = LoadString(id);
        const std::string german = German(id);
        EXPECT_EQ(Inserts(german), Inserts(english)) << german;
        EXPECT_EQ(LineBreaks(german), LineBreaks(english)) << german;
    }
}

TEST_F(GermanStringTable, SpotChecks) {
    EXPECT_EQ(German(strings::kApplicationName), "Konfiguration");
    EXPECT_EQ(German(strings::kWarning), "Warnung");
    EXPECT_EQ(German(strings::kRangeMessage), "Bitte geben Sie einen Wert zwischen %s und %s ein.");
    EXPECT_EQ(German(17), "Systemprüfung/-überwachung");
    EXPECT_EQ(German(1203), "Monatlich am %1. um %2");
}

// A rule without end is stored with this word in the 16-byte validity field
// of the rule file, terminator included.
TEST_F(GermanStringTable, UnlimitedFitsTheValidityFieldOfAPortRule) {
    EXPECT_LE(German(57395).size(), 15u);
}
