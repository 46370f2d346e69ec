#include "pages/PageRegistry.h"

#include "pages/easy/EasyConfigPage.h"
#include "pages/easy/WizardFeaturePage.h"
#include "pages/easy/WizardScanPage.h"
#include "pages/general/OtherConfigPage.h"
#include "pages/general/PolicyPage.h"
#include "pages/general/SecurityPage.h"
#include "pages/scan/CompressTabPage.h"
#include "pages/scan/FeatureSwitchPage.h"
#include "pages/scan/FileTypeTabPage.h"
#include "pages/scan/HarmfulTabPage.h"
#include "pages/scan/InternetMonitorPage.h"
#include "pages/scan/MailSwitchPage.h"
#include "pages/scan/MessengerPage.h"
#include "pages/scan/ScanMethodTabPage.h"
#include "pages/scan/ScanOptionTabPage.h"
#include "pages/scan/ScreenSaverPage.h"
#include "pages/scan/StartupPage.h"
#include "pages/scan/SystemMonitorPage.h"
#include "pages/scan/SystemScanPage.h"
#include "pages/schedule/SchedulePage.h"
#include "pages/schedule/ScheduleScanPage.h"
#include "pages/schedule/ScheduleTimePage.h"
#include "pages/targets/ExcludePage.h"

namespace {

using enum PageId;

template <typename Page>
std::unique_ptr<CSettingsPage> Make() {
    return std::make_unique<Page>();
}

// A built page: its template is the one its class is made from.
template <typename Page>
constexpr PageRow Built(PageId id, uint32_t titleId) {
    return {id, Page::kTemplateId, titleId, &Make<Page>};
}

constexpr PageRow Unbuilt(PageId id, int templateId, uint32_t titleId) {
    return {id, templateId, titleId, nullptr};
}

constexpr std::array<PageRow, kPageCount> kRows = {{
    Built<CFeatureSwitchPage>(kFeatureSwitch, 17),
    Built<CSystemScanPage>(kSystemScan, 4),
    Built<CSystemScanPage>(kSystemScanSpare, 4),
    Built<CScreenSaverPage>(kScreenSaverScan, 7),
    Built<CSchedulePage>(kSchedule, 6),
    Built<CSystemMonitorPage>(kSystemMonitor, 8),
    Built<CInternetMonitorPage>(kInternetMonitorSpare, 13),
    Built<CInternetMonitorPage>(kInternetMonitor, 16),
    Built<CMailSwitchPage>(kMailSwitch, 18),
    Unbuilt(kWarnMail, 1015, 19),
    Unbuilt(kPop3Config, 1011, 9),
    Unbuilt(kPop3Scan, 116, 15),
    Unbuilt(kOutlookMonitor, 119, 11),
    Unbuilt(kOutlookScan, 118, 10),
    Unbuilt(kOutlookMonitorSpare, 119, 11),
    Built<COtherConfigPage>(kOtherConfig, 20),
    Built<CExcludePage>(kExclude, 2),
    Built<CSecurityPage>(kSecurity, 14),
    Built<CPolicyPage>(kPolicy, 3),
    Built<CWizardScanPage>(kWizardScan, 0),
    Built<CWizardFeaturePage>(kWizardFeature, 0),
    Built<CScheduleTimePage>(kScheduleTime, 0),
    Built<CScheduleScanPage>(kScheduleScan, 0),
    Built<CEasyConfigPage>(kEasyConfig, 1),
    Built<CMessengerPage>(kMessenger, 21),
    Built<CStartupPage>(kStartup, 22),
    Unbuilt(kSpam, 1033, 23),
    Built<CCompressTabPage>(kCompressTab, 24),
    Built<CFileTypeTabPage>(kFileTypeTab, 25),
    Built<CScanMethodTabPage>(kScanMethodTab, 27),
    Built<CScanOptionTabPage>(kScanOptionTab, 26),
    Built<CHarmfulTabPage>(kHarmfulTab, 28),
    Unbuilt(kAlarmMail, 1041, 57358),
    Unbuilt(kMailAccount, 1049, 57359),
    Unbuilt(kBlockNetwork, 1045, 57362),
    Unbuilt(kPortBlock, 1048, 57360),
    Unbuilt(kVirusMailTemplate, 1051, 57363),
    Unbuilt(kUpdateFailureMailTemplate, 1052, 57364),
    Unbuilt(kMonitorMailTemplate, 1053, 57365),
    Unbuilt(kUpdateSuccessMailTemplate, 1054, 57370),
    Unbuilt(kExemptPorts, 1055, 57413),
}};

constexpr bool InIdOrder(const std::array<PageRow, kPageCount>& rows) {
    for (size_t i = 0; i < rows.size(); ++i) {
        if (ToInt(rows[i].id) != static_cast<int32_t>(i)) return false;
    }
    return true;
}
static_assert(InIdOrder(kRows), "page rows must stand in page id order");

constexpr int kScheduleScanTemplateNT = 1016;

}  // namespace

const std::array<PageRow, kPageCount>& PageRows() { return kRows; }

const PageRow& PageRowOf(PageId id) { return kRows[static_cast<size_t>(ToInt(id))]; }

int PageTemplate(PageId id, bool isNT) {
    if (id == kScheduleScan && isNT) return kScheduleScanTemplateNT;
    return PageRowOf(id).templateId;
}
