/// Sounds go to the devices of the user, here to one that nobody hears.
#include "scratch_folder.h"
#include "worlds/qt/sound_player.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// A tenth of a second of silence.
std::string silence() {
    constexpr std::uint32_t samples = 800; // at 8000 a second, of two bytes
    std::string bytes = "RIFF";
    const auto add = [&](std::uint32_t number, int size) {
        for (int i = 0; i < size; ++i, number >>= 8U)
            bytes += static_cast<char>(number & 0xFFU);
    };
    add(36 + 2 * samples, 4);
    bytes += "WAVEfmt ";
    add(16, 4);
    add(1, 2); // plain samples
    add(1, 2); // one channel
    add(8000, 4);
    add(16000, 4);
    add(2, 2);
    add(16, 2);
    bytes += "data";
    add(2 * samples, 4);
    return bytes + std::string(2 * samples, '\0');
}

class Sounds : public ::testing::Test {
  protected:
    Sounds() {
        folder.write("ding.wav", silence());
        // A device that takes all, and nobody hears it.
        letDevices("pcm.!default { type null }\n");
    }
    ~Sounds() override { qunsetenv("ALSA_CONFIG_PATH"); }

    void letDevices(const char* devices) {
        folder.write("devices.conf", devices);
        qputenv("ALSA_CONFIG_PATH", (folder.path / "devices.conf").c_str());
    }
    QString file(const char* name) const { return QString::fromStdString((folder.path / name).string()); }

    ScratchFolder folder;
    qt::SoundPlayer player;
};

TEST_F(Sounds, BeginWithoutWaitingAndOneInPlaceOfAnother) {
    EXPECT_TRUE(player.play(file("ding.wav")));
    EXPECT_TRUE(player.play(file("ding.wav")));
}

TEST_F(Sounds, MayEndWithTheirPlayerAsSoonAsTheyBegin) {
    // The thread of each is still at work then.
    for (int turn = 0; turn < 300; ++turn) {
        qt::SoundPlayer shortLived;
        ASSERT_TRUE(shortLived.play(file("ding.wav"))) << turn;
        ASSERT_TRUE(shortLived.play(file("ding.wav"))) << turn;
    }
}

TEST_F(Sounds, AreNotHeardWhereThereIsNoSoundFile) {
    folder.write("text.wav", "no sound");
    EXPECT_FALSE(player.play(file("text.wav")));
    EXPECT_FALSE(player.play(file("missing.wav")));
    EXPECT_FALSE(player.play(QString()));
    EXPECT_FALSE(player.play(QString::fromStdString(folder.path.string())));
}

TEST_F(Sounds, AreNotHeardWhereNobodyPlaysThem) {
    letDevices("");
    EXPECT_FALSE(player.play(file("ding.wav")));
}

} // namespace
} // namespace lumtex::testing
