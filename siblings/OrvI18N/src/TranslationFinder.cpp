#include "TranslationFinder.h"

#include <sys/stat.h>
#include <unistd.h>

#include "LanguageTable.h"

namespace orvi18n {
namespace {

bool IsReadableFile(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
           ::access(path.c_str(), R_OK) == 0;
}

}  // namespace

std::optional<std::string> TranslationFinder::Find(std::string directory, const std::string& family,
                                                   uint16_t language) {
    if (!directory.empty() && directory.back() != '/') directory += '/';
    for (const uint16_t id : {language, LanguageTable::MainIdOf(language)}) {
        if (id == LanguageTable::kUsEnglish) return std::nullopt;
        std::string path = PathOf(directory, family, id);
        if (IsReadableFile(path)) return path;
    }
    return std::nullopt;
}

std::string TranslationFinder::PathOf(const std::string& directory, const std::string& family,
                                      uint16_t language) {
    return directory + "Lang/" + family + '_' + std::to_string(language) + ".qm";
}

}  // namespace orvi18n
