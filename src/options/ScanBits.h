#pragma once

// The bits of the scan profile's words, as every page, tab, level and
// schedule entry reads and writes them. Bits that are named nowhere here are
// never touched: they stay in a word as it was loaded.

#include <cstdint>

// CEK_ScanOptions (key 10): what to scan.
constexpr uint32_t kScanCloseView = 0x1;        // close the scan view when clean
constexpr uint32_t kScanExeCompressed = 0x8;    // executable compressed files
constexpr uint32_t kScanCompressed = 0x10;      // scan compressed files
constexpr uint32_t kScanIncremental = 0x40;     // incremental scan of compressed files
constexpr uint32_t kScanScripts = 0x80;         // file type: script files
constexpr uint32_t kScanAllFiles = 0x100;       // file type: all files
constexpr uint32_t kScanExecutables = 0x200;    // file type: execution files
constexpr uint32_t kScanMacros = 0x400;         // file type: macros
constexpr uint32_t kScanCustomized = 0x800;     // file type: the text of key 13
constexpr uint32_t kScanBackground = 0x1000;    // schedule entries: scan in the background
constexpr uint32_t kScanSettingSaved = 0x2000;  // set by the saves of the "Scan Setting" pages
constexpr uint32_t kScanOutlookIncremental = 0x4000;  // section 11: incremental scan
constexpr uint32_t kScanCarried16 = 0x10000;          // never shown; carried from the stored word
constexpr uint32_t kScanCarried17 = 0x20000;          // never shown; carried in section 5 only
constexpr uint32_t kScanAutoRepair = 0x100000;
constexpr uint32_t kScanNtWarning = 0x200000;       // warning messages (NT series only)
constexpr uint32_t kScanFloppyBoot = 0x400000;      // floppy disc boot sector
constexpr uint32_t kScanFloppyOnClose = 0x800000;   // floppy disc when closing the desktop
constexpr uint32_t kScanMonitorForced = 0x3000000;  // bits 24, 25: forced by the monitor saves
constexpr uint32_t kScanExclusions = 0x8000000;     // sections 7 and 9: exclusion list in force
constexpr uint32_t kScanHarmful = 0x40000000;       // scan possible harmful programs
// What a scheduled scan needs on the NT family, where nobody may be logged
// on to see it: in the background, the view closing itself, repairs made.
constexpr uint32_t kScanUnattendedNT = kScanCloseView | kScanBackground | kScanAutoRepair;

// The file type bits other than "All files", and the kinds a profile falls
// back to when it has no file type at all (executables, macros, scripts).
constexpr uint32_t kScanTypeKinds = kScanScripts | kScanExecutables | kScanMacros | kScanCustomized;
constexpr uint32_t kScanDefaultKinds = kScanScripts | kScanExecutables | kScanMacros;

// CEK_ScanPolicy (key 16): what to do with a detected file.
constexpr uint32_t kPolicyBackup = 0x10101;  // three bits set and cleared together
constexpr uint32_t kPolicyRepair = 0x2;      // repairable files: repair
constexpr uint32_t kPolicyDelete = 0x4;      // repairable files: delete
constexpr uint32_t kPolicyDeleteUnrepairable = 0x400;
constexpr uint32_t kPolicyDeleteCompressed = 0x40000;
constexpr uint32_t kPolicyRecompress = 0x80000;     // recompress after repairing (ZIP)
constexpr uint32_t kPolicyExecVerify = 0x1000000;   // executing files: after user verification
constexpr uint32_t kPolicyExecForced = 0x2000000;   // executing files: after a forced termination
constexpr uint32_t kPolicyExecRestart = 0x4000000;  // executing files: restart after the repair
constexpr uint32_t kPolicyExecuting = kPolicyExecVerify | kPolicyExecForced | kPolicyExecRestart;
// Bits 24 to 27: the executing files choice and the bit above it, cleared
// together for functions that have no such choice.
constexpr uint32_t kPolicyExecutingField = 0x0F000000;
// What a mail function always does: delete the unrepairable and the
// infected compressed files.
constexpr uint32_t kPolicyMailDeletes = kPolicyDeleteUnrepairable | kPolicyDeleteCompressed;

// CEK_MonitorOptions (key 14): the blocking method of sections 7, 8 and 12.
constexpr uint32_t kMonitorChangeExtension = 0x20000000;
constexpr uint32_t kMonitorDelete = 0x10000000;
constexpr uint32_t kMonitorBlock = 0x40000000;  // section 7 only
constexpr uint32_t kMonitorMethods = kMonitorChangeExtension | kMonitorDelete | kMonitorBlock;

// CEK_ScanExtra (key 53), by section.
constexpr uint32_t kExtraLocalRead = 0x1;            // 4, 7
constexpr uint32_t kExtraLocalWrite = 0x2;           // 4, 7
constexpr uint32_t kExtraNetworkRead = 0x4;          // 4, 7
constexpr uint32_t kExtraNetworkWrite = 0x8;         // 4, 7
constexpr uint32_t kExtraUnshareFirst = 0x10;        // 4: after disabling shared files/folders
constexpr uint32_t kExtraCloseShells = 0x20;         // 4: after closing shells
constexpr uint32_t kExtraInfector = 0x40;            // 7: infector detection
constexpr uint32_t kExtraMsn = 0x100;                // 15: list row 0
constexpr uint32_t kExtraYahoo = 0x200;              // 15: list row 2
constexpr uint32_t kExtraAol = 0x400;                // 15: list row 1
constexpr uint32_t kExtraWindowsMessenger = 0x4000;  // 15: list row 3
constexpr uint32_t kExtraDaum = 0x10000;             // 15: list row 4
constexpr uint32_t kExtraMessengers = 0x14700;
constexpr uint32_t kExtraRegistries = 0x800;       // 16
constexpr uint32_t kExtraStartupFolders = 0x1000;  // 16
constexpr uint32_t kExtraSystemFiles = 0x2000;     // 16
constexpr uint32_t kExtraStartupItems = 0x3800;
// Section 7: the monitor protects itself, and tells the user so (the policy
// page).
constexpr uint32_t kExtraSelfProtect = 0x80;
constexpr uint32_t kExtraSelfProtectAlerts = 0x8000;

// CEK_MessengerSelect (key 61 of section 15).
constexpr uint32_t kMessengerAutoRecognition = 0x1;

// CEK_MacroOptions (key 6 of section 2): the policy page's macro choice and
// system areas, and the kinds of possible harmful programs.
constexpr uint32_t kMacroRepair = 0x1;  // repair the detected macro viruses
constexpr uint32_t kMacroForbid = 0x2;  // macros not allowed
constexpr uint32_t kMacroChoice = kMacroRepair | kMacroForbid;
constexpr uint32_t kAreaMemory = 0x100;      // memory scan
constexpr uint32_t kAreaBootSector = 0x200;  // boot sector scan
constexpr uint32_t kAreaSelfScan = 0x400;    // self scan
constexpr uint32_t kAreaProcesses = 0x800;   // process scan
constexpr uint32_t kAreaStartup = 0x1000;    // startup program scan
constexpr uint32_t kHarmfulJoke = 0x10000;
constexpr uint32_t kHarmfulAdware = 0x20000;
constexpr uint32_t kHarmfulKeyLogger = 0x40000;
constexpr uint32_t kHarmfulOther = 0x80000;
constexpr uint32_t kHarmfulKinds = 0xF0000;
