#pragma once

// Which row of the exclusion list leaves a path out of scans:
//
// - a file row covers that one path;
// - a folder row covers the folder and everything under it, by whole path
//   components ("/data/tmp" covers "/data/tmp/a", not "/data/tmpfiles");
// - an extension row "*.dmp" covers every file whose name ends in ".dmp",
//   ignoring case, wherever it lies.
//
// Paths compare exactly, as the file system names them. A path on a network
// drive is also looked for by its network path, as scanners meet it that way
// too. Rows not in use cover nothing. Of several rows that cover a path the
// file row wins, then the deepest folder, then an extension.

#include <optional>
#include <string>
#include <vector>

#include "targets/ExclusionList.h"

enum class ExclusionKind { kFile, kFolder, kExtension };

struct ExclusionMatch {
    ExclusionRow row;
    ExclusionKind kind;
    std::string matchedPath;  // the network path when that matched; else empty
};

// The row that excludes path; nullopt when none does.
std::optional<ExclusionMatch> FindExclusion(const std::vector<ExclusionRow>& rows,
                                            const std::string& path);

// The owner of a matched row: its zone owner tag, or this product's for the
// user's rows.
std::string OwnerOf(const ExclusionMatch& match);

// One line for people: which row, its kind and owner, and the network path
// when that is what matched, e.g.
//   excluded by the folder "/data/tmp" (owner Q9Pro2004)
std::string DescribeExclusion(const ExclusionMatch& match);

// The kind of a row; nullopt for a row that is neither path nor extension.
std::optional<ExclusionKind> KindOfRow(const ExclusionRow& row);
