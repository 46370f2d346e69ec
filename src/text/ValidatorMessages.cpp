#include "text/ValidatorMessages.h"

#include "text/GroupedText.h"
#include "text/MessageService.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"

std::string RangeMessageText(int32_t low, int32_t high) {
    return FormatResource(LoadString(strings::kRangeMessage).c_str(),
                          FormatGroupedNumber(low).c_str(), FormatGroupedNumber(high).c_str());
}

std::string LengthMessageText(int32_t limit) {
    return FormatResource(LoadString(strings::kLengthMessage).c_str(), limit);
}

int32_t ShowRangeMessage(QWidget* owner, int32_t low, int32_t high) {
    return ShowConfigurationError(owner, RangeMessageText(low, high));
}

int32_t ShowConfigurationError(QWidget* owner, const std::string& text) {
    ShowMessage(owner, text, LoadString(strings::kConfigurationError), msg::kOk);
    return 1;
}

int32_t ShowLengthMessage(QWidget* owner, int32_t limit) {
    ShowMessage(owner, LengthMessageText(limit), LoadString(strings::kConfigurationError),
                msg::kOk);
    return 1;
}

bool ExceedsLength(const std::string& text, int32_t limit) {
    return limit >= 0 && text.size() > static_cast<std::size_t>(limit);
}

int32_t ValidateLength(QWidget* owner, const std::string& text, int32_t limit) {
    return ExceedsLength(text, limit) ? ShowLengthMessage(owner, limit) : 0;
}
