#include "shell/LanguageResources.h"

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

LanguageResources::LanguageResources() = default;

LanguageResources::~LanguageResources() { Release(); }

void LanguageResources::Load(const std::string& directory) {
    Release();
    if (!m_library.Load(directory, "OrvI18N")) return;
    m_handle = m_library.CallOr<void*(const char*, const char*)>(nullptr, "OrvI18N_LoadResources",
                                                                 directory.c_str(), kFamily);
    const char* file =
        m_library.CallOr<const char*(void*)>(nullptr, "OrvI18N_GetResourceFile", m_handle);
    if (!m_handle || !file || !QCoreApplication::instance()) return;
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(QString::fromUtf8(file)) &&
        QCoreApplication::installTranslator(translator.get())) {
        m_translator = std::move(translator);
    }
}

void LanguageResources::Release() {
    if (m_translator) QCoreApplication::removeTranslator(m_translator.get());
    m_translator.reset();
    if (m_handle) m_library.CallIfPresent<void(void*)>("OrvI18N_FreeResources", m_handle);
    m_handle = nullptr;
    m_library.Release();
}
