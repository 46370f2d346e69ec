#pragma once

// Function registration (libQ9SSCtrl.so): whether each function of the
// product can be registered with the service, whether it is, the steps that
// change that, and whether the user may change registrations at all.
//
// The library is loaded on first need and kept until Release. A missing
// library or entry point answers 0.

#include <cstdint>

#include "platform/SharedLibrary.h"

// The operations of Control. Any op other than 1 to 4 asks CanBeRegister.
enum ServiceControlOp : int32_t {
    SC_CanBeRegister = 0,
    SC_IsRegistered = 1,
    SC_Register = 2,
    SC_Unregister = 3,
    SC_SetCfgChanged = 4,
};

// The option every caller but the silent policy step passes.
constexpr int32_t kServiceOption = 2;
// How long Unregister waits for a function to stop.
constexpr int32_t kUnregisterTimeoutMs = 5000;

class RegistrationBinding {
public:
    // 1 when the library is loaded (at once when it already is), else 0.
    int32_t Load();
    void Release();

    // The entry point of op: op 3 is Unregister(item, 5000, option); the
    // other ops pass the item alone.
    int32_t Control(int32_t op, int32_t item, int32_t option);
    // The reason the library gave with the last Control's answer: the errno
    // it left (ENOTSUP: this system cannot run the function; 0: none), or
    // ENOENT when the library is missing.
    int32_t LastError() const { return m_lastError; }

    // Whether the user may change registrations.
    int32_t HasEnoughPrivilege();

private:
    platform::SharedLibrary m_library;
    int32_t m_lastError = 0;
};
