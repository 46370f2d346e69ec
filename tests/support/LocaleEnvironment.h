#pragma once

// Sets the locale variables the language is read from for the object's
// lifetime, and restores them afterwards.

#include <stdlib.h>

#include <array>
#include <optional>
#include <string>

class LocaleEnvironment {
public:
    static constexpr std::array<const char*, 4> kVariables = {"LANGUAGE", "LC_ALL", "LC_MESSAGES",
                                                              "LANG"};

    // Clears all four variables.
    LocaleEnvironment() {
        for (std::size_t i = 0; i < kVariables.size(); ++i) {
            if (const char* value = std::getenv(kVariables[i])) m_saved[i] = value;
            unsetenv(kVariables[i]);
        }
    }
    ~LocaleEnvironment() {
        for (std::size_t i = 0; i < kVariables.size(); ++i) {
            if (m_saved[i]) {
                setenv(kVariables[i], m_saved[i]->c_str(), 1);
            } else {
                unsetenv(kVariables[i]);
            }
        }
    }
    LocaleEnvironment(const LocaleEnvironment&) = delete;
    LocaleEnvironment& operator=(const LocaleEnvironment&) = delete;

    void Set(const char* variable, const std::string& value) { setenv(variable, value.c_str(), 1); }

    // Only LANG set, to locale.
    void UseLocale(const std::string& locale) {
        for (const char* variable : kVariables) unsetenv(variable);
        Set("LANG", locale);
    }

private:
    std::array<std::optional<std::string>, 4> m_saved;
};
