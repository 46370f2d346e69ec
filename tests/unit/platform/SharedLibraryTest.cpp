#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

#include "platform/SharedLibrary.h"
#include "support/TestPaths.h"

namespace {

using platform::LibraryFileName;
using platform::SharedLibrary;

const std::string kSiblingDirectory = TestPath("sibling_dir");
constexpr const char* kSibling = "Q9TestSibling";

// True when the sibling library is mapped into this process now.
bool SiblingIsResident() {
    const std::string path = kSiblingDirectory + "/" + LibraryFileName(kSibling);
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (!handle) return false;
    dlclose(handle);
    return true;
}

TEST(LibraryFileNameTest, AddsPrefixAndSuffix) {
    EXPECT_EQ(LibraryFileName("Q9SSCtrl"), "libQ9SSCtrl.so");
}

TEST(SharedLibraryTest, LoadsLibraryFromDirectoryAndCallsEntry) {
    SharedLibrary library;
    ASSERT_TRUE(library.Load(kSiblingDirectory, kSibling));
    EXPECT_TRUE(library.IsLoaded());
    EXPECT_EQ((library.CallOr<int32_t(int32_t)>(-1, "Q9TestSibling_Twice", 21)), 42);
}

TEST(SharedLibraryTest, AcceptsDirectoryEndingInSlash) {
    SharedLibrary library;
    EXPECT_TRUE(library.Load(kSiblingDirectory + "/", kSibling));
}

TEST(SharedLibraryTest, EntryGivesTypedFunction) {
    SharedLibrary library;
    ASSERT_TRUE(library.Load(kSiblingDirectory, kSibling));
    auto* greeting = library.Entry<const char*()>("Q9TestSibling_Greeting");
    ASSERT_NE(greeting, nullptr);
    EXPECT_STREQ(greeting(), "hello from the sibling");
    EXPECT_NE(library.Symbol("Q9TestSibling_Greeting"), nullptr);
}

TEST(SharedLibraryTest, MissingEntryGivesNullAndFallback) {
    SharedLibrary library;
    ASSERT_TRUE(library.Load(kSiblingDirectory, kSibling));
    EXPECT_EQ(library.Symbol("Q9TestSibling_Absent"), nullptr);
    EXPECT_EQ(library.Entry<int32_t(int32_t)>("Q9TestSibling_Absent"), nullptr);
    EXPECT_EQ((library.CallOr<int32_t(int32_t)>(-1, "Q9TestSibling_Absent", 21)), -1);
    EXPECT_EQ((library.CallOr<const char*()>(nullptr, "Q9TestSibling_Absent")), nullptr);
}

TEST(SharedLibraryTest, MissingLibraryFailsAndGivesFallback) {
    SharedLibrary library;
    EXPECT_FALSE(library.Load(kSiblingDirectory, "Q9NoSuchLibrary"));
    EXPECT_FALSE(library.IsLoaded());
    EXPECT_EQ(library.Symbol("Q9TestSibling_Twice"), nullptr);
    EXPECT_EQ((library.CallOr<int32_t(int32_t)>(0, "Q9TestSibling_Twice", 21)), 0);
}

TEST(SharedLibraryTest, MissingDirectoryFails) {
    SharedLibrary library;
    EXPECT_FALSE(library.Load(kSiblingDirectory + "/no-such-directory", kSibling));
    EXPECT_FALSE(library.IsLoaded());
}

// With no directory, the library must not be found elsewhere, not even as
// the copy this process has already loaded under the same name.
TEST(SharedLibraryTest, EmptyDirectoryIsRefused) {
    SharedLibrary resident;
    ASSERT_TRUE(resident.Load(kSiblingDirectory, kSibling));
    SharedLibrary library;
    EXPECT_FALSE(library.Load("", kSibling));
    EXPECT_FALSE(library.IsLoaded());
}

TEST(SharedLibraryTest, FailuresPrintNothingAndLeaveNoLoaderError) {
    testing::internal::CaptureStderr();
    SharedLibrary missing;
    EXPECT_FALSE(missing.Load(kSiblingDirectory, "Q9NoSuchLibrary"));
    EXPECT_EQ(dlerror(), nullptr);
    EXPECT_EQ((missing.CallOr<int32_t()>(0, "Q9TestSibling_Touches")), 0);
    SharedLibrary library;
    ASSERT_TRUE(library.Load(kSiblingDirectory, kSibling));
    EXPECT_EQ(library.Symbol("Q9TestSibling_Absent"), nullptr);
    EXPECT_EQ(dlerror(), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(SharedLibraryTest, LoadWhenLoadedAnswersTrueAndKeepsLibrary) {
    SharedLibrary library;
    ASSERT_TRUE(library.Load(kSiblingDirectory, kSibling));
    EXPECT_TRUE(library.Load(kSiblingDirectory, "Q9NoSuchLibrary"));
    EXPECT_EQ((library.CallOr<int32_t(int32_t)>(-1, "Q9TestSibling_Twice", 4)), 8);
}

TEST(SharedLibraryTest, CallIfPresentCallsEntryWithoutResult) {
    SharedLibrary library;
    ASSERT_TRUE(library.Load(kSiblingDirectory, kSibling));
    const int32_t before = library.CallOr<int32_t()>(-1, "Q9TestSibling_Touches");
    EXPECT_TRUE(library.CallIfPresent<void()>("Q9TestSibling_Touch"));
    EXPECT_EQ(library.CallOr<int32_t()>(-1, "Q9TestSibling_Touches"), before + 1);
    EXPECT_FALSE(library.CallIfPresent<void()>("Q9TestSibling_Absent"));
}

TEST(SharedLibraryTest, ReleaseUnloadsAndCallsGiveFallback) {
    SharedLibrary library;
    ASSERT_TRUE(library.Load(kSiblingDirectory, kSibling));
    library.Release();
    EXPECT_FALSE(library.IsLoaded());
    EXPECT_FALSE(SiblingIsResident());
    EXPECT_EQ((library.CallOr<int32_t(int32_t)>(-1, "Q9TestSibling_Twice", 21)), -1);
}

TEST(SharedLibraryTest, DestructorUnloads) {
    {
        SharedLibrary library;
        ASSERT_TRUE(library.Load(kSiblingDirectory, kSibling));
        ASSERT_TRUE(SiblingIsResident());
    }
    EXPECT_FALSE(SiblingIsResident());
}

TEST(SharedLibraryTest, MoveConstructionTransfersLibrary) {
    SharedLibrary first;
    ASSERT_TRUE(first.Load(kSiblingDirectory, kSibling));
    SharedLibrary second(std::move(first));
    EXPECT_FALSE(first.IsLoaded());  // NOLINT(bugprone-use-after-move)
    EXPECT_TRUE(second.IsLoaded());
    EXPECT_EQ((second.CallOr<int32_t(int32_t)>(-1, "Q9TestSibling_Twice", 5)), 10);
}

TEST(SharedLibraryTest, MoveAssignmentTransfersLibrary) {
    SharedLibrary first;
    ASSERT_TRUE(first.Load(kSiblingDirectory, kSibling));
    SharedLibrary second;
    second = std::move(first);
    EXPECT_FALSE(first.IsLoaded());  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ((second.CallOr<int32_t(int32_t)>(-1, "Q9TestSibling_Twice", 5)), 10);
    second = SharedLibrary();
    EXPECT_FALSE(second.IsLoaded());
    EXPECT_FALSE(SiblingIsResident());
}

}  // namespace
