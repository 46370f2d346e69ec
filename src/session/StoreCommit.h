#pragma once

// The steps with which a shell that owns the session's store commits it on
// OK, shared by the configuration dialog and the single-page shell.

#include <cstdint>

// The protection levels g_nProtectLevel takes.
constexpr uint32_t kProtectLevelCustomized = 8;

// Puts the store into edit mode: pages work on its working copy from now on.
// The machine's registry hive, which applying the pages writes, is read as
// well, so that a hive that cannot be read is known while a dialog is open.
void BeginStoreEdit();
// Ends edit mode and writes the working copy to the live store. False when
// the store could not be written (a file it cannot parse, a full disk, no
// right to write): the store then keeps the working copy and stays in edit
// mode, so that nothing the user changed is lost.
bool CommitWorkingCopy();
// Ends edit mode and drops the working copy.
void DropWorkingCopy();
// Writes the session's protection level and tells the running services
// that the configuration changed (the one signal they reread on).
void AnnounceCommit();
