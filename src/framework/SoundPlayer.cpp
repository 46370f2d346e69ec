#include "framework/SoundPlayer.h"

#include <canberra.h>
#include <dlfcn.h>

#include <cstdint>
#include <cstdlib>

namespace {

// The one sound the process plays at a time.
constexpr uint32_t kSoundId = 1;

// The process's sound context, made on first use and kept; null when the
// library cannot make one.
ca_context* ProcessContext() {
    static ca_context* const context = [] {
        // Keeps libcanberra loaded for the life of the process, whoever
        // unloads the libraries that use it.
        dlopen("libcanberra.so.0", RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
        ca_context* made = nullptr;
        return ca_context_create(&made) == CA_SUCCESS ? made : nullptr;
    }();
    return context;
}

}  // namespace

SoundPlayer::Result SoundPlayer::Play(const std::string& path) {
    ca_context* context = ProcessContext();
    if (context == nullptr) return Result::kNoDevice;
    ca_context_cancel(context, kSoundId);
    ca_context_change_device(context, std::getenv("CANBERRA_DEVICE"));
    // The file is read anew each time: the user may have changed it.
    const int result = ca_context_play(context, kSoundId, CA_PROP_MEDIA_FILENAME, path.c_str(),
                                       CA_PROP_CANBERRA_CACHE_CONTROL, "never", nullptr);
    if (result == CA_SUCCESS) return Result::kPlaying;
    // The file is read before a device is opened, so these two are about
    // the file; every other failure is about the device or the service (a
    // missing sound card reads as a device that was not found).
    if (result == CA_ERROR_CORRUPT || result == CA_ERROR_NOTSUPPORTED) return Result::kNotASound;
    return Result::kNoDevice;
}
