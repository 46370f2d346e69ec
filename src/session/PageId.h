#pragma once

// The ids of the settings pages, 0 to 40. An id is what the trees, the
// removal switches, the shells and the callers' page argument name a page
// by; the page registry gives each id its class, form and title.

#include <cstdint>

enum class PageId : int32_t {
    kNone = -1,                 // no page: the close and end rows of a tree, a shell without one
    kFeatureSwitch = 0,         // "System Scan/Monitoring"
    kSystemScan = 1,            // "System scan"
    kSystemScanSpare = 2,       // the system scan page, in no tree
    kScreenSaverScan = 3,       // "Screensaver Scan"
    kSchedule = 4,              // "Scheduled scan"
    kSystemMonitor = 5,         // "System monitoring"
    kInternetMonitorSpare = 6,  // the internet monitoring page, in no tree
    kInternetMonitor = 7,       // "Internet Monitoring"
    kMailSwitch = 8,            // "E-mail Scan/Monitoring"
    kWarnMail = 9,              // "Warning E-mail"
    kPop3Config = 10,           // "POP3 Configuration", opened from the POP3 page
    kPop3Scan = 11,             // "POP3 Scan"
    kOutlookMonitor = 12,       // "Outlook monitoring"
    kOutlookScan = 13,          // "Outlook scan"
    kOutlookMonitorSpare = 14,  // the Outlook monitoring page, in no tree
    kOtherConfig = 15,          // "Other Configurations"
    kExclude = 16,              // "Sectors excluded from the scan"
    kSecurity = 17,             // "Security configuration"
    kPolicy = 18,               // "Setting the advanced scan"
    kWizardScan = 19,           // wizard pages, without a title
    kWizardFeature = 20,
    kScheduleTime = 21,
    kScheduleScan = 22,
    kEasyConfig = 23,   // "Easy Configuration"
    kMessenger = 24,    // "Instant Messenger Monitoring"
    kStartup = 25,      // "Startup Program Monitoring"
    kSpam = 26,         // "Spam Mail Filtering"
    kCompressTab = 27,  // tabs of the advanced scan dialogs
    kFileTypeTab = 28,
    kScanMethodTab = 29,
    kScanOptionTab = 30,
    kHarmfulTab = 31,
    kAlarmMail = 32,          // "Alarm E-mail"
    kMailAccount = 33,        // "Setting E-Mail Account"
    kBlockNetwork = 34,       // "Block Network"
    kPortBlock = 35,          // "Port Blocking"
    kVirusMailTemplate = 36,  // the alert mail templates
    kUpdateFailureMailTemplate = 37,
    kMonitorMailTemplate = 38,
    kUpdateSuccessMailTemplate = 39,
    kExemptPorts = 40,  // "Ports List"
};

// The number of page ids.
constexpr int32_t kPageCount = 41;

constexpr int32_t ToInt(PageId id) { return static_cast<int32_t>(id); }

// Whether value names a page.
constexpr bool IsPageId(int32_t value) { return value >= 0 && value < kPageCount; }
