#pragma once

// The file types of a scan profile (bits 7 to 11 of key 10), as the pages'
// radio pair and the file types tab's five check boxes show them.

#include <cstdint>

// The radio pair of the pages (m_nFileTypes).
constexpr int kFileTypesExecutable = 0;  // "Executable files"
constexpr int kFileTypesAll = 1;         // "All files"

// "All files" exactly when bit 8 is set.
int FileTypeRadioOf(uint32_t word);

// The word with the radio's choice. "All files" sets bit 8 and clears the
// kinds it stands for, but keeps "Customized". "Executable files" clears
// bit 8 and, when no kind is left, sets the default kinds: a profile without
// "All files" always scans something.
uint32_t CollectFileTypes(uint32_t word, int radio);

// The five check boxes of the file types tab.
struct FileTypeBoxes {
    bool allFiles = false;     // 1058, bit 8
    bool executables = false;  // 1059, bit 9
    bool macros = false;       // 1060, bit 10
    bool scripts = false;      // 1048, bit 7
    bool customized = false;   // 1049, bit 11

    bool operator==(const FileTypeBoxes&) const = default;
};

// "All files" alone when bit 8 is set; otherwise each box follows its bit.
FileTypeBoxes FileTypeBoxesOf(uint32_t word);

// The word with the boxes: "All files" clears the four others, including
// "Customized"; otherwise each box sets or clears its bit.
uint32_t CollectFileTypes(uint32_t word, const FileTypeBoxes& boxes);
