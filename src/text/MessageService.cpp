#include "text/MessageService.h"

#include <QCoreApplication>
#include <cstdio>

namespace msg {

int32_t DefaultAnswer(uint32_t type) {
    static constexpr int32_t kAnswers[][3] = {
        {kIdOk, kIdOk, kIdOk},             // kOk
        {kIdOk, kIdCancel, kIdCancel},     // kOkCancel
        {kIdOk, kIdOk, kIdOk},             // abort/retry/ignore: not used
        {kIdYes, kIdNo, kIdCancel},        // kYesNoCancel
        {kIdYes, kIdNo, kIdNo},            // kYesNo
        {kIdRetry, kIdCancel, kIdCancel},  // kRetryCancel
    };
    const uint32_t buttons = type & kButtonMask;
    const uint32_t position = (type & kDefaultButtonMask) >> 8;
    if (buttons >= std::size(kAnswers) || position > 2) return kIdOk;
    return kAnswers[buttons][position];
}

}  // namespace msg

int32_t ConsoleMessageService::Show(QWidget*, const std::string& text, const std::string& caption,
                                    uint32_t type) {
    std::fprintf(stderr, "[%s] %s\n", caption.c_str(), text.c_str());
    return msg::DefaultAnswer(type);
}

namespace {

ConsoleMessageService g_consoleService;
MessageService* g_currentService = nullptr;

}  // namespace

MessageService& MessageService::Current() {
    return g_currentService ? *g_currentService : g_consoleService;
}

MessageService* MessageService::Install(MessageService* service) {
    MessageService* previous = g_currentService;
    g_currentService = service;
    return previous;
}

int32_t ShowMessage(QWidget* owner, const std::string& text, const std::string& caption,
                    uint32_t type) {
    return MessageService::Current().Show(owner, text, caption, type);
}

int32_t ShowApplicationMessage(QWidget* owner, const std::string& text, uint32_t type) {
    return ShowMessage(owner, text, QCoreApplication::applicationName().toStdString(), type);
}
