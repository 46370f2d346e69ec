#pragma once

// Whole-file replacement that never leaves a half-written file behind: the
// bytes go to a temporary file in the same directory, which is flushed to
// disk and then renamed over the target. A reader that opens the path sees
// either the complete old content or the complete new content. A failure
// (full disk, read-only directory) leaves the old file as it was.

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// Mode of a file that did not exist before.
constexpr mode_t kDefaultFileMode = 0644;

// Mode of a file that holds secrets (the store, the registry hives):
// readable and writable by its owner only.
constexpr mode_t kPrivateFileMode = 0600;

// What happens to the permission bits of a file that exists already.
enum class ExistingMode { kKeep, kReplace };

// Mode of directories made by CreateDirectories.
constexpr mode_t kDefaultDirectoryMode = 0755;

// Replaces the file at path with bytes. An existing file keeps its permission
// bits unless existing is kReplace; a new one, or one replaced so, gets
// newFileMode exactly (the umask is not applied).
//
// The new file's modification time is made later than the old file's, even
// when both writes fall into the same clock tick, so that a cache keyed by
// the file's stat data always sees the change.
//
// On failure returns false and sets *errorNumber (when not null) to the errno
// value. A failure before the rename leaves the old file untouched and no
// temporary file behind. A failure to flush the directory after the rename
// is also reported as failure: the new content is then in place but may not
// survive a power loss.
//
// A symbolic link at path is replaced by a regular file, not followed.
bool WriteFileAtomically(const std::string& path, std::string_view bytes, int* errorNumber,
                         mode_t newFileMode = kDefaultFileMode,
                         ExistingMode existing = ExistingMode::kKeep);

// Creates directory path and its missing parents (like mkdir -p). True when
// the directory exists afterwards; otherwise false with *errorNumber set
// (ENOTDIR when a part of the path is not a directory).
bool CreateDirectories(const std::string& path, int* errorNumber,
                       mode_t mode = kDefaultDirectoryMode);

// The largest data file any reader takes in: settings, hives, profiles, zone
// and rule files are far smaller, so a larger one is damaged or not one of
// ours, and reading it whole would only cost memory.
constexpr std::size_t kMaxDataFileBytes = std::size_t{16} << 20;

// Appends everything left to read from fd to *text. False on a read error
// (errno tells which) and, with EFBIG, when *text would grow past
// kMaxDataFileBytes.
bool ReadAllFrom(int fd, std::string* text);

// The whole file at path into *text: 0, or the errno of the failure (ENOENT
// for a missing file, EFBIG for one larger than kMaxDataFileBytes); *text is
// left empty on failure.
int ReadWholeFile(const std::string& path, std::string* text);

}  // namespace platform
