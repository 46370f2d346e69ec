#pragma once

// Sets one environment variable (or removes it) for the object's lifetime,
// and restores it afterwards.

#include <stdlib.h>

#include <optional>
#include <string>

class ScopedVariable {
public:
    // value null: the variable is removed.
    ScopedVariable(const char* name, const char* value) : m_name(name) {
        if (const char* previous = std::getenv(name)) m_previous = previous;
        if (value != nullptr) {
            setenv(name, value, 1);
        } else {
            unsetenv(name);
        }
    }
    ~ScopedVariable() {
        if (m_previous) {
            setenv(m_name.c_str(), m_previous->c_str(), 1);
        } else {
            unsetenv(m_name.c_str());
        }
    }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    std::string m_name;
    std::optional<std::string> m_previous;
};
