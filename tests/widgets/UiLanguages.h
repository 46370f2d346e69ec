#pragma once

// The languages a dialog can be shown in: the program's own English texts
// and each translation file the build made (<build>/lib/Lang/*.qm). Widget
// tests that judge how texts look go through all of them.

#include <QTranslator>
#include <ostream>
#include <string>
#include <vector>

struct UiLanguage {
    std::string name;  // "English", or the translation's file name: "Q9CU_1031"
    std::string file;  // the .qm file; empty for English
};

// Test output names the language.
void PrintTo(const UiLanguage& language, std::ostream* out);

// English first, then the translations in file name order.
std::vector<UiLanguage> UiLanguages();

// The file name of the German translation, which the build always makes.
constexpr const char* kGermanTranslationName = "Q9CU_1031";

// Installs the language's translation for as long as it lives (nothing for
// English); Loaded() tells whether the file could be read and holds texts.
class ScopedUiLanguage {
public:
    explicit ScopedUiLanguage(const UiLanguage& language);
    ~ScopedUiLanguage();
    ScopedUiLanguage(const ScopedUiLanguage&) = delete;
    ScopedUiLanguage& operator=(const ScopedUiLanguage&) = delete;

    bool Loaded() const { return m_loaded; }

private:
    QTranslator m_translator;
    bool m_installed = false;
    bool m_loaded = false;
};
