// The beep of the program folder: a wave file that a player takes, short, soft at both ends and never clipped.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "dialogs/beep.h"
#include "files/readFile.h"
#include "support/program.h"
#include "ui/waveFile.h"

namespace zelvs {
namespace {

class BeepTest : public testing::Test {
 protected:
  std::uint32_t number(std::size_t at, int bytes) const {
    std::uint32_t value = 0;
    for (int i = 0; i < bytes; ++i)
      value |= static_cast<std::uint32_t>(static_cast<unsigned char>(file.at(at + i))) << 8 * i;
    return value;
  }
  std::vector<int> samples() const {
    std::vector<int> values;
    for (std::size_t at = kHead; at + 2 <= file.size(); at += 2)
      values.push_back(static_cast<std::int16_t>(number(at, 2)));
    return values;
  }

  static constexpr std::size_t kHead = 44;
  const std::string file = readFile(ZELVS_FOLDER "/BEEP.WAV").value_or("");
};

TEST_F(BeepTest, TheHeadTellsWhatFollows) {
  ASSERT_GT(file.size(), kHead);
  EXPECT_TRUE(isWaveFile(ZELVS_FOLDER "/BEEP.WAV"));
  EXPECT_EQ(number(4, 4), file.size() - 8);
  EXPECT_EQ(file.substr(12, 4), "fmt ");
  EXPECT_EQ(number(16, 4), 16U);
  EXPECT_EQ(number(20, 2), 1U) << "PCM";
  EXPECT_EQ(number(22, 2), 1U) << "channels";
  EXPECT_EQ(number(24, 4), 22050U) << "samples a second";
  EXPECT_EQ(number(28, 4), 22050U * 2) << "bytes a second";
  EXPECT_EQ(number(32, 2), 2U) << "bytes a sample";
  EXPECT_EQ(number(34, 2), 16U) << "bits a sample";
  EXPECT_EQ(file.substr(36, 4), "data");
  EXPECT_EQ(number(40, 4), file.size() - kHead);
}

TEST_F(BeepTest, ItLastsAnEighthOfASecondAndBeginsAndEndsInSilence) {
  const std::vector<int> all = samples();
  EXPECT_EQ(all.size(), 2646U);
  ASSERT_FALSE(all.empty());
  EXPECT_EQ(all.front(), 0);
  EXPECT_EQ(all.back(), 0);
  const auto louder = [](int a, int b) { return std::abs(a) < std::abs(b); };
  const int loudest = std::abs(*std::max_element(all.begin(), all.end(), louder));
  EXPECT_GT(loudest, 8000);
  EXPECT_LT(loudest, 20000);
  // A millisecond at each end stays a whisper.
  for (std::size_t i = 0; i < 22; ++i) {
    EXPECT_LT(std::abs(all[i]), loudest / 8) << i;
    EXPECT_LT(std::abs(all[all.size() - 1 - i]), loudest / 50) << i;
  }
}

class BeepInTheProgramTest : public ProgramTest {};

TEST_F(BeepInTheProgramTest, WithItsFileTheDeviceIsOpenAndPlays) {
  folder.write("BEEP.WAV", readFile(ZELVS_FOLDER "/BEEP.WAV").value());
  start();
  EXPECT_EQ(beepDeviceOpen, kTrue);
  playBeep();
  EXPECT_EQ(platform.beeps(), 1);
}

TEST_F(BeepInTheProgramTest, WithoutItTheDeviceStaysClosedAndTheSystemBeeps) {
  start();
  EXPECT_EQ(beepDeviceOpen, kFalse);
  playBeep();
  EXPECT_EQ(platform.beeps(), 1);
}

}  // namespace
}  // namespace zelvs
