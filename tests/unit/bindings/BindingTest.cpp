#include "BindingTest.h"

#include <filesystem>

#include "platform/SharedLibrary.h"

void BindingTest::AddProbeAs(const std::string& name) const {
    std::filesystem::copy_file(Q9_PROBE_LIBRARY, Install().PathOf(platform::LibraryFileName(name)));
}

std::vector<std::string> BindingTest::Unloads() const {
    return LinesOf(Install().Read("unloads.log"));
}

void BindingTest::AddHandleProbeAs(const std::string& name) const {
    std::filesystem::copy_file(Q9_HANDLE_PROBE_LIBRARY,
                               Install().PathOf(platform::LibraryFileName(name)));
}

std::vector<std::string> BindingTest::Handles() const {
    return LinesOf(Install().Read("handles.log"));
}
