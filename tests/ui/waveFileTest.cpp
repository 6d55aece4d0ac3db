// Which files count as a sound: what a player can play to its end.

#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "support/program.h"
#include "support/wave.h"
#include "tools/littleEndian.h"
#include "ui/waveFile.h"

namespace zelvs {
namespace {

struct Format {
  std::uint32_t tag = 1;
  std::uint32_t channels = 2;
  std::uint32_t rate = 8000;
  std::uint32_t bits = 16;
};

std::string chunk(const std::string& name, const std::string& contents) {
  return name + littleEndian(static_cast<std::uint32_t>(contents.size()), 4) + contents +
         std::string(contents.size() % 2, '\0');
}

std::string formatOf(const Format& format) {
  return littleEndian(format.tag, 2) + littleEndian(format.channels, 2) + littleEndian(format.rate, 4) +
         littleEndian(format.rate * format.channels * format.bits / 8, 4) +
         littleEndian(format.channels * format.bits / 8, 2) + littleEndian(format.bits, 2);
}

std::string riff(const std::string& chunks) {
  return "RIFF" + littleEndian(static_cast<std::uint32_t>(4 + chunks.size()), 4) + "WAVE" + chunks;
}

std::string waveOf(const Format& format) {
  return riff(chunk("fmt ", formatOf(format)) + chunk("data", std::string(400, '\0')));
}

TEST(WaveFileTest, PlainSamplesCanBePlayed) {
  EXPECT_TRUE(isWave(waveOf({})));
  EXPECT_TRUE(isWave(silentWave())) << "no sample is also a sound";
  for (const std::uint32_t bits : {8, 16, 24, 32})
    EXPECT_TRUE(isWave(waveOf({1, 1, 44100, bits}))) << bits;
  for (const std::uint32_t bits : {0, 4, 12, 40, 64})
    EXPECT_FALSE(isWave(waveOf({1, 1, 44100, bits}))) << bits;
  EXPECT_FALSE(isWave(waveOf({0x55, 2, 8000, 16}))) << "packed";
  EXPECT_FALSE(isWave(waveOf({1, 0, 8000, 16})));
  EXPECT_FALSE(isWave(waveOf({1, 2, 0, 16})));
}

TEST(WaveFileTest, ItsChunksStandInOrderAndOthersMayStandBetween) {
  const std::string format = chunk("fmt ", formatOf({}));
  const std::string data = chunk("data", "1234");
  const std::string other = chunk("LIST", "odd");
  EXPECT_TRUE(isWave(riff(other + format + other + data + other)));
  EXPECT_TRUE(isWave(riff(chunk("fmt ", formatOf({}) + "more") + data)));
  EXPECT_FALSE(isWave(riff(chunk("fmt ", formatOf({}).substr(0, 15)) + data)));
  EXPECT_FALSE(isWave(riff(data + format)));
  EXPECT_FALSE(isWave(riff(format)));
  EXPECT_FALSE(isWave(riff(data)));
  EXPECT_FALSE(isWave(riff(other)));
  EXPECT_FALSE(isWave(riff("")));
}

TEST(WaveFileTest, ACutFileIsNoSound) {
  const std::string whole = waveOf({});
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_FALSE(isWave(std::string_view(whole).substr(0, length))) << length;
  EXPECT_TRUE(isWave(riff(chunk("fmt ", formatOf({})) + "data" + littleEndian(3, 4) + "odd")))
      << "the byte that fills up the last chunk is nobody's";
}

TEST(WaveFileTest, OtherHeadsAreNoSound) {
  for (const std::size_t at : {0, 3, 8, 11, 12, 15, 36, 39}) {
    std::string damaged = waveOf({});
    damaged[at] = '?';
    EXPECT_FALSE(isWave(damaged)) << at;
  }
}

TEST(WaveFileTest, AFileIsReadUpToALimitAndNeverWaitedFor) {
  const TemporaryFolder folder;
  folder.write("sound", waveOf({}));
  EXPECT_TRUE(isWaveFile(folder.file("sound")));
  for (const auto& [size, taken] :
       {std::pair{std::uintmax_t{kLargestWaveFile}, true}, std::pair{std::uintmax_t{kLargestWaveFile} + 1, false},
        std::pair{std::uintmax_t{1} << 40, false}}) {
    std::filesystem::resize_file(folder.file("sound"), size);
    EXPECT_EQ(isWaveFile(folder.file("sound")), taken) << size;
  }
  folder.write("text", "no sound at all, although it is long enough");
  EXPECT_FALSE(isWaveFile(folder.file("text")));
  ASSERT_EQ(mkdir(folder.file("folder").c_str(), 0700), 0);
  ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
  for (const char* name : {"nothing", "folder", "pipe"})
    EXPECT_FALSE(isWaveFile(folder.file(name))) << name;
}

}  // namespace
}  // namespace zelvs
