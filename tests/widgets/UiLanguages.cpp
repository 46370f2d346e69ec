#include "UiLanguages.h"

#include <QCoreApplication>
#include <QString>
#include <algorithm>
#include <filesystem>

#include "support/TestPaths.h"

void PrintTo(const UiLanguage& language, std::ostream* out) { *out << language.name; }

std::vector<UiLanguage> UiLanguages() {
    std::vector<UiLanguage> translations;
    const std::filesystem::path folder(TestPath("translations"));
    if (std::filesystem::is_directory(folder)) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() != ".qm") continue;
            translations.push_back({entry.path().stem().string(), entry.path().string()});
        }
    }
    std::sort(translations.begin(), translations.end(),
              [](const UiLanguage& a, const UiLanguage& b) { return a.name < b.name; });
    std::vector<UiLanguage> languages = {{"English", ""}};
    languages.insert(languages.end(), translations.begin(), translations.end());
    return languages;
}

ScopedUiLanguage::ScopedUiLanguage(const UiLanguage& language) {
    if (language.file.empty()) {
        m_loaded = true;
        return;
    }
    // An empty translation would leave every text English and pass unseen.
    m_loaded = m_translator.load(QString::fromStdString(language.file)) && !m_translator.isEmpty();
    if (m_loaded) m_installed = QCoreApplication::installTranslator(&m_translator);
}

ScopedUiLanguage::~ScopedUiLanguage() {
    if (m_installed) QCoreApplication::removeTranslator(&m_translator);
}
