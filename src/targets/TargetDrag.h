#pragma once

// A target dragged from one tree to another: the folder tree hands out
// folders, the target tree takes them in and hands its own targets out (a
// target dragged out of its list is removed from it). The data travels under
// a MIME type of this program's own as one block:
//
//   offset 0           the text, NUL-terminated
//   behind it, +0      32-bit source: 0 the folder tree, 1 the target tree
//   behind it, +4      32-bit kind (TargetKind)
//   behind it, +8      32-bit 0 (spare)
//
// All numbers are little-endian. A block shorter than the text and these 13
// bytes is no target. The text goes as plain text as well, for programs that
// take text.

#include <QMimeData>
#include <cstdint>
#include <optional>
#include <string>

constexpr char kTargetDragMimeType[] = "application/x-q9cfgul-target";

enum class TargetDragSource : uint32_t {
    kShellTree = 0,   // the folder tree: a new target
    kTargetTree = 1,  // the target tree: a target of the list
};

struct TargetDrag {
    std::string text;
    uint8_t kind = 0;  // TargetKind
    uint32_t source = static_cast<uint32_t>(TargetDragSource::kShellTree);

    bool operator==(const TargetDrag&) const = default;
};

// The block of drag. The text ends at its first NUL.
std::string EncodeTargetDrag(const TargetDrag& drag);

// The target in block; none when the block has no NUL or is shorter than
// the text and 13 bytes.
std::optional<TargetDrag> DecodeTargetDrag(const std::string& block);

// Puts drag into data under kTargetDragMimeType, and its text as plain text.
void SetTargetDrag(QMimeData* data, const TargetDrag& drag);

// The target that data carries under kTargetDragMimeType; none without one
// or with a block that is no target.
std::optional<TargetDrag> GetTargetDrag(const QMimeData* data);
