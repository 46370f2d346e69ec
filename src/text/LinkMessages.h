#pragma once

// The message of a link whose target could not be opened: string 57470
// "Can't open link:" followed by the text of the start's error number.

#include <string>

// The text of a failed start's error number (errno): the out of memory,
// not found, access, invalid program, busy file and missing library errors
// have texts of their own; any other number gives "Unknown Error (%d)
// occurred." with the number.
std::string LinkErrorText(int error);

// The whole message: "Can't open link:\n\n" and LinkErrorText.
std::string OpenLinkFailureText(int error);
