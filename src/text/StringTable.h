#pragma once

// The program's string table: every text a user sees, by string id, in the
// language of the session (translations are installed as Qt translators in
// the context "StringTable").

#include <cstdint>
#include <string>
#include <vector>

namespace strings {

// String ids used across several parts of the program.
constexpr uint32_t kConfigurationError = 900;
constexpr uint32_t kInformation = 901;
constexpr uint32_t kWarning = 902;
constexpr uint32_t kError = 903;
constexpr uint32_t kRangeMessage = 1000;
constexpr uint32_t kCloseMonitorQuestion = 1019;
constexpr uint32_t kNotAuthorized = 1021;
constexpr uint32_t kLowBattery = 1022;
constexpr uint32_t kNewVirusDetected = 1023;
constexpr uint32_t kInfectedByViruses = 1024;
constexpr uint32_t kSelfScanFailed = 1025;
constexpr uint32_t kUnableToExecute = 1026;
constexpr uint32_t kCloseMonitorRestartQuestion = 1027;
constexpr uint32_t kSwitchToCustomized = 1033;
constexpr uint32_t kApplicationName = 57344;
constexpr uint32_t kWarningCaption = 57353;
constexpr uint32_t kLengthMessage = 57354;
constexpr uint32_t kOfficeGuardQuestion = 57396;
constexpr uint32_t kExplorerScanQuestion = 57397;
constexpr uint32_t kSaveFailed = 57460;
constexpr uint32_t kUnreadableFiles = 57461;

}  // namespace strings

// The text of a string id, translated; empty text for an id not in the table.
std::string LoadString(uint32_t id);

// Whether the table has the id.
bool HasString(uint32_t id);

// Every id of the table, ascending.
std::vector<uint32_t> StringIds();
