// The sound player through libcanberra: a sound file plays (on ALSA's null
// device, which every machine has), a file that is no sound and a device
// that does not exist are told apart.

#include <gtest/gtest.h>

#include <string>

#include "framework/SoundPlayer.h"
#include "support/ScopedVariable.h"
#include "support/TemporaryInstallation.h"
#include "support/WaveFile.h"

namespace sound_player_test {
namespace {

class SoundPlayerTest : public testing::Test {
protected:
    std::string Write(const std::string& name, const std::string& bytes) const {
        m_folder.Write(name, bytes);
        return m_folder.PathOf(name);
    }

    TemporaryInstallation m_folder;
};

TEST_F(SoundPlayerTest, AWaveFilePlays) {
    ScopedVariable device("CANBERRA_DEVICE", "null");
    const std::string wave = Write("alert.wav", SilentWave());
    EXPECT_EQ(SoundPlayer::Play(wave), SoundPlayer::Result::kPlaying);
    // A second Play replaces the first.
    EXPECT_EQ(SoundPlayer::Play(wave), SoundPlayer::Result::kPlaying);
}

TEST_F(SoundPlayerTest, AFileThatIsNoSoundIsToldApart) {
    ScopedVariable device("CANBERRA_DEVICE", "null");
    EXPECT_EQ(SoundPlayer::Play(Write("notes.wav", "plain text, not a sound")),
              SoundPlayer::Result::kNotASound);
    // The player plays on after it.
    EXPECT_EQ(SoundPlayer::Play(Write("alert.wav", SilentWave())), SoundPlayer::Result::kPlaying);
}

TEST_F(SoundPlayerTest, ADeviceThatDoesNotExistIsNoDevice) {
    const std::string wave = Write("alert.wav", SilentWave());
    {
        ScopedVariable device("CANBERRA_DEVICE", "none-such");
        EXPECT_EQ(SoundPlayer::Play(wave), SoundPlayer::Result::kNoDevice);
    }
    // The device is looked for at each Play.
    ScopedVariable device("CANBERRA_DEVICE", "null");
    EXPECT_EQ(SoundPlayer::Play(wave), SoundPlayer::Result::kPlaying);
}

}  // namespace
}  // namespace sound_player_test
