// The C entry points: each answers what FunctionControl says (0 when it
// throws) and records the call in the journal. errno holds the reason of
// an answer of 0 where FunctionControl gives one.

#include <cerrno>
#include <optional>
#include <string>

#include "CallJournal.h"
#include "FunctionControl.h"
#include "Q9SSCtrl.h"

namespace {

using q9ssctrl::CallJournal;
using q9ssctrl::FunctionControl;

// Runs the question and journals its answer; a throw answers 0.
template <typename Question>
int32_t Journalled(const char* entryPoint, std::optional<int32_t> item,
                   const std::string& arguments, Question question) {
    int32_t result = 0;
    errno = 0;
    try {
        result = question(FunctionControl()) ? 1 : 0;
    } catch (...) {
        result = 0;
    }
    // The caller reads errno as the reason of the answer: the journal's
    // file calls must not change it.
    const int reason = errno;
    try {
        CallJournal::Append(entryPoint, item, arguments, result);
    } catch (...) {
        // The answer stands without its journal line.
    }
    errno = reason;
    return result;
}

}  // namespace

extern "C" {

int32_t Q9SSCtrl_CanBeRegister(int32_t item) {
    return Journalled("Q9SSCtrl_CanBeRegister", item, {},
                      [=](const FunctionControl& control) { return control.CanBeRegister(item); });
}

int32_t Q9SSCtrl_IsRegistered(int32_t item) {
    return Journalled("Q9SSCtrl_IsRegistered", item, {},
                      [=](const FunctionControl& control) { return control.IsRegistered(item); });
}

int32_t Q9SSCtrl_Register(int32_t item) {
    return Journalled("Q9SSCtrl_Register", item, {},
                      [=](const FunctionControl& control) { return control.Register(item); });
}

int32_t Q9SSCtrl_Unregister(int32_t item, int32_t timeoutMs, int32_t flags) {
    std::string arguments;
    try {
        arguments = std::to_string(timeoutMs) + ' ' + std::to_string(flags);
    } catch (...) {
        return 0;
    }
    return Journalled("Q9SSCtrl_Unregister", item, arguments, [=](const FunctionControl& control) {
        return control.Unregister(item, timeoutMs);
    });
}

int32_t Q9SSCtrl_SetCfgChanged(int32_t item) {
    return Journalled("Q9SSCtrl_SetCfgChanged", item, {},
                      [=](const FunctionControl& control) { return control.SetCfgChanged(item); });
}

int32_t Q9SSCtrl_HasEnoughPrivilege(void) {
    return Journalled("Q9SSCtrl_HasEnoughPrivilege", std::nullopt, {},
                      [](const FunctionControl& control) { return control.HasEnoughPrivilege(); });
}

}  // extern "C"
