#pragma once

// Every message box of the program goes through one replaceable service, so
// that tests can answer boxes and read what they said. Box types and answers
// keep the numbers of the original platform's message boxes.

#include <cstdint>
#include <string>

class QWidget;

namespace msg {

// Buttons (low nibble).
constexpr uint32_t kOk = 0x0;
constexpr uint32_t kOkCancel = 0x1;
constexpr uint32_t kYesNoCancel = 0x3;
constexpr uint32_t kYesNo = 0x4;
constexpr uint32_t kRetryCancel = 0x5;
constexpr uint32_t kButtonMask = 0xF;

// Icons.
constexpr uint32_t kIconError = 0x10;
constexpr uint32_t kIconQuestion = 0x20;
constexpr uint32_t kIconWarning = 0x30;
constexpr uint32_t kIconInformation = 0x40;
constexpr uint32_t kIconMask = 0xF0;

// Default button.
constexpr uint32_t kDefaultButton2 = 0x100;
constexpr uint32_t kDefaultButton3 = 0x200;
constexpr uint32_t kDefaultButtonMask = 0xF00;

// Answers.
constexpr int32_t kIdOk = 1;
constexpr int32_t kIdCancel = 2;
constexpr int32_t kIdRetry = 4;
constexpr int32_t kIdYes = 6;
constexpr int32_t kIdNo = 7;

// The answer of the button that is the default for this type.
int32_t DefaultAnswer(uint32_t type);

}  // namespace msg

class MessageService {
public:
    virtual ~MessageService() = default;

    // Shows one box and returns the answer (msg::kId*). The caption is shown
    // as given, also when empty.
    virtual int32_t Show(QWidget* owner, const std::string& text, const std::string& caption,
                         uint32_t type) = 0;

    // The service in use. Before one is installed, boxes are written to
    // standard error and answered with their default button, so that code
    // without a user interface never blocks.
    static MessageService& Current();

    // Installs a service (null restores the fallback); returns the previous
    // one. The caller keeps ownership.
    static MessageService* Install(MessageService* service);
};

// Writes each box to standard error as "[caption] text" and answers its
// default button: the service where no window can be shown.
class ConsoleMessageService final : public MessageService {
public:
    int32_t Show(QWidget* owner, const std::string& text, const std::string& caption,
                 uint32_t type) override;
};

// Shows a box through the current service.
int32_t ShowMessage(QWidget* owner, const std::string& text, const std::string& caption,
                    uint32_t type);

// Shows a box whose caption is the application's name (the session sets it).
int32_t ShowApplicationMessage(QWidget* owner, const std::string& text, uint32_t type);
