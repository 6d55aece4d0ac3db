// How the CPU's accesses reach memory: bus width, byte order, protection, and the two buffers, whatever the address
// means. No windows but the panel, whose lamp tells that a scan runs.

#include <string>

#include "chip/bus.h"
#include "chip/dataWrite.h"
#include "state/cellAddress.h"
#include "support/program.h"

namespace zelvs {
namespace {

constexpr const char* kControlText = "スキャン中、コントロールワードの上位バイトはライトプロテクト。";
constexpr const char* kBufferText = "ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。";
constexpr const char* kFromBuffer = "リードテンポラリバッファからデータを取得しました。";
constexpr const char* kFromMemory = "メモリよりデータを取得しました。";
constexpr const char* kIntoBuffer = "リードテンポラリバッファにデータを格納しました。";

class AccessTest : public ProgramTest {
 protected:
  AccessTest() {
    start();
    clearChip();
  }
  void clearChip() {
    std::fill(chipMemory.begin(), chipMemory.end(), std::uint8_t{0});
    writeTempHighValid = writeTempLowValid = kFalse;
    frmHard->picScanLed.Tag = "0";
  }
  void light(bool lit) { frmHard->picScanLed.Tag = lit ? "1" : "0"; }
  std::string word(int even) {
    char text[5];
    std::snprintf(text, sizeof text, "%02X%02X", chipMemory[even + 1], chipMemory[even]);
    return text;
  }
  ReadBuffer buffer{};

