#include "framework/QtMessageService.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>
#include <utility>
#include <vector>

#include "framework/GuiApplication.h"

namespace {

using Button = std::pair<QMessageBox::StandardButton, int32_t>;

std::vector<Button> ButtonsFor(uint32_t type) {
    switch (type & msg::kButtonMask) {
        case msg::kOkCancel:
            return {{QMessageBox::Ok, msg::kIdOk}, {QMessageBox::Cancel, msg::kIdCancel}};
        case msg::kYesNoCancel:
            return {{QMessageBox::Yes, msg::kIdYes},
                    {QMessageBox::No, msg::kIdNo},
                    {QMessageBox::Cancel, msg::kIdCancel}};
        case msg::kYesNo: return {{QMessageBox::Yes, msg::kIdYes}, {QMessageBox::No, msg::kIdNo}};
        case msg::kRetryCancel:
            return {{QMessageBox::Retry, msg::kIdRetry}, {QMessageBox::Cancel, msg::kIdCancel}};
        default: return {{QMessageBox::Ok, msg::kIdOk}};
    }
}

QMessageBox::Icon IconFor(uint32_t type) {
    switch (type & msg::kIconMask) {
        case msg::kIconError: return QMessageBox::Critical;
        case msg::kIconQuestion: return QMessageBox::Question;
        case msg::kIconWarning: return QMessageBox::Warning;
        case msg::kIconInformation: return QMessageBox::Information;
        default: return QMessageBox::NoIcon;
    }
}

}  // namespace

int32_t QtMessageService::Show(QWidget* owner, const std::string& text, const std::string& caption,
                               uint32_t type) {
    if (!EnsureGuiApplication()) return ConsoleMessageService().Show(owner, text, caption, type);
    QMessageBox box(owner);
    box.setIcon(IconFor(type));
    box.setText(QString::fromStdString(text));
    box.setWindowTitle(QString::fromStdString(caption));
    const std::vector<Button> buttons = ButtonsFor(type);
    for (const auto& [button, answer] : buttons) box.addButton(button);

    const std::size_t defaultIndex = (type & msg::kDefaultButtonMask) >> 8;
    if (defaultIndex < buttons.size()) box.setDefaultButton(buttons[defaultIndex].first);
    // Closing the box with Escape or its title bar answers Cancel where there
    // is one, as the platform's boxes do; otherwise the only button.
    box.setEscapeButton(buttons.size() > 1 ? buttons.back().first : buttons.front().first);

    const auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const auto& [button, answer] : buttons) {
        if (button == pressed) return answer;
    }
    return msg::kIdCancel;
}
