#pragma once

// A target list says what a scan covers: records laid end to end, ended by a
// 16-bit length of 0. All numbers are little-endian.
//
//   offset 0   16-bit record length: text length + 6 as written here
//   offset 2   kind (TargetKind)
//   offset 3   1
//   offset 4   the text, NUL-terminated, then one spare byte
//
// A record's length leads to the next one; readers accept any length that
// holds the header and the text's NUL (the store keeps records without the
// spare byte).

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

enum TargetKind : uint8_t {
    kTargetFolder = 0,
    kTargetFile = 1,
    kTargetRoot = 2,  // the root of the target tree; never in a record
    kTargetAllLocalDrives = 4,
    kTargetUnexamined = 255,  // the path could not be examined
};

// The text of the kAllLocalDrives record; an empty list means the same.
constexpr char kAllLocalDrivesText[] = "LOCAL_HARD_DRIVE";

struct Target {
    uint8_t kind = kTargetFolder;
    std::string text;

    bool operator==(const Target&) const = default;
};

// The one record that stands for every local hard drive.
Target AllLocalDrivesTarget();

// The bytes of one record, spare byte included. The text ends at its first
// NUL; a text too long for a 16-bit length is cut.
std::string PackTarget(const Target& target);

// The records and the terminator.
std::string EncodeTargetList(const std::vector<Target>& targets);

// Writes the list into buffer of size bytes and answers the bytes the whole
// list needs. With a null buffer nothing is written. A record is written
// only while the running sum stays below size; when the terminator does not
// fit behind the records, a buffer of more than 3 bytes gets a 0 as its
// first length, so that a buffer too small holds an empty list and never a
// partial one.
int32_t WriteTargetList(const std::vector<Target>& targets, void* buffer, int32_t size);

enum class TargetListProblem {
    kNone,
    kNoTerminator,     // the bytes end before a length of 0
    kBadLength,        // a length too small for the header and NUL, or past the end
    kUnterminatedText  // no NUL within the record
};

struct ParsedTargetList {
    std::vector<Target> targets;  // the records before the problem
    TargetListProblem problem = TargetListProblem::kNone;
};

// Reads size bytes of a list. Nothing past size is read.
ParsedTargetList ParseTargetList(const void* data, std::size_t size);
