#pragma once

// The port rule files beside the library, read by the blocking component:
// "OBRuleU.dat" (the user's rules) and "OBRuleD.dat" (ports never blocked),
// each a plain run of 52-byte records without a header.

#include <cstdint>
#include <string>

class CRuleFile {
public:
    static constexpr uint32_t kRecordSize = 52;
    static constexpr const char* kUserRules = "OBRuleU.dat";

    // directory ends in '/'.
    explicit CRuleFile(std::string directory);

    // Replaces the user rule file with count records (0 leaves an empty
    // file). 1 written, 0 the file could not be made.
    int32_t WriteUserRules(const void* records, int32_t count) const;

private:
    std::string m_directory;
};
