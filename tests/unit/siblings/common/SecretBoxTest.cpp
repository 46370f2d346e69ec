#include "common/SecretBox.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "support/TemporaryRegistry.h"

namespace {

class SecretBoxTest : public testing::Test {
protected:
    std::string KeyPath() const { return scratch.Base() + "/q9install.key"; }
    TemporaryRegistry scratch;  // used only for its temporary directory
};

}  // namespace

TEST_F(SecretBoxTest, SealedTextOpensToThePlainTextAndDoesNotContainIt) {
    sibling::SecretBox box(KeyPath());
    const auto sealed = box.Seal("Secret Password 1");
    ASSERT_TRUE(sealed);
    EXPECT_EQ(sealed->find("Secret"), std::string::npos);
    EXPECT_EQ(box.Open(*sealed), "Secret Password 1");
}

TEST_F(SecretBoxTest, EqualSecretsSealDifferently) {
    sibling::SecretBox box(KeyPath());
    EXPECT_NE(box.Seal("same"), box.Seal("same"));
}

TEST_F(SecretBoxTest, KeyFileIsMadeOnceAndReadableByItsOwnerOnly) {
    sibling::SecretBox box(KeyPath());
    const auto sealed = box.Seal("x");
    ASSERT_TRUE(sealed);
    struct stat info {};
    ASSERT_EQ(stat(KeyPath().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
    EXPECT_EQ(info.st_size, 32);
    // A second box on the same installation opens what the first sealed.
    EXPECT_EQ(sibling::SecretBox(KeyPath()).Open(*sealed), "x");
}

TEST_F(SecretBoxTest, AnotherInstallationsKeyCannotOpenIt) {
    const auto sealed = sibling::SecretBox(KeyPath()).Seal("mine");
    ASSERT_TRUE(sealed);
    EXPECT_FALSE(sibling::SecretBox(scratch.Base() + "/other.key").Open(*sealed));
}

TEST_F(SecretBoxTest, ChangedOrMalformedTextDoesNotOpen) {
    sibling::SecretBox box(KeyPath());
    std::string sealed = *box.Seal("text");
    sealed[sealed.size() / 2] = sealed[sealed.size() / 2] == 'A' ? 'B' : 'A';
    EXPECT_FALSE(box.Open(sealed));
    EXPECT_FALSE(box.Open("not base64 !!"));
    EXPECT_FALSE(box.Open(""));
}

TEST_F(SecretBoxTest, EmptyTextRoundTrips) {
    sibling::SecretBox box(KeyPath());
    EXPECT_EQ(box.Open(*box.Seal("")), "");
}
