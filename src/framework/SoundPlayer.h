#pragma once

// Plays a sound file on the desktop's sound device and returns at once,
// while the sound goes on: what the alert sound's "Play" button does. It
// goes through libcanberra, the freedesktop event sound library that
// desktops play their own event sounds with: it reads WAV and Ogg Vorbis
// files itself and plays them through ALSA, which a desktop routes to its
// sound server.
//
// As desktops do, the process keeps one sound context for its whole life:
// a sound plays in a thread of the library's sound module, and a context
// that went (or a library that was unloaded) while the thread still plays
// would pull the module from under it. So the context is never destroyed,
// and libcanberra stays loaded even when this library is unloaded. A new
// Play stops the sound this process is playing.
//
// The sound goes to ALSA's default device, or to the device that the
// environment variable CANBERRA_DEVICE names when Play is called:
// CANBERRA_DEVICE=null sends it to ALSA's null device, which a machine
// without a sound card has too (the tests play that way).

#include <string>

class SoundPlayer {
public:
    enum class Result {
        kPlaying,    // the sound has started
        kNoDevice,   // no sound device or sound service took it
        kNotASound,  // the file is not a sound the library can play
    };

    static Result Play(const std::string& path);
};
