#pragma once

// Asking for the product's password (section CES_Authorization): when the
// security functions are on and a password is set, a modal prompt must be
// answered with it. The password is compared in constant time and never
// written anywhere.

#include <cstdint>

namespace cfge {

class Authentication {
public:
    // Non-zero when authenticated: at once without a password, otherwise
    // when the prompt was answered with the right password within its tries.
    static int32_t Authenticate(uint64_t ownerWindow, const char* caption);

    // The native window id of a prompt open in any process; 0 when none.
    static uint64_t OpenPrompt();
};

}  // namespace cfge
