#include "MessengerInstallation.h"

#include <string>

#include "common/InstallDirectory.h"
#include "common/ProfileFile.h"

namespace q9imcfg {

bool MessengerInstallation::IsInstalled(int32_t row) {
    if (row < 0 || row >= kRowCount) return false;
    return sibling::ProfileFile::Load(sibling::InstallFile(kFileName))
               .GetInt("Installed", std::to_string(row))
               .value_or(0) != 0;
}

}  // namespace q9imcfg
