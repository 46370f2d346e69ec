#include "text/StringTable.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

namespace {

struct StringEntry {
    uint32_t id;
    const char* text;
};

// Every text of the program, sorted by id. Several ids share one text: they
// are looked up in the translation by their English text, so one translation
// serves all of them.
constexpr StringEntry kStrings[] = {
    {1, QT_TRANSLATE_NOOP("StringTable", "Easy Configuration")},
    {2, QT_TRANSLATE_NOOP("StringTable", "Sectors excluded from the scan")},
    {3, QT_TRANSLATE_NOOP("StringTable", "Setting the advanced scan")},
    {4, QT_TRANSLATE_NOOP("StringTable", "System scan")},
    {6, QT_TRANSLATE_NOOP("StringTable", "Scheduled scan")},
    {7, QT_TRANSLATE_NOOP("StringTable", "Screensaver Scan")},
    {8, QT_TRANSLATE_NOOP("StringTable", "System monitoring")},
    {9, QT_TRANSLATE_NOOP("StringTable", "POP3 Configuration")},
    {10, QT_TRANSLATE_NOOP("StringTable", "Outlook scan")},
    {11, QT_TRANSLATE_NOOP("StringTable", "Outlook monitoring")},
    {13, QT_TRANSLATE_NOOP("StringTable", "Internet monitoring")},
    {14, QT_TRANSLATE_NOOP("StringTable", "Security configuration")},
    {15, QT_TRANSLATE_NOOP("StringTable", "POP3 Scan")},
    {16, QT_TRANSLATE_NOOP("StringTable", "Internet Monitoring")},
    {17, QT_TRANSLATE_NOOP("StringTable", "System Scan/Monitoring")},
    {18, QT_TRANSLATE_NOOP("StringTable", "E-mail Scan/Monitoring")},
    {19, QT_TRANSLATE_NOOP("StringTable", "Warning E-mail")},
    {20, QT_TRANSLATE_NOOP("StringTable", "Other Configurations")},
    {21, QT_TRANSLATE_NOOP("StringTable", "Instant Messenger Monitoring")},
    {22, QT_TRANSLATE_NOOP("StringTable", "Startup Program Monitoring")},
    {23, QT_TRANSLATE_NOOP("StringTable", "Spam Mail Filtering")},
    {24, QT_TRANSLATE_NOOP("StringTable", "Compressed Files")},
    {25, QT_TRANSLATE_NOOP("StringTable", "File Types to Scan")},
    {26, QT_TRANSLATE_NOOP("StringTable", "Scan Method")},
    {27, QT_TRANSLATE_NOOP("StringTable", "Scan Method")},
    {28, QT_TRANSLATE_NOOP("StringTable", "Possible Harmful Programs")},
    {200, QT_TRANSLATE_NOOP("StringTable",
                            "Select the files to scan and how detected viruses are repaired. These "
                            "settings apply to all scan and monitoring functions.")},
    {201, QT_TRANSLATE_NOOP("StringTable",
                            "Select the functions that protect the system in real time. Functions "
                            "that cannot run on this system are not available.")},
    {202, QT_TRANSLATE_NOOP("StringTable",
                            "You can regularly scan the system with the scheduled scan.")},
    {205, QT_TRANSLATE_NOOP("StringTable", "Setting the level to scan/repair.")},
    {300, QT_TRANSLATE_NOOP("StringTable", "Scheduled Interval")},
    {301, QT_TRANSLATE_NOOP("StringTable", "List to Scan")},
    {303, QT_TRANSLATE_NOOP("StringTable", "Day :")},
    {304, QT_TRANSLATE_NOOP("StringTable", "Day of the week :")},
    {305, QT_TRANSLATE_NOOP("StringTable", "Date :")},
    {310, QT_TRANSLATE_NOOP("StringTable", "Whenever the system starts")},
    {311, QT_TRANSLATE_NOOP("StringTable", "Everyday")},
    {312, QT_TRANSLATE_NOOP("StringTable", "Every week")},
    {313, QT_TRANSLATE_NOOP("StringTable", "Every month")},
    {314, QT_TRANSLATE_NOOP("StringTable", "%a")},
    {315, QT_TRANSLATE_NOOP("StringTable", "%dDay")},
    {316, QT_TRANSLATE_NOOP("StringTable", "%YYear %mMonth %dDay")},
    {317, QT_TRANSLATE_NOOP("StringTable", "Once")},
    {400, QT_TRANSLATE_NOOP("StringTable", "Leave as is")},
    {402, QT_TRANSLATE_NOOP("StringTable", "Repair")},
    {404, QT_TRANSLATE_NOOP("StringTable", "Delete")},
    {405, QT_TRANSLATE_NOOP("StringTable", "Process after user verification")},
    {406, QT_TRANSLATE_NOOP("StringTable", "Repair after a forced termination")},
    {407, QT_TRANSLATE_NOOP("StringTable", "Restart the system after the repair")},
    {500, QT_TRANSLATE_NOOP("StringTable", "Unlimited")},
    {501, QT_TRANSLATE_NOOP("StringTable", "%d")},
    {600, QT_TRANSLATE_NOOP("StringTable", "Delete")},
    {601, QT_TRANSLATE_NOOP("StringTable", "Change the extension to Q9F")},
    {602, QT_TRANSLATE_NOOP("StringTable", "Block")},
    {603, QT_TRANSLATE_NOOP("StringTable", "Do not block")},
    {700, QT_TRANSLATE_NOOP("StringTable", "Items to Scan")},
    {900, QT_TRANSLATE_NOOP("StringTable", "Configuration Error")},
    {901, QT_TRANSLATE_NOOP("StringTable", "Information")},
    {902, QT_TRANSLATE_NOOP("StringTable", "Warning")},
    {903, QT_TRANSLATE_NOOP("StringTable", "Error")},
    {1000, QT_TRANSLATE_NOOP("StringTable", "Please enter the values between %s ~ %s.")},
    {1001, QT_TRANSLATE_NOOP(
               "StringTable",
               "You have not specified a password or the password you entered is invalid.")},
    {1002, QT_TRANSLATE_NOOP("StringTable", "Invalid password.")},
    {1003, QT_TRANSLATE_NOOP("StringTable", "You haven't selected any items.")},
    {1004, QT_TRANSLATE_NOOP("StringTable",
                             "All items will be deleted. \n"
                             " Are you sure you want to delete all?")},
    {1005, QT_TRANSLATE_NOOP("StringTable", "The items already exist.")},
    {1006,
     QT_TRANSLATE_NOOP(
         "StringTable",
         "You haven't specified the sectors to be excluded from the scan.\n"
         " Please set the sectors to be excluded or disable the checkbox to exclude the sectors.")},
    {1011,
     QT_TRANSLATE_NOOP("StringTable", "Cannot create the managed objects of POP3 profile. (%d)")},
    {1013, QT_TRANSLATE_NOOP("StringTable",
                             "The e-mail program has not been installed on this system.\n"
                             "Please install the program and try again.")},
    {1015, QT_TRANSLATE_NOOP("StringTable",
                             "The following characters cannot be used as a file type.\n"
                             "\n"
                             "\\ : * \"\" . < > |")},
    {1017, QT_TRANSLATE_NOOP(
               "StringTable",
               "This function will be operated normally only when MS Outlook has been installed.")},
    {1018, QT_TRANSLATE_NOOP("StringTable",
                             "Customized file types have not been set.\n"
                             "Please enter the file types to scan.")},
    {1019, QT_TRANSLATE_NOOP(
               "StringTable",
               "The system monitoring will be closed.\n"
               "When restarting the system, the system monitoring will not restart automatically.\n"
               "Are you sure you want to close?")},
    {1021, QT_TRANSLATE_NOOP("StringTable",
                             "Sorry, you are not authorized to execute this task. (%d)\n"
                             "Please ask the administrator for more details.")},
    {1022, QT_TRANSLATE_NOOP("StringTable", "Not enough batteries.")},
    {1023, QT_TRANSLATE_NOOP("StringTable", "A new virus has been detected.")},
    {1024, QT_TRANSLATE_NOOP("StringTable", "Infected by viruses.")},
    {1025, QT_TRANSLATE_NOOP("StringTable", "Failed to initialize the Self Scan.")},
    {1026, QT_TRANSLATE_NOOP("StringTable", "Unable to execute.")},
    {1027, QT_TRANSLATE_NOOP("StringTable",
                             "The system monitoring will be closed.\n"
                             "After approximately %d minutes when the system restarts, system "
                             "monitoring will restart again\n"
                             "Do you want to close?")},
    {1028, QT_TRANSLATE_NOOP("StringTable",
                             "Unable to find the Instant Messenger program.\n"
                             "Please install the Instant Messenger program first and try again.")},
    {1029, QT_TRANSLATE_NOOP("StringTable", "Failed to initialize the engine.")},
    {1031, QT_TRANSLATE_NOOP("StringTable",
                             "The selected item cannot be deleted since it is specified as an item "
                             "not to scan by other products.")},
    {1032, QT_TRANSLATE_NOOP("StringTable",
                             "All items will be deleted except for the items specified not to scan "
                             "by this product or other products.\n"
                             "Are you sure you want to delete all?")},
    {1033, QT_TRANSLATE_NOOP(
               "StringTable",
               "Switch to customized setting.\n"
               "Protection level set in easy configuration will no longer have an effect.")},
    {1034,
     QT_TRANSLATE_NOOP(
         "StringTable",
         "Either \"Scan Local Drive Reading\" or \"Scan Local Drive Writing\" must be selected.")},
    {1035, QT_TRANSLATE_NOOP("StringTable",
                             "Specify an e-mail account manully or select \"Auto Recognition\".")},
    {1036, QT_TRANSLATE_NOOP(
               "StringTable",
               "Specify the Instant Messenger to monitor manully or select \"Auto Recognition\".")},
    {1037, QT_TRANSLATE_NOOP("StringTable",
                             "Select the items to monitor. If you don't have items to monitor, "
                             "disable \"Startup Program Monitoring\" option.")},
    {1038, QT_TRANSLATE_NOOP(
               "StringTable",
               "Click [Set Spam Mail Prevention Rules] to set the spam mail prevention rules.\n"
               "Or, disable \"Enables Spam Mail Filtering\" option.")},
    {1039, QT_TRANSLATE_NOOP("StringTable", "Add Files")},
    {1040, QT_TRANSLATE_NOOP("StringTable", "No file exists.")},
    {1041, QT_TRANSLATE_NOOP("StringTable", "Sender (E-Mail) setting is incorrect.")},
    {1042, QT_TRANSLATE_NOOP("StringTable", "SMTP Server setting is incorrect.")},
    {1043, QT_TRANSLATE_NOOP("StringTable", "Mail Server Port setting is incorrect.")},
    {1044, QT_TRANSLATE_NOOP("StringTable",
                             "Network drive (%s) is not connected.\n"
                             "Please check the network connection and try again.")},
    {1045, QT_TRANSLATE_NOOP("StringTable",
                             "You have not selected possible harmful programs.\n"
                             "Please select possibly harmful programs to scan or deselect \"Scan "
                             "possible harmful programs\" option.")},
    {1046, QT_TRANSLATE_NOOP("StringTable",
                             "This system does not support Instant Messenger Monitoring.")},
    {1047,
     QT_TRANSLATE_NOOP("StringTable", "This system does not support Startup Program Monitoring.")},
    {1048, QT_TRANSLATE_NOOP("StringTable",
                             "You cannot leave this blank. Please type in a valid format. ")},
    {1200, QT_TRANSLATE_NOOP("StringTable", "Whenever the system starts")},
    {1201, QT_TRANSLATE_NOOP("StringTable", "Everyday %1")},
    {1202, QT_TRANSLATE_NOOP("StringTable", "Every week %1 %2")},
    {1203, QT_TRANSLATE_NOOP("StringTable", "Every month %1day %2")},
    {1204, QT_TRANSLATE_NOOP("StringTable", "Local hard drives")},
    {1210, QT_TRANSLATE_NOOP("StringTable", "Computer")},
    {1211, QT_TRANSLATE_NOOP("StringTable", "Network")},
    {1212, QT_TRANSLATE_NOOP("StringTable", "Home Folder")},
    {1300, QT_TRANSLATE_NOOP("StringTable", "MSN Instant Messenger (5.0 above)")},
    {1301, QT_TRANSLATE_NOOP("StringTable", "AOL Instant Messenger")},
    {1302, QT_TRANSLATE_NOOP("StringTable", "Yahoo! Instant Messenger")},
    {1303, QT_TRANSLATE_NOOP("StringTable", "Windows Messenger")},
    {1304, QT_TRANSLATE_NOOP("StringTable", "Items")},
    {1305, QT_TRANSLATE_NOOP("StringTable", "Use or not")},
    {1306, QT_TRANSLATE_NOOP("StringTable", "Use")},
    {1307, QT_TRANSLATE_NOOP("StringTable", "Do not use")},
    {1308, QT_TRANSLATE_NOOP("StringTable", "Daum Instant Messenger")},
    {1401, QT_TRANSLATE_NOOP("StringTable", "Auto Repair")},
    {1402, QT_TRANSLATE_NOOP("StringTable", "Scan Compressed Files")},
    {1403, QT_TRANSLATE_NOOP("StringTable", "File Types to Scan")},
    {1404, QT_TRANSLATE_NOOP("StringTable", "Back up files before repairing or deleting")},
    {1405, QT_TRANSLATE_NOOP("StringTable", "Repairable Files")},
    {1406, QT_TRANSLATE_NOOP("StringTable", "Unrepairable Files")},
    {1407, QT_TRANSLATE_NOOP("StringTable", "Compressed Files")},
    {1409, QT_TRANSLATE_NOOP("StringTable", "Executing Files")},
    {1410, QT_TRANSLATE_NOOP("StringTable", "Scan Setting")},
    {1411, QT_TRANSLATE_NOOP("StringTable", "Repair Setting")},
    {1412, QT_TRANSLATE_NOOP("StringTable", "Real Time Monitoring")},
    {1413, QT_TRANSLATE_NOOP("StringTable", "System Monitoring")},
    {1414, QT_TRANSLATE_NOOP("StringTable", "Internet Monitoring")},
    {1415, QT_TRANSLATE_NOOP("StringTable", "Instant Messenger Monitoring")},
    {1416, QT_TRANSLATE_NOOP("StringTable", "Startup Program Monitoring")},
    {1417, QT_TRANSLATE_NOOP("StringTable", "POP3 Monitoring")},
    {1418, QT_TRANSLATE_NOOP("StringTable", "Outlook Monitoring")},
    {1419, QT_TRANSLATE_NOOP("StringTable", "On")},
    {1420, QT_TRANSLATE_NOOP("StringTable", "Off")},
    {1421, QT_TRANSLATE_NOOP("StringTable", "(Exclude some items)")},
    {1422, QT_TRANSLATE_NOOP("StringTable", "All Files")},
    {1423, QT_TRANSLATE_NOOP("StringTable", "Executable Files")},
    {1424, QT_TRANSLATE_NOOP("StringTable", "Macros")},
    {1425, QT_TRANSLATE_NOOP("StringTable", "Script Files")},
    {1426, QT_TRANSLATE_NOOP("StringTable", "Customized")},
    {1428, QT_TRANSLATE_NOOP("StringTable", "High")},
    {1429, QT_TRANSLATE_NOOP("StringTable", "Medium")},
    {1430, QT_TRANSLATE_NOOP("StringTable", "Low")},
    {1431, QT_TRANSLATE_NOOP("StringTable", "Customized")},
    {1432, QT_TRANSLATE_NOOP("StringTable", "Disabled")},
    {1433, QT_TRANSLATE_NOOP("StringTable", "Infector Detection")},
    {1434, QT_TRANSLATE_NOOP("StringTable", "Auto-Restart System Monitoring")},
    {1435, QT_TRANSLATE_NOOP("StringTable", "Advanced Scan Setting")},
    {1436, QT_TRANSLATE_NOOP("StringTable", "Self Protect")},
    {1437, QT_TRANSLATE_NOOP("StringTable", "Spam Mail Filtering")},
    {1438, QT_TRANSLATE_NOOP("StringTable", "Enables spam mail filtering")},
    {1439, QT_TRANSLATE_NOOP("StringTable", "Protection Level")},
    {1440, QT_TRANSLATE_NOOP("StringTable", "Fully block virus intrusions")},
    {1441,
     QT_TRANSLATE_NOOP("StringTable", "Recommended for systems with high risk of virus infection")},
    {1442, QT_TRANSLATE_NOOP("StringTable", "System performance can be affected")},
    {1443, QT_TRANSLATE_NOOP("StringTable", "Properly block virus intrusions")},
    {1444, QT_TRANSLATE_NOOP("StringTable", "Suggested for general user system")},
    {1445, QT_TRANSLATE_NOOP("StringTable", "System performance can be slightly affected")},
    {1446, QT_TRANSLATE_NOOP("StringTable", "Block virus intrusions at the lowest level")},
    {1447,
     QT_TRANSLATE_NOOP("StringTable", "Recommended for systems with low risk of virus infection")},
    {1448, QT_TRANSLATE_NOOP("StringTable", "System performance is not affected")},
    {1449, QT_TRANSLATE_NOOP(
               "StringTable",
               "Block viruses according to configuration by function specified by the user")},
    {1450, QT_TRANSLATE_NOOP("StringTable",
                             "Use the menu at the left to change configuration by function")},
    {1451, QT_TRANSLATE_NOOP("StringTable", "Click [Next] to change configuration by function.")},
    {57344, QT_TRANSLATE_NOOP("StringTable", "Configuration")},
    {57345, QT_TRANSLATE_NOOP("StringTable", "Incorrect schedule interval")},
    {57346, QT_TRANSLATE_NOOP("StringTable", "Please enter the file types not to scan.")},
    {57350,
     QT_TRANSLATE_NOOP("StringTable",
                       "You do not have permission to change the settings of the scheduled scan.")},
    {57352,
     QT_TRANSLATE_NOOP(
         "StringTable",
         "Changes to POP3 port will not take effect until you restart the POP3 monitoring.")},
    {57353, QT_TRANSLATE_NOOP("StringTable", "Warning")},
    {57354, QT_TRANSLATE_NOOP("StringTable",
                              "The number of words exceeds allowable length.\n"
                              "Please enter less than %d words.")},
    {57355, QT_TRANSLATE_NOOP("StringTable", "%d minutes %d seconds")},
    {57356, QT_TRANSLATE_NOOP("StringTable", "%d minutes")},
    {57357, QT_TRANSLATE_NOOP("StringTable", "%d seconds")},
    {57358, QT_TRANSLATE_NOOP("StringTable", "Alarm E-mail")},
    {57359, QT_TRANSLATE_NOOP("StringTable", "Setting E-Mail Account")},
    {57360, QT_TRANSLATE_NOOP("StringTable", "Port Blocking")},
    {57362, QT_TRANSLATE_NOOP("StringTable", "Block Network")},
    {57363, QT_TRANSLATE_NOOP("StringTable", "Edit Virus Alarm E-mail")},
    {57364, QT_TRANSLATE_NOOP("StringTable", "Edit Update Failure Notice E-mail")},
    {57365, QT_TRANSLATE_NOOP("StringTable", "Edit System Monitoring Notice E-mail")},
    {57368, QT_TRANSLATE_NOOP("StringTable", "Recipient (E-Mail) setting is incorrect.")},
    {57369, QT_TRANSLATE_NOOP("StringTable", "Sender (E-Mail) setting is incorrect.")},
    {57370, QT_TRANSLATE_NOOP("StringTable", "Update Success E-mail Notice")},
    {57371, QT_TRANSLATE_NOOP("StringTable", "Computer Name : %S")},
    {57372, QT_TRANSLATE_NOOP("StringTable", "IP Address : %I")},
    {57373, QT_TRANSLATE_NOOP("StringTable", "Virus Count : %V")},
    {57374, QT_TRANSLATE_NOOP("StringTable", "Set Time :%T")},
    {57375, QT_TRANSLATE_NOOP("StringTable",
                              "Computer Name : %C\r\n"
                              "IP : %I\r\n"
                              "Update completed successfully.")},
    {57376, QT_TRANSLATE_NOOP("StringTable", "Virus has been detected in your system.")},
    {57377, QT_TRANSLATE_NOOP("StringTable",
                              "Virus Count:%V\r\n"
                              "Set Time:%T\r\n"
                              "Computer Name : %C\r\n"
                              "IP : %I\r\n")},
    {57378, QT_TRANSLATE_NOOP("StringTable", "Failed to run the Swift Update.")},
    {57379, QT_TRANSLATE_NOOP("StringTable",
                              "Computer Name : %C\r\n"
                              "IP : %I")},
    {57380, QT_TRANSLATE_NOOP("StringTable", "Swift Update has been completed successfully.")},
    {57382,
     QT_TRANSLATE_NOOP("StringTable", "Auto-Restart System Monitoring function has been failed.")},
    {57383, QT_TRANSLATE_NOOP("StringTable", "Block Registered Ports Only(Permit other ports)")},
    {57384, QT_TRANSLATE_NOOP("StringTable", "Permit Registered Ports Only(Block other ports)")},
    {57385, QT_TRANSLATE_NOOP("StringTable", "Permit Inbound")},
    {57386, QT_TRANSLATE_NOOP("StringTable", "Block Inbound")},
    {57387, QT_TRANSLATE_NOOP("StringTable", "Permit Outbound")},
    {57388, QT_TRANSLATE_NOOP("StringTable", "Block Outbound")},
    {57389, QT_TRANSLATE_NOOP("StringTable", "Local Port")},
    {57390, QT_TRANSLATE_NOOP("StringTable", "Romote Port")},
    {57391, QT_TRANSLATE_NOOP("StringTable", "TCP")},
    {57392, QT_TRANSLATE_NOOP("StringTable", "UDP")},
    {57393, QT_TRANSLATE_NOOP("StringTable", "TCP,UDP")},
    {57394,
     QT_TRANSLATE_NOOP("StringTable",
                       "Block all network connections including the current network in use.\n"
                       "[Warning] System may encounter an error.")},
    {57395, QT_TRANSLATE_NOOP("StringTable", "Unlimited")},
    {57396, QT_TRANSLATE_NOOP("StringTable",
                              "If Office Guard is selected, you may have to restart the system "
                              "when files related to Office Guard are patched.\n"
                              "Do you want to select the Office Guard?")},
    {57397, QT_TRANSLATE_NOOP("StringTable",
                              "If Explorer Scan is selected, you may have to restart the system "
                              "when files related to Explorer Scan are patched.\n"
                              "Do you want to select the Explorer Scan?")},
    {57398, QT_TRANSLATE_NOOP("StringTable", "Starting Port")},
    {57399, QT_TRANSLATE_NOOP("StringTable", "Ending Port")},
    {57400, QT_TRANSLATE_NOOP("StringTable", "Protocol")},
    {57401, QT_TRANSLATE_NOOP("StringTable", "Port Type")},
    {57402, QT_TRANSLATE_NOOP("StringTable", "Access Permission")},
    {57403, QT_TRANSLATE_NOOP("StringTable", "Validity Period")},
    {57404, QT_TRANSLATE_NOOP("StringTable",
                              "Starting Port Number should be smaller than Ending Port Number.")},
    {57405, QT_TRANSLATE_NOOP("StringTable", "Please select the Access Permission.")},
    {57406, QT_TRANSLATE_NOOP("StringTable", "Please select the protocol.")},
    {57407, QT_TRANSLATE_NOOP("StringTable", "Q9Pro 2004 Master")},
    {57409, QT_TRANSLATE_NOOP("StringTable", "Do you want to delete the selected items?")},
    {57410, QT_TRANSLATE_NOOP("StringTable", "Port Block Logs do not exist.")},
    {57411, QT_TRANSLATE_NOOP("StringTable", "The port information has been modified.")},
    {57412, QT_TRANSLATE_NOOP("StringTable",
                              "If you disable this option, all the alert messages from the tray "
                              "icon cannot be viewed.")},
    {57413, QT_TRANSLATE_NOOP("StringTable", "Ports List")},
    {57414, QT_TRANSLATE_NOOP("StringTable", "Please enter the value with more than 10 minutes.")},
    {57430, QT_TRANSLATE_NOOP("StringTable", "Test a path")},
    {57431, QT_TRANSLATE_NOOP("StringTable", "Which path should be tested?")},
    {57432,
     QT_TRANSLATE_NOOP("StringTable", "\"%s\" is excluded from scans by the folder \"%s\".")},
    {57433, QT_TRANSLATE_NOOP("StringTable", "\"%s\" is excluded from scans by the file \"%s\".")},
    {57434,
     QT_TRANSLATE_NOOP("StringTable", "\"%s\" is excluded from scans by the extension \"%s\".")},
    {57435, QT_TRANSLATE_NOOP("StringTable", "This row belongs to this product.")},
    {57436, QT_TRANSLATE_NOOP("StringTable", "This row belongs to another product (%s).")},
    {57437, QT_TRANSLATE_NOOP("StringTable", "It matched the network path \"%s\".")},
    {57438, QT_TRANSLATE_NOOP("StringTable", "\"%s\" is not excluded from scans.")},
    {57450, QT_TRANSLATE_NOOP("StringTable",
                              "The alert sound cannot be played: no sound device is available.")},
    {57451, QT_TRANSLATE_NOOP("StringTable", "This file cannot be played as an alert sound.")},
    {57460, QT_TRANSLATE_NOOP("StringTable",
                              "The settings could not be saved: the configuration file cannot be "
                              "written or is damaged. Your changes are kept. Press OK to try "
                              "again, or Cancel to discard them.")},
    {57461, QT_TRANSLATE_NOOP("StringTable",
                              "These settings files cannot be read:\n\n%s\n\nThey are left as "
                              "they are. The settings they hold are shown with their default "
                              "values, and changes to them cannot be saved until the files are "
                              "repaired or removed.")},
    {57470, QT_TRANSLATE_NOOP("StringTable", "Can't open link:\n\n")},
    {57471,
     QT_TRANSLATE_NOOP("StringTable", "The operating system is out\nof memory or resources.")},
    {57472, QT_TRANSLATE_NOOP("StringTable", "The specified file was not found.")},
    {57473, QT_TRANSLATE_NOOP("StringTable", "The specified path was not found.")},
    {57474, QT_TRANSLATE_NOOP("StringTable",
                              "The operating system denied\naccess to the specified file.")},
    {57475,
     QT_TRANSLATE_NOOP("StringTable", "There was not enough memory to complete the operation.")},
    {57476,
     QT_TRANSLATE_NOOP("StringTable",
                       "The .EXE file is invalid\n(non-Win32 .EXE or error in .EXE image).")},
    {57477, QT_TRANSLATE_NOOP("StringTable", "A sharing violation occurred. ")},
    {57478, QT_TRANSLATE_NOOP("StringTable", "The specified dynamic-link library was not found.")},
    {57479, QT_TRANSLATE_NOOP("StringTable", "Unknown Error (%d) occurred.")},
};

constexpr bool IdsAscendUnique() {
    return std::adjacent_find(std::begin(kStrings), std::end(kStrings),
                              [](const StringEntry& a, const StringEntry& b) {
                                  return a.id >= b.id;
                              }) == std::end(kStrings);
}
static_assert(IdsAscendUnique(), "the string table must stay sorted by id, one entry per id");

const StringEntry* Find(uint32_t id) {
    const auto* it =
        std::lower_bound(std::begin(kStrings), std::end(kStrings), id,
                         [](const StringEntry& e, uint32_t key) { return e.id < key; });
    return (it != std::end(kStrings) && it->id == id) ? it : nullptr;
}

}  // namespace

std::string LoadString(uint32_t id) {
    const StringEntry* entry = Find(id);
    if (!entry) return {};
    return QCoreApplication::translate("StringTable", entry->text).toStdString();
}

bool HasString(uint32_t id) { return Find(id) != nullptr; }

std::vector<uint32_t> StringIds() {
    std::vector<uint32_t> ids;
    ids.reserve(std::size(kStrings));
    for (const StringEntry& entry : kStrings) ids.push_back(entry.id);
    return ids;
}
