#pragma once

#include <string>

// A registry directory of its own for one test: Q9_REGISTRY_DIR points at
// "<temporary directory>/hives/", which does not exist until the first write.
// The destructor removes everything and restores the variable.
class TemporaryRegistry {
public:
    TemporaryRegistry();
    ~TemporaryRegistry();

    TemporaryRegistry(const TemporaryRegistry&) = delete;
    TemporaryRegistry& operator=(const TemporaryRegistry&) = delete;

    // The temporary directory holding the registry directory.
    const std::string& Base() const { return base_; }
    // The registry directory, ending in '/'.
    std::string Directory() const { return base_ + "/hives/"; }
    std::string PathOf(const std::string& fileName) const { return Directory() + fileName; }

    // Whole file content; empty when it cannot be read.
    static std::string ReadFile(const std::string& path);
    // Writes a file in place (as a hand edit would), creating the directory.
    void WriteHive(const std::string& fileName, const std::string& text) const;

private:
    std::string base_;
    bool hadPrevious_ = false;
    std::string previous_;
};
