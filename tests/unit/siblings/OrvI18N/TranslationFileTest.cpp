// The translation file the library finds is one Qt can install: a German
// translation compiled from tests/data/OrvI18N at build time.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "support/LocaleEnvironment.h"
#include "OrvI18N.h"
#include "support/TestPaths.h"

namespace {

// Where the build puts the compiled test translation, as an installation
// directory's "Lang" folder.
const std::string kInstallation = TestPath("helpers") + "/OrvI18N/";

}  // namespace

TEST(TranslationFileTest, FoundFileTranslatesTheStringTable) {
    LocaleEnvironment environment;
    environment.UseLocale("de_DE.UTF-8");
    void* handle = OrvI18N_LoadResources(kInstallation.c_str(), "Q9CU");
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(std::string(OrvI18N_GetResourceFile(handle)), kInstallation + "Lang/Q9CU_1031.qm");

    QTranslator translator;
    ASSERT_TRUE(translator.load(QString::fromUtf8(OrvI18N_GetResourceFile(handle))));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    EXPECT_EQ(QCoreApplication::translate("StringTable", "Configuration"), "Konfiguration");
    EXPECT_EQ(QCoreApplication::translate("StringTable", "Warning"), "Warnung");
    EXPECT_EQ(QCoreApplication::translate("StringTable", "Error"), "Error");
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(QCoreApplication::translate("StringTable", "Configuration"), "Configuration");
    OrvI18N_FreeResources(handle);
}

TEST(TranslationFileTest, AustrianSessionUsesTheGermanFile) {
    LocaleEnvironment environment;
    environment.UseLocale("de_AT.UTF-8");
    void* handle = OrvI18N_LoadResources(kInstallation.c_str(), "Q9CU");
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(std::string(OrvI18N_GetResourceFile(handle)), kInstallation + "Lang/Q9CU_1031.qm");
    OrvI18N_FreeResources(handle);
}

TEST(TranslationFileTest, ExportsWorkWhenLoadedByName) {
    LocaleEnvironment environment;
    environment.UseLocale("de_DE.UTF-8");
    void* library = dlopen((TestPath("library") + "/libOrvI18N.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    using Load = void* (*)(const char*, const char*);
    using Free = void (*)(void*);
    using File = const char* (*)(void*);
    using Language = uint32_t (*)();
    const auto load = reinterpret_cast<Load>(dlsym(library, "OrvI18N_LoadResources"));
    const auto release = reinterpret_cast<Free>(dlsym(library, "OrvI18N_FreeResources"));
    const auto file = reinterpret_cast<File>(dlsym(library, "OrvI18N_GetResourceFile"));
    const auto language = reinterpret_cast<Language>(dlsym(library, "OrvI18N_GetLanguage"));
    ASSERT_TRUE(load && release && file && language);

    EXPECT_EQ(language() & 0xFFFF, 1031u);
    void* handle = load(kInstallation.c_str(), "Q9CU");
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(std::string(file(handle)), kInstallation + "Lang/Q9CU_1031.qm");
    release(handle);
    dlclose(library);
}
