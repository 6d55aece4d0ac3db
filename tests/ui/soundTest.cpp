// The commands of a wave sound device.

#include <string>

#include "support/program.h"
#include "ui/controls.h"

namespace zelvs {
namespace {

class FrmDevice final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmDevice() : Form("frmDevice", kKind, Border::Fixed) {}
  Sound mmcSound{this, "mmcSound"};
};
FormRef<FrmDevice> frmDevice{"frmDevice"};

class SoundTest : public ProgramTest {
 protected:
  /// A wave file that is all head.
  std::string waveFile() const {
    folder.write("a.wav", std::string("RIFF\x24\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1F\0\0\x40\x1F\0\0\x01\0\x08\0"
                                      "data\0\0\0\0",
                                      44));
    return folder.file("a.wav");
  }
};

TEST_F(SoundTest, OpensWaveFilesOnly) {
  Sound& device = frmDevice->mmcSound;
  device.FileName = waveFile();
  EXPECT_FALSE(device.command("Open")) << "of no type";
  device.DeviceType = "Sequencer";
  EXPECT_FALSE(device.command("Open"));
  device.DeviceType = "WaveAudio";
  EXPECT_TRUE(device.command("Open"));
  device.FileName = folder.file("missing.wav");
  EXPECT_FALSE(device.command("Open"));
}

TEST_F(SoundTest, PlaysAtOneCommandOnly) {
  Sound& device = frmDevice->mmcSound;
  EXPECT_TRUE(device.command("Prev"));
  EXPECT_EQ(platform.beeps(), 0);
  EXPECT_TRUE(device.command("Play"));
  EXPECT_EQ(platform.beeps(), 1);
  for (const char* command : {"", "play", "Stop"})
    EXPECT_FALSE(device.command(command)) << command;
  EXPECT_EQ(platform.beeps(), 1);
}

}  // namespace
}  // namespace zelvs
