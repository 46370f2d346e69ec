#include "support/DamagedContent.h"

#include <filesystem>

#include "platform/AtomicFile.h"
#include "platform/ProblemReport.h"

namespace {

std::string PictureBytes() {
    std::string bytes = "\x89PNG\r\n\x1a\n";
    for (int round = 0; round < 16; ++round) {
        for (int value = 0; value < 256; ++value) bytes.push_back(static_cast<char>(value));
    }
    return bytes;
}

}  // namespace

const char* NameOf(Damage damage) {
    switch (damage) {
        case Damage::kCutShort: return "cut short";
        case Damage::kBinary: return "binary";
        case Damage::kEmpty: return "empty";
        case Damage::kTooLarge: return "too large";
    }
    return "";
}

std::size_t CutInside(const std::string& text, const std::string& marker) {
    return text.find(marker) + marker.size() / 2;
}

std::string Damaged(const std::string& valid, std::size_t cutAt, Damage damage) {
    switch (damage) {
        case Damage::kCutShort: return valid.substr(0, cutAt);
        case Damage::kBinary: return PictureBytes();
        case Damage::kEmpty: return {};
        case Damage::kTooLarge: {
            std::string text = valid;
            text.resize(platform::kMaxDataFileBytes + 1, '\n');
            return text;
        }
    }
    return {};
}

bool IsListedUnreadable(const std::string& path) {
    const auto wanted = std::filesystem::weakly_canonical(path);
    for (const platform::UnreadableFile& file : platform::UnreadableFiles()) {
        if (std::filesystem::weakly_canonical(file.path) == wanted) return true;
    }
    return false;
}
