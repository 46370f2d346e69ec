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
    std::string matchedPath;  // path, or its network path when that matched
};

// The row that excludes path; nullopt when none does.
std::optional<ExclusionMatch> FindExclusion(const std::vector<ExclusionRow>& rows,
                                            const std::string& path);

// The kind of a row; nullopt for a row that is neither path nor extension.
std::optional<ExclusionKind> KindOfRow(const ExclusionRow& row);
