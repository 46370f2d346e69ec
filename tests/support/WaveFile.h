#pragma once

// A short sound file for the tests that play one: a tenth of a second of
// silence as 16-bit mono PCM at 8000 samples a second, in the RIFF WAVE
// format.

#include <cstdint>
#include <string>

inline std::string SilentWave() {
    constexpr uint32_t kRate = 8000;
    constexpr uint32_t kSamples = kRate / 10;
    constexpr uint32_t kDataBytes = kSamples * 2;
    std::string wave;
    const auto put = [&wave](uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) wave += static_cast<char>((value >> (8 * i)) & 0xFF);
    };
    wave += "RIFF";
    put(36 + kDataBytes, 4);
    wave += "WAVEfmt ";
    put(16, 4);         // the format chunk's size
    put(1, 2);          // PCM
    put(1, 2);          // one channel
    put(kRate, 4);      // samples a second
    put(kRate * 2, 4);  // bytes a second
    put(2, 2);          // bytes a sample
    put(16, 2);         // bits a sample
    wave += "data";
    put(kDataBytes, 4);
    wave += std::string(kDataBytes, '\0');
    return wave;
}
