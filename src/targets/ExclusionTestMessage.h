#pragma once

// What "Test a path..." tells the user, in the session's language: the row
// that excludes the path, whose row it is and, when so, the network path it
// matched; or that nothing excludes it.

#include <optional>
#include <string>

#include "targets/ExclusionMatch.h"

std::string ExclusionTestMessage(const std::string& path,
                                 const std::optional<ExclusionMatch>& match);
