#pragma once

// What each mode of a session runs. A mode whose dialog cannot be made (no
// display, no template) answers -1.

#include <cstdint>

// Mode 0: the configuration dialog; its modal result (1 OK, 2 Cancel, -1 not
// made). *lastPage gets the page selected last.
int32_t RunConfigDialog(uint64_t parent, uint32_t flags, int32_t page, int32_t* lastPage);
// Mode 1: the configuration wizard.
int32_t RunWizard(uint64_t parent, uint32_t flags);
// Mode 2: one page in its own shell.
int32_t RunSinglePage(uint64_t parent, uint32_t flags, int32_t page);
