// The C entry point; no exception leaves it.

#include "MessengerInstallation.h"
#include "Q9IMcfg.h"

extern "C" {

int32_t GetIMInstall(int32_t index) {
    try {
        return q9imcfg::MessengerInstallation::IsInstalled(index) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

}  // extern "C"
