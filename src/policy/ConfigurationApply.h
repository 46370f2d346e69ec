#pragma once

// The one place where the whole state of the product is brought into line
// with the store: a policy file merged first (when one is given), then the
// functions registered or stopped by the switch words, the exclusion zone
// rewritten, the scheduler's job keys rebuilt and the services told. Silent
// policies end here, and so do the wizard's OK and the Easy configuration
// page's Apply, which change everything at once.
//
// Every step leaves its line in the diagnostic log, in a fixed order that
// support relies on.

#include <cstdint>

// basePath and policyPath may be null or empty; monitorFlag 1 registers the
// system monitor with option 2, 0 with option 0. A file that cannot be
// opened ends only the merge: the rest still runs.
void ApplyConfiguration(const char* basePath, const char* policyPath, int32_t monitorFlag);
