#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/LocaleEnvironment.h"
#include "OrvI18N.h"
#include "support/TemporaryRegistry.h"

namespace {

class ResourceLookupTest : public testing::Test {
protected:
    // The installation directory, ending in '/'.
    std::string Directory() const { return scratch.Base() + "/"; }

    std::string Put(const std::string& name) const {
        std::filesystem::create_directories(Directory() + "Lang");
        const std::string path = Directory() + "Lang/" + name;
        std::ofstream(path) << "not looked into";
        return path;
    }

    // The path of the handle loaded for locale; empty for a null handle.
    std::string FileFor(const std::string& locale, const char* family = "Q9CU") {
        environment.UseLocale(locale);
        void* handle = OrvI18N_LoadResources(Directory().c_str(), family);
        if (!handle) return {};
        std::string path = OrvI18N_GetResourceFile(handle);
        OrvI18N_FreeResources(handle);
        return path;
    }

    TemporaryRegistry scratch;  // used for its temporary directory
    LocaleEnvironment environment;
};

}  // namespace

TEST_F(ResourceLookupTest, LanguagesOwnFileIsFound) {
    const std::string german = Put("Q9CU_1031.qm");
    const std::string japanese = Put("Q9CU_1041.qm");
    EXPECT_EQ(FileFor("de_DE.UTF-8"), german);
    EXPECT_EQ(FileFor("ja_JP.UTF-8"), japanese);
}

TEST_F(ResourceLookupTest, TerritoryFallsBackToTheLanguagesMainFile) {
    const std::string german = Put("Q9CU_1031.qm");
    EXPECT_EQ(FileFor("de_AT.UTF-8"), german);
    const std::string austrian = Put("Q9CU_3079.qm");
    EXPECT_EQ(FileFor("de_AT.UTF-8"), austrian);
    EXPECT_EQ(FileFor("de_CH.UTF-8"), german);
}

TEST_F(ResourceLookupTest, UsEnglishIsBuiltIn) {
    Put("Q9CU_1033.qm");
    EXPECT_EQ(FileFor("en_US.UTF-8"), "");
    EXPECT_EQ(FileFor("C"), "");
    // British English has its own file when there is one, and otherwise the
    // built-in language: its main language is US English.
    EXPECT_EQ(FileFor("en_GB.UTF-8"), "");
    const std::string british = Put("Q9CU_2057.qm");
    EXPECT_EQ(FileFor("en_GB.UTF-8"), british);
}

TEST_F(ResourceLookupTest, MissingFileGivesNull) {
    Put("Q9CU_1031.qm");
    EXPECT_EQ(FileFor("fr_FR.UTF-8"), "");
    EXPECT_EQ(FileFor("de_DE.UTF-8", "Other"), "");
}

TEST_F(ResourceLookupTest, FamilyNamesTheFile) {
    const std::string other = Put("Other_1036.qm");
    EXPECT_EQ(FileFor("fr_FR.UTF-8", "Other"), other);
}

TEST_F(ResourceLookupTest, DirectoryNotAFileIsNotTaken) {
    std::filesystem::create_directories(Directory() + "Lang/Q9CU_1031.qm");
    EXPECT_EQ(FileFor("de_DE.UTF-8"), "");
}

TEST_F(ResourceLookupTest, DirectoryWithoutFinalSlashGetsOne) {
    const std::string german = Put("Q9CU_1031.qm");
    environment.UseLocale("de_DE.UTF-8");
    void* handle = OrvI18N_LoadResources(scratch.Base().c_str(), "Q9CU");
    ASSERT_NE(handle, nullptr);
    EXPECT_STREQ(OrvI18N_GetResourceFile(handle), german.c_str());
    OrvI18N_FreeResources(handle);
}

TEST_F(ResourceLookupTest, BadArgumentsGiveNull) {
    Put("Q9CU_1031.qm");
    environment.UseLocale("de_DE.UTF-8");
    EXPECT_EQ(OrvI18N_LoadResources(nullptr, "Q9CU"), nullptr);
    EXPECT_EQ(OrvI18N_LoadResources(Directory().c_str(), nullptr), nullptr);
    EXPECT_EQ(OrvI18N_LoadResources(Directory().c_str(), ""), nullptr);
    // A family cannot lead out of the translation folder.
    std::filesystem::create_directories(Directory() + "sub/Lang");
    EXPECT_EQ(OrvI18N_LoadResources((Directory() + "sub/").c_str(), "../../Lang/Q9CU"), nullptr);
}

TEST_F(ResourceLookupTest, EachHandleOwnsItsPath) {
    const std::string german = Put("Q9CU_1031.qm");
    environment.UseLocale("de_DE.UTF-8");
    void* first = OrvI18N_LoadResources(Directory().c_str(), "Q9CU");
    void* second = OrvI18N_LoadResources(Directory().c_str(), "Q9CU");
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    const char* secondPath = OrvI18N_GetResourceFile(second);
    OrvI18N_FreeResources(first);
    std::filesystem::remove(german);
    EXPECT_STREQ(secondPath, german.c_str());
    EXPECT_EQ(OrvI18N_GetResourceFile(first), nullptr);
    OrvI18N_FreeResources(second);
}

TEST_F(ResourceLookupTest, NullAndUnknownHandlesAreHarmless) {
    int notAHandle = 0;
    EXPECT_EQ(OrvI18N_GetResourceFile(nullptr), nullptr);
    EXPECT_EQ(OrvI18N_GetResourceFile(&notAHandle), nullptr);
    OrvI18N_FreeResources(nullptr);
    OrvI18N_FreeResources(&notAHandle);
}
