// The session's mail account object, seen through the loaded library with
// the handle probe in the place of the mail account library: the probe
// records every object it makes and frees.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "CallerInstallation.h"
#include "q9cfgul.h"
#include "support/TestPaths.h"

namespace {

using DoModalFn = int32_t(uint64_t, uint32_t, int32_t*, const char*, const char*);

// A mode no shell answers to: the session starts and ends without a window.
constexpr uint32_t kUnknownMode = 5;

}  // namespace

TEST(SessionAccounts, TheObjectIsFreedOnceWhenTheSessionEnds) {
    CallerInstallation caller({"Q9SSCtrl"});
    caller.install.Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
    std::filesystem::copy_file(TestPath("handle_probe"), caller.install.PathOf("libQ9P3ATHL.so"));
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    auto* doModal = caller.Entry<DoModalFn>("Q9CfgUL_DoModal");
    ASSERT_NE(doModal, nullptr);

    EXPECT_EQ(doModal(0, kUnknownMode, nullptr, nullptr, nullptr), -1);
    EXPECT_EQ(caller.install.Read("handles.log"),
              "Q9P3ATHL_Create 1\nQ9P3ATHL_Free 1\nunload libQ9P3ATHL.so\n");
}
