#include "support/TemporaryRegistry.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {
constexpr const char* kVariable = "Q9_REGISTRY_DIR";

std::string TemporaryRoot() {
    const char* configured = std::getenv("TMPDIR");
    return (configured && *configured) ? configured : "/tmp";
}
}  // namespace

TemporaryRegistry::TemporaryRegistry() {
    std::string pattern = TemporaryRoot() + "/q9-registry-XXXXXX";
    if (!mkdtemp(pattern.data())) ADD_FAILURE() << "mkdtemp failed for " << pattern;
    base_ = pattern;
    if (const char* previous = std::getenv(kVariable)) {
        hadPrevious_ = true;
        previous_ = previous;
    }
    setenv(kVariable, Directory().c_str(), 1);
}

TemporaryRegistry::~TemporaryRegistry() {
    if (hadPrevious_) {
        setenv(kVariable, previous_.c_str(), 1);
    } else {
        unsetenv(kVariable);
    }
    // Tests may have made directories read-only; give write access back first.
    std::error_code error;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(base_, error)) {
        if (entry.is_directory(error)) {
            std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_all,
                                         std::filesystem::perm_options::add, error);
        }
    }
    std::filesystem::permissions(base_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, error);
    std::filesystem::remove_all(base_, error);
}

std::string TemporaryRegistry::ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

void TemporaryRegistry::WriteHive(const std::string& fileName, const std::string& text) const {
    std::filesystem::create_directories(Directory());
    std::ofstream out(PathOf(fileName), std::ios::binary | std::ios::trunc);
    out << text;
}
