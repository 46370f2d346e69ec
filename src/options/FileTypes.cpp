#include "options/FileTypes.h"

#include "options/ScanBits.h"
#include "options/StoreAccess.h"

int FileTypeRadioOf(uint32_t word) {
    return (word & kScanAllFiles) ? kFileTypesAll : kFileTypesExecutable;
}

uint32_t CollectFileTypes(uint32_t word, int radio) {
    if (radio == kFileTypesAll) return (word | kScanAllFiles) & ~kScanDefaultKinds;
    word &= ~kScanAllFiles;
    if (!(word & kScanTypeKinds)) word |= kScanDefaultKinds;
    return word;
}

FileTypeBoxes FileTypeBoxesOf(uint32_t word) {
    if (word & kScanAllFiles) return {true, false, false, false, false};
    return {false, (word & kScanExecutables) != 0, (word & kScanMacros) != 0,
            (word & kScanScripts) != 0, (word & kScanCustomized) != 0};
}

uint32_t CollectFileTypes(uint32_t word, const FileTypeBoxes& boxes) {
    if (boxes.allFiles) return (word | kScanAllFiles) & ~kScanTypeKinds;
    word &= ~kScanAllFiles;
    word = SetBits(word, kScanExecutables, boxes.executables);
    word = SetBits(word, kScanMacros, boxes.macros);
    word = SetBits(word, kScanScripts, boxes.scripts);
    return SetBits(word, kScanCustomized, boxes.customized);
}
