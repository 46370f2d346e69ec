#pragma once

// Function switches. Whether a protection function is in use is kept twice:
// as a bit of a switch word in CES_Switch, and as the function's
// registration with the running product (Q9SSCtrl). Each switch word has a
// mask word beside it: a mask bit says that the function belongs to this
// edition and that a policy may act on it.
//
//   CEK_Switch_Scan     / CEK_Switch_ScanMask       scan functions
//   CEK_Switch_ScanMail / CEK_Switch_ScanMailMask   mail functions
//   CEK_Switch_General  / CEK_Switch_GeneralMask    general functions
//
// Port blocking (code 208) has a bit of its own in the pending mask but no
// switch word: its state is CES_PortBlock/CEK_PortBlockEnable.

#include <cstdint>
#include <optional>

// Function codes, the first argument of every call into Q9SSCtrl.
enum SwitchItemCode : int32_t {
    SSCT_Q9SHELLEX = 0,
    SSCT_Q9BAR = 1,
    SSCT_SCRSAVER_SCAN = 16,
    SSCT_SYSTEM_MONITOR = 32,
    SSCT_HTTP_PROXY = 48,
    SSCT_POP3 = 64,
    SSCT_OFFICE_GUARD = 96,
    SSCT_TRAY = 112,
    SSCT_MONSYS_AUTO = 128,
    SSCT_MESSENGER = 144,
    SSCT_START_PROCESS = 160,
    SSCT_MANUAL_OUTLOOK = 176,
    SSCT_REALTIME_OUTLOOK = 192,
};

// Two codes without a name: a mail function that no page shows, and port
// blocking, whose state is not a switch word bit.
constexpr int32_t kUnnamedMailItem = 80;
constexpr int32_t kPortBlockItem = 208;

// The pending-mask bit of port blocking.
constexpr uint32_t kPortBlockBit = 0x1000000;

// The bit of a code outside the table. All bits set, so that it meets any
// pending bit.
constexpr uint32_t kNoSwitchBit = 0xFFFFFFFF;

// Every bit of the pending mask: MarkPending(0, kAllSwitchBits) clears it.
constexpr uint32_t kAllSwitchBits = 0xFFFFFFFF;

struct SwitchItem {
    int32_t code;
    const char* name;  // "" for the two codes without a name
    uint32_t bit;
    uint32_t section;  // CES_Switch; CES_PortBlock for port blocking
    uint32_t key;      // the switch word; CEK_PortBlockEnable for port blocking
};

// The table entry of code; null for a code outside the table.
const SwitchItem* FindSwitchItem(int32_t code);

// The bit of code; kNoSwitchBit for a code outside the table.
uint32_t SwitchBitOf(int32_t code);

// The name of code as the silent policy logs it; "" for an unnamed or
// unknown code.
const char* SwitchItemName(int32_t code);

// Whether the store (its working copy in edit mode) says the function is on:
// port blocking by CEK_PortBlockEnable, every other function by its bit of
// its switch word. 0 for a code outside the table.
int32_t StoredSwitchState(int32_t code);

// The switch word that holds bit: 1 to 0x80 CEK_Switch_Scan, 0x1000 to
// 0x8000 CEK_Switch_ScanMail, 0x100000 and 0x200000 CEK_Switch_General; none
// for any other value.
std::optional<uint32_t> SwitchKeyOfBit(uint32_t bit);

// Reads the switch word that holds bit and writes it back with the bit set
// (on) or cleared. A value that no switch word holds is ignored.
void SetSwitchBit(uint32_t bit, bool on);

// The mask words that the function selection pages and the wizard write at
// save, from the session flag word (DoModalFlags). An empty value is not
// written.
//
//   condition                      scan mask   mail mask            general mask
//   light edition                  1           page: -, wizard: 0   page: -, wizard: -1
//   no internet monitoring         wizard: -3
//   no POP3 monitoring                         0xC000
//   no Outlook monitoring                      0x1000
//   none of them                   -1          -1                   page: -, wizard: -1
//
// The light edition decides first; the POP3 condition is tested before the
// Outlook one. The function selection pages leave the general mask alone.
struct SwitchMasks {
    std::optional<uint32_t> scan;
    std::optional<uint32_t> scanMail;
    std::optional<uint32_t> general;
};

SwitchMasks PageSwitchMasks(uint32_t flags);
SwitchMasks WizardSwitchMasks(uint32_t flags);

// Writes the mask words that have a value.
void WriteSwitchMasks(const SwitchMasks& masks);

// The switches the wizard leaves in a light edition: system monitoring
// alone, no mail function, and no monitoring in force for the internet,
// messenger and startup monitors (bit 0x10000 of their CEK_ScanOptions).
void WriteLightEditionSwitches();

// The scan switch word and its mask as the wizard writes them for a full
// edition (flags: DMF_*). Without internet monitoring its bit leaves the
// word and the mask, and its monitor's scan word loses bit 0x10000;
// otherwise the word is written as it is with the mask -1.
void WriteScanSwitches(uint32_t word, uint32_t flags);
