#include "text/LinkMessages.h"

#include <cerrno>
#include <cstdint>

#include "text/StringTable.h"
#include "text/TextFormat.h"

namespace {

constexpr uint32_t kCantOpenLink = 57470;
constexpr uint32_t kUnknownError = 57479;

struct ErrorText {
    int error;
    uint32_t textId;
};

constexpr ErrorText kErrorTexts[] = {
    {EAGAIN, 57471},   // no process could be made: out of resources
    {ENOENT, 57472},   // the program is not there
    {ENOTDIR, 57473},  // a part of its path is not a folder
    {EACCES, 57474},   // the program or its folder may not be run or entered
    {EPERM, 57474},   {ENOMEM, 57475}, {ENOEXEC, 57476},  // not a program the system can run
    {ETXTBSY, 57477},  // the program is being written by another process
    {ELIBACC, 57478},  // a library the program needs is missing
};

}  // namespace

std::string LinkErrorText(int error) {
    for (const ErrorText& entry : kErrorTexts) {
        if (entry.error == error) return LoadString(entry.textId);
    }
    return FormatResource(LoadString(kUnknownError).c_str(), error);
}

std::string OpenLinkFailureText(int error) {
    return LoadString(kCantOpenLink) + LinkErrorText(error);
}
