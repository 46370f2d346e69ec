#include "targets/ExclusionMatch.h"

#include <algorithm>
#include <cctype>

#include "targets/NetworkPath.h"

namespace {

bool FolderHolds(std::string folder, const std::string& path) {
    while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
    if (path == folder) return true;
    if (folder == "/") return path.size() > 1 && path.front() == '/';
    return path.size() > folder.size() && path.compare(0, folder.size(), folder) == 0 &&
           path[folder.size()] == '/';
}

bool EndsWithIgnoringCase(const std::string& text, const std::string& end) {
    return text.size() >= end.size() &&
           std::equal(end.rbegin(), end.rend(), text.rbegin(), [](char a, char b) {
               return std::tolower(static_cast<unsigned char>(a)) ==
                      std::tolower(static_cast<unsigned char>(b));
           });
}

std::string FileNameOf(const std::string& path) {
    const auto slash = path.find_last_of('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool Covers(const ExclusionRow& row, ExclusionKind kind, const std::string& path) {
    switch (kind) {
        case ExclusionKind::kFile: return row.text == path;
        case ExclusionKind::kFolder: return FolderHolds(row.text, path);
        case ExclusionKind::kExtension: {
            if (row.text.size() < 3) return false;
            const std::string name = FileNameOf(path);
            const std::string ending = row.text.substr(1);  // ".dmp" of "*.dmp"
            return name.size() > ending.size() && EndsWithIgnoringCase(name, ending);
        }
    }
    return false;
}

// Whether match is a better answer than best: file over folder over
// extension, and the deeper of two folders.
bool Better(const ExclusionMatch& match, const std::optional<ExclusionMatch>& best) {
    if (!best) return true;
    if (match.kind != best->kind) return match.kind < best->kind;
    return match.kind == ExclusionKind::kFolder && match.row.text.size() > best->row.text.size();
}

}  // namespace

std::string OwnerOf(const ExclusionMatch& match) {
    return match.row.owner.empty() ? kZoneOwnerTag : match.row.owner;
}

std::string DescribeExclusion(const ExclusionMatch& match) {
    static constexpr const char* kKindNames[] = {"file", "folder", "extension"};
    std::string line = std::string("excluded by the ") + kKindNames[static_cast<int>(match.kind)] +
                       " \"" + match.row.text + "\" (owner " + OwnerOf(match) + ")";
    if (!match.matchedPath.empty()) line += " through the network path " + match.matchedPath;
    return line;
}

std::optional<ExclusionKind> KindOfRow(const ExclusionRow& row) {
    if (row.flags & kZoneExtension) return ExclusionKind::kExtension;
    if (row.flags & kZoneFile) return ExclusionKind::kFile;
    if (row.flags & kZoneFolder) return ExclusionKind::kFolder;
    return std::nullopt;
}

std::optional<ExclusionMatch> FindExclusion(const std::vector<ExclusionRow>& rows,
                                            const std::string& path) {
    std::vector<std::string> names{path};
    const std::string network = GetUncPath(path);
    if (network != path) names.push_back(network);
    std::optional<ExclusionMatch> best;
    for (const ExclusionRow& row : rows) {
        const std::optional<ExclusionKind> kind = KindOfRow(row);
        if (!row.use || !kind) continue;
        for (const std::string& name : names) {
            if (!Covers(row, *kind, name)) continue;
            ExclusionMatch match{row, *kind, name == path ? std::string() : name};
            if (Better(match, best)) best = std::move(match);
            break;
        }
    }
    return best;
}
