#pragma once

// How the "Scan Setting" and "Repair Setting" controls read and write the
// words of a scan profile, for the binder. The combos carry no data: an
// item's index is its meaning, and pages differ in which meanings their
// combos offer, so each codec is made from the page's list of meanings.

#include <vector>

#include "options/BlockMethod.h"
#include "options/RepairPolicy.h"
#include "pages/PageBinder.h"

// The radio pair "Executable files" / "All files" (key 10).
WordCodec FileTypeRadioCodec();
// "Backup files before repairing or deleting" (key 16): on when any of its
// three bits is set; saves all three.
WordCodec BackupCodec();

// The combos of key 16 and of the blocking method (key 14). Item i stands
// for items[i]. A word shows as the item of its meaning, read from the bits
// of the offered meanings alone; a meaning the combo lacks shows item 0.
// Saving clears the bits of every meaning of the field, offered or not.
WordCodec RepairableCodec(std::vector<RepairableAction> items);
// Unrepairable and compressed files: false leaves them, true deletes them.
WordCodec UnrepairableCodec(std::vector<bool> items);
WordCodec CompressedCodec(std::vector<bool> items);
WordCodec ExecutingCodec(std::vector<ExecutingAction> items);
WordCodec BlockMethodCodec(std::vector<BlockMethod> items);
