#include "pages/scan/MonitorQuestion.h"

#include <string>

#include "text/MessageService.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"

bool ConfirmMonitorOff(QWidget* owner, int restartMinutes) {
    const std::string text =
        restartMinutes >= 0
            ? FormatResource(LoadString(strings::kCloseMonitorRestartQuestion).c_str(),
                             restartMinutes)
            : LoadString(strings::kCloseMonitorQuestion);
    return ShowApplicationMessage(owner, text, msg::kYesNo | msg::kIconQuestion) == msg::kIdYes;
}