  // Answers as their words.
  static std::string_view writeByte(int address, std::uint8_t value) {
    return wordsOf(writeDataByte(indexOfAddress(address), value));
  }
  static std::string_view writeWord(int address, std::uint8_t high, std::uint8_t low) {
    return wordsOf(writeDataWord(address & ~1, static_cast<std::uint16_t>(high << 8 | low)));
  }
  struct Read {
    std::uint8_t value;
    std::string_view guide;
  };
  static Read readByte(int address, ReadBuffer& kept) {
    const ByteRead byte = zelvs::readByte(address, kept);
    return {byte.value, wordsOf(byte.source)};
  }
};

TEST_F(AccessTest, ABigEndianCpuSeesTheBytesOfAWordExchanged) {
  struct Row {
    int cpu, address, index;
  };
  const Row table[] = {{0, 0x80, 0x80}, {0, 0x81, 0x81}, {1, 0x80, 0x80}, {1, 0x7FF, 0x7FF},
                       {2, 0x80, 0x81}, {2, 0x81, 0x80}, {3, 0x81, 0x80}, {3, 0x7FF, 0x7FE}};
  for (const Row& row : table) {
    cpuType = static_cast<std::int16_t>(row.cpu);
    EXPECT_EQ(indexOfAddress(row.address), row.index) << row.cpu << " " << row.address;
    clearChip();
    EXPECT_EQ(writeByte(row.address, 0x5A), "");
    EXPECT_EQ(chipMemory[row.index], 0x5A);
    EXPECT_EQ(chipMemory[row.index ^ 1], 0);
    const Read byte = readByte(row.address, buffer);
    EXPECT_EQ(byte.value, 0x5A);
    EXPECT_EQ(byte.guide, kFromMemory);
  }
}

TEST_F(AccessTest, AWordTakesItsTwoBytesOnEitherCpu) {
  for (const int cpu : {0, 2}) {
    cpuType = static_cast<std::int16_t>(cpu);
    for (const int address : {0x100, 0x101, 0x57E}) {
      clearChip();
      EXPECT_EQ(writeWord(address, 0x12, 0x34), "");
      EXPECT_EQ(word(address & ~1), "1234");
    }
  }
}

TEST_F(AccessTest, DuringAScanTheReportByteOfAControlWordKeepsItsValue) {
  struct Row {
    const char* name;
    int address;
    bool scan;
    int before, high;
    const char* after;
    const char* text;
  };
  const Row table[] = {
      {"idle: both bytes go", 0x02, false, 0x10, 0x20, "2034", ""},
      {"another high byte", 0x02, true, 0x10, 0x20, "1034", kControlText},
      {"the same high byte", 0x02, true, 0x10, 0x10, "1034", ""},
      {"the last control word", 0x7E, true, 0x10, 0x20, "1034", kControlText},
      {"the first word of the DO data", 0x80, true, 0x10, 0x20, "2034", ""},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    clearChip();
    light(row.scan);
    chipMemory[row.address + 1] = static_cast<std::uint8_t>(row.before);
    EXPECT_EQ(writeWord(row.address, static_cast<std::uint8_t>(row.high), 0x34), row.text);
    EXPECT_EQ(word(row.address), row.after);
  }
}

TEST_F(AccessTest, AByteWriteReachesTheReportByteEvenDuringAScan) {
  for (const int cpu : {0, 1}) {
    cpuType = static_cast<std::int16_t>(cpu);
    clearChip();
    light(true);
    EXPECT_EQ(writeByte(0x03, 0x77), "");
    EXPECT_EQ(word(2), "7700");
  }
}

TEST_F(AccessTest, OnlyTheDataRangeIsProtectedAndNotAlikeForWritesAndReads) {
  struct Row {
    int address;
    bool writeHeld, readHeld;
  };
  const Row table[] = {{0x00, false, false},  {0x7F, false, false},  {0x80, true, true},    {0x101, true, true},
                       {0x4FE, true, true},   {0x4FF, false, true},  {0x500, false, false}, {0x57F, false, false},
                       {0x584, false, false}, {0x590, false, false}, {0x7FF, false, false}};
  cpuType = 1;
  for (const Row& row : table) {
    SCOPED_TRACE(row.address);
    clearChip();
    chipMemory[kHprHigh] = 0x10;
    EXPECT_EQ(writeByte(row.address, 0x5A), row.writeHeld ? kBufferText : "");
    EXPECT_EQ(chipMemory[row.address], row.writeHeld ? 0 : 0x5A);
    EXPECT_EQ(chipMemory[kHprHigh], row.writeHeld ? 0x11 : 0x10);
    clearChip();
    chipMemory[kHprLow] = 0x10;
    EXPECT_EQ(readByte(row.address, buffer).guide, row.readHeld ? kIntoBuffer : kFromMemory);
    EXPECT_EQ(chipMemory[kHprLow], row.readHeld ? 0x11 : 0x10);
  }
}

TEST_F(AccessTest, TheRangesCountTheIndexForWritesAndTheAddressForReads) {
  cpuType = 3;
  chipMemory[kHprHigh] = 0x10;
  EXPECT_EQ(writeByte(0x4FF, 1), kBufferText) << "index 4FE";
  clearChip();
  chipMemory[kHprHigh] = 0x10;
  EXPECT_EQ(writeByte(0x4FE, 1), "") << "index 4FF";
  clearChip();
  chipMemory[kHprLow] = 0x10;
  EXPECT_EQ(readByte(0x4FF, buffer).guide, kIntoBuffer);
  clearChip();
  chipMemory[kHprLow] = 0x10;
  EXPECT_EQ(readByte(0x500, buffer).guide, kFromMemory);
}

TEST_F(AccessTest, TheTwoHalvesOfAWordArriveTogether) {
  for (const int cpu : {1, 3}) {
    for (const int first : {0, 1}) {
      cpuType = static_cast<std::int16_t>(cpu);
      clearChip();
      chipMemory[kHprHigh] = 0x10;
      const int low = cpu == 3 ? 0x101 : 0x100;
      const int high = low ^ 1;
      const std::pair<int, std::uint8_t> halves[] = {{low, 0x34}, {high, 0x12}};
      EXPECT_EQ(writeByte(halves[first].first, halves[first].second), kBufferText);
      EXPECT_EQ(word(0x100), "0000");
      EXPECT_EQ(writeByte(halves[1 - first].first, halves[1 - first].second), "");
      EXPECT_EQ(word(0x100), "1234");
      EXPECT_EQ(chipMemory[kHprHigh], 0x10);
      EXPECT_EQ(writeTempHighValid, kFalse);
      EXPECT_EQ(writeTempLowValid, kFalse);
    }
  }
}

TEST_F(AccessTest, TheWaitingHalfGoesWhereTheSecondGoes) {
  struct Row {
    const char* name;
    int first, second;
    const char* firstWord;  // at 100H afterwards
    int secondAt;
    const char* secondWord;
  };
  const Row table[] = {
      {"the other half of another word", 0x101, 0x200, "BBBB", 0x200, "1122"},
      {"the same half again: the first value wins", 0x100, 0x100, "BB11", 0x100, "BB11"},
      {"the same odd half again", 0x101, 0x101, "11BB", 0x100, "11BB"},
      {"the same half of another word", 0x101, 0x201, "BBBB", 0x200, "11BB"},
      {"below the protected range", 0x100, 0x7F, "BBBB", 0x7E, "2211"},
      {"above it", 0x101, 0x500, "BBBB", 0x500, "1122"},
      {"the end of memory", 0x101, 0x7FE, "BBBB", 0x7FE, "1122"},
  };
  cpuType = 1;
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    clearChip();
    for (int index = 0; index < kChipMemorySize; ++index)
      chipMemory[index] = 0xBB;
    chipMemory[kHprHigh] = 0x10;
    EXPECT_EQ(writeByte(row.first, 0x11), kBufferText);
    EXPECT_EQ(writeByte(row.second, 0x22), "");
    EXPECT_EQ(word(0x100), row.firstWord);
    EXPECT_EQ(word(row.secondAt), row.secondWord);
    EXPECT_EQ(chipMemory[kHprHigh], 0x10);
  }
}

TEST_F(AccessTest, WithTheProtectionOffTheWaitingHalfIsStillReleased) {
  cpuType = 1;
  chipMemory[kHprHigh] = 0x10;
  writeByte(0x100, 0x34);
  chipMemory[kHprHigh] = 0x01;
  EXPECT_EQ(writeByte(0x101, 0x12), "");
  EXPECT_EQ(word(0x100), "1234");
  EXPECT_EQ(chipMemory[kHprHigh], 0x00);
}

TEST_F(AccessTest, AWideBusForgetsTheWaitingHalf) {
  for (const bool asWord : {true, false}) {
    cpuType = 1;
    clearChip();
    chipMemory[kHprHigh] = 0x10;
    writeByte(0x100, 0x34);
    ASSERT_EQ(chipMemory[kHprHigh], 0x11);
    cpuType = 0;
    EXPECT_EQ(asWord ? writeWord(0x200, 1, 2) : writeByte(0x200, 2), "");
    EXPECT_EQ(word(0x100), "0000");
    EXPECT_EQ(word(0x200), asWord ? "0102" : "0002");
    EXPECT_EQ(chipMemory[kHprHigh], 0x10);
    EXPECT_EQ(writeTempLowValid, kFalse);
  }
}

TEST_F(AccessTest, AWideBusKnowsNoProtectedWrite) {
  for (const int cpu : {0, 2}) {
    cpuType = static_cast<std::int16_t>(cpu);
    clearChip();
    chipMemory[kHprHigh] = 0x10;
    EXPECT_EQ(writeByte(0x100, 0x34), "");
    EXPECT_EQ(chipMemory[indexOfAddress(0x100)], 0x34);
  }
}

TEST_F(AccessTest, AProtectedReadSeesBothHalvesOfOneMoment) {
  for (const int cpu : {1, 3}) {
    cpuType = static_cast<std::int16_t>(cpu);
    clearChip();
    chipMemory[kHprLow] = 0x10;
    chipMemory[0x100] = 0x34;
    chipMemory[0x101] = 0x12;
    const int low = cpu == 3 ? 0x101 : 0x100;
    const Read first = readByte(low, buffer);
    EXPECT_EQ(first.value, 0x34);
    EXPECT_EQ(first.guide, kIntoBuffer);
    chipMemory[0x100] = 0x78;
    chipMemory[0x101] = 0x56;
    const Read second = readByte(low ^ 1, buffer);
    EXPECT_EQ(second.value, 0x12);
    EXPECT_EQ(second.guide, kFromBuffer);
    EXPECT_EQ(chipMemory[kHprLow], 0x10);
    EXPECT_EQ(readByte(low, buffer).value, 0x78);
  }
}

TEST_F(AccessTest, TheSecondReadIsAnsweredFromTheBufferWhereverItPoints) {
  cpuType = 1;
  chipMemory[0x100] = 0x34;
  chipMemory[0x101] = 0x12;
  for (const int second : {0x000, 0x001, 0x4FF, 0x7FE}) {
    chipMemory[kHprLow] = 0x10;
    readByte(0x100, buffer);
    const Read byte = readByte(second, buffer);
    EXPECT_EQ(byte.value, second % 2 == 0 ? 0x34 : 0x12) << second;
    EXPECT_EQ(byte.guide, kFromBuffer);
  }
  // Turning the protection off does not empty the buffer.
  chipMemory[kHprLow] = 0x10;
  readByte(0x100, buffer);
  chipMemory[kHprLow] = 0x01;
  EXPECT_EQ(readByte(0x001, buffer).value, 0x12);
  EXPECT_EQ(chipMemory[kHprLow], 0x00);
  EXPECT_EQ(readByte(0x001, buffer).guide, kFromMemory);
}

TEST_F(AccessTest, ACellsAddressFollowsTheByteOrder) {
  struct Row {
    int cpu;
    const char* caption;
    int cell, address;
  };
  const Row table[] = {{0, "00x", 0, 0x00F},   {0, "00x", 15, 0x000},  {0, "00x", 16, 0x01F},  {1, "00x", 383, 0x170},
                       {2, "00x", 0, 0x000},   {3, "00x", 15, 0x00F},  {3, "18x", 0, 0x180},   {0, "18x", 15, 0x180},
                       {0, "18x", 895, 0x4F0}, {0, "50x", 127, 0x570}, {2, "50x", 127, 0x57F}, {0, "", 15, 0}};
  for (const Row& row : table) {
    cpuType = static_cast<std::int16_t>(row.cpu);
    EXPECT_EQ(addressOfCell(row.caption, row.cell), row.address) << row.caption << " " << row.cell;
  }
}

}  // namespace
}  // namespace zelvs
