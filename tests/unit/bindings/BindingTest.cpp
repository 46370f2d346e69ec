#include "BindingTest.h"

#include <filesystem>

#include "platform/SharedLibrary.h"
#include "support/TestPaths.h"

void BindingTest::AddProbeAs(const std::string& name) const {
    std::filesystem::copy_file(TestPath("binding_probe"),
                               Install().PathOf(platform::LibraryFileName(name)));
}

std::vector<std::string> BindingTest::Unloads() const {
    return LinesOf(Install().Read("unloads.log"));
}

void BindingTest::AddHandleProbeAs(const std::string& name) const {
    std::filesystem::copy_file(TestPath("handle_probe"),
                               Install().PathOf(platform::LibraryFileName(name)));
}

std::vector<std::string> BindingTest::Handles() const {
    return LinesOf(Install().Read("handles.log"));
}
