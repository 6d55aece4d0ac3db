// The chip's bus: what an address means to each CPU, what is refused and what a refusal leaves alone.

#include <string>
#include <tuple>
#include <vector>

#include "chip/bus.h"
#include "link/simulation.h"
#include "support/program.h"

namespace zelvs {
namespace {

constexpr int kCpus[] = {0, 1, 2, 3};

/// All that a write can change.
struct Chip {
  std::vector<int> bytes;
  std::tuple<int, int, int, int> held;

  bool operator==(const Chip&) const = default;

  static Chip now() {
    return {{chipMemory.begin(), chipMemory.end()},
            {writeTempHighValid, writeTempLowValid, writeTempHighByte, writeTempLowByte}};
  }
};

class BusTest : public ProgramTest {
 protected:
  BusTest() {
    start();
    fresh(0);
  }

  /// Every byte tells its place, registers are 0, full duplex on both sides, nothing scans.
  void fresh(int cpu) {
    for (int index = 0; index < kChipMemorySize; ++index)
      chipMemory[index] = static_cast<std::uint8_t>(index * 7 + index / 256);
    for (int index = kScrLow; index < kRegistersEnd; ++index)
      chipMemory[index] = 0;
    chipMemory[kBcrLow] = 0x13;
    boardFullHalf = 16;
    writeTempHighValid = writeTempLowValid = kFalse;
    buffer = {};
    cpuType = static_cast<std::int16_t>(cpu);
    scan(false, kFalse, kFalse);
  }
  static void scan(bool lamp, Flag continuous, Flag oneShot) {
    frmHard->picScanLed.Tag = lamp ? "1" : "0";
    continuousScanActive = continuous;
    oneShotScanActive = oneShot;
  }
  static void put(int address, int value) { chipMemory[address] = static_cast<std::uint8_t>(value); }
  static int word(int even) { return chipMemory[even + 1] * 256 + chipMemory[even]; }

  ReadBuffer buffer{};
};

// ---- Reading

TEST_F(BusTest, EveryAddressReadsAsItsByteOnEveryCpu) {
  for (const int cpu : kCpus) {
    fresh(cpu);
    const Chip before = Chip::now();
    for (int address = 0; address < kChipMemorySize; ++address) {
      const ByteRead byte = readByte(address, buffer);
      ASSERT_EQ(byte.value, chipMemory[cpu < 2 ? address : address % 2 == 0 ? address + 1 : address - 1]) << address;
      ASSERT_EQ(byte.source, ReadFrom::Memory);
    }
    EXPECT_EQ(Chip::now(), before);
  }
}

TEST_F(BusTest, AWordReadsHighByteFirstWhateverTheByteOrder) {
  for (const int cpu : {0, 2}) {
    fresh(cpu);
    put(0x100, 0x34);
    put(0x101, 0x12);
    put(kHprLow, 0x11);
    const Chip before = Chip::now();
    EXPECT_EQ(readWord(0x100), 0x1234);
    EXPECT_EQ(readWord(0x101), 0x1234);
    EXPECT_EQ(readWord(0x58E), 0x0013);
    EXPECT_EQ(readWord(0x7FE), word(0x7FE));
    EXPECT_EQ(Chip::now(), before) << "a word read knows no hazard protect";
  }
}

TEST_F(BusTest, AWideBusReadsBytesPastTheBuffer) {
  for (const int cpu : {0, 2}) {
    for (const int hpr : {0x10, 0x11, 0x01}) {
      fresh(cpu);
      put(kHprLow, hpr);
      buffer = {0xAA, 0xBB};
      const ByteRead byte = readByte(0x101, buffer);
      EXPECT_EQ(byte.value, chipMemory[cpu == 0 ? 0x101 : 0x100]);
      EXPECT_EQ(byte.source, ReadFrom::Memory);
      EXPECT_EQ(chipMemory[kHprLow], hpr) << "whoever waits for a second half goes on waiting";
      EXPECT_EQ(buffer, (ReadBuffer{0xAA, 0xBB}));
    }
  }
}

TEST_F(BusTest, AByteBusReadsTheDataRangeThroughTheBufferByTheTypedAddress) {
  struct Row {
    int address;
    bool kept;
  };
  for (const int cpu : {1, 3}) {
    for (const Row& row : {Row{0x7F, false}, Row{0x80, true}, Row{0x4FE, true}, Row{0x4FF, true}, Row{0x500, false},
                           Row{0x584, false}, Row{0x585, false}, Row{0x7FF, false}}) {
      SCOPED_TRACE(row.address);
      fresh(cpu);
      put(kHprLow, 0x10);
      const int index = cpu == 1 ? row.address : row.address ^ 1;
      const ByteRead byte = readByte(row.address, buffer);
      EXPECT_EQ(byte.source, row.kept ? ReadFrom::MemoryAndKept : ReadFrom::Memory);
      EXPECT_EQ(chipMemory[kHprLow], row.kept ? 0x11 : 0x10);
      if (row.kept) {
        EXPECT_EQ(byte.value, chipMemory[index]);
        EXPECT_EQ(buffer, (ReadBuffer{chipMemory[index & ~1], chipMemory[index | 1]}));
      }
    }
  }
}

TEST_F(BusTest, TheSecondHalfComesFromTheBufferOfWhoeverAsks) {
  fresh(1);
  put(kHprLow, 0x10);
  ReadBuffer other = {0xAA, 0xBB};
  readByte(0x100, buffer);
  // The one bit of HPR serves both readers: the other one gets what its own buffer holds, of a register too.
  const ByteRead byte = readByte(0x58F, other);
  EXPECT_EQ(byte.value, 0xBB);
  EXPECT_EQ(byte.source, ReadFrom::Buffer);
  EXPECT_EQ(readByte(0x101, buffer).source, ReadFrom::MemoryAndKept);
}

// ---- What is protected

TEST_F(BusTest, AWriteIsAskedByIndexAndScan) {
  for (const int cpu : kCpus) {
    for (const bool lamp : {false, true}) {
      for (const auto& [continuous, oneShot] :
           {std::pair{kFalse, kFalse}, std::pair{kTrue, kFalse}, std::pair{kFalse, kTrue}}) {
        fresh(cpu);
        scan(lamp, continuous, oneShot);
        const bool active = continuous != kFalse || oneShot != kFalse;
        const bool bytes = cpu == 1 || cpu == 3;
        const Chip before = Chip::now();
        for (int index = 0; index < kChipMemorySize; ++index) {
          Answer expected = Answer::Ok;
          if (lamp && bytes && index < 0x80 && index % 2 == 1) expected = Answer::ReportProtected;
          if (lamp && index >= 0x100 && index <= 0x17F) expected = Answer::FetchedProtected;  // DI
          if (lamp && index >= 0x180 && index <= 0x4FF) expected = Answer::FetchedProtected;  // C1 to C7
          if (index == 0x582 || index == 0x583) expected = Answer::ReadOnlyRegister;
          if (active && (index == 0x58E || index == 0x58F)) expected = Answer::RegisterProtected;
          if (index >= 0x590) expected = Answer::ReadOnlyArea;
          ASSERT_EQ(askWrite(index), expected) << std::hex << index << " cpu " << cpu << " lamp " << lamp;
        }
        EXPECT_EQ(Chip::now(), before) << "a question changes nothing";
      }
    }
  }
}

TEST_F(BusTest, WhoAsksFirstLosesNoHalfToAProtectedArea) {
  for (const int cpu : {1, 3}) {
    fresh(cpu);
    put(kHprHigh, 0x10);
    const int low = cpu == 1 ? 0x80 : 0x81;
    const int high = low ^ 1;
    ASSERT_EQ(writeByte(low, 0x34).answer, Answer::Held);
    scan(true, kTrue, kFalse);
    const Chip before = Chip::now();
    for (const int address : {0x100, 0x101, 0x17F, 0x180, 0x4FF})
      EXPECT_EQ(askWrite(indexOfAddress(address)), Answer::FetchedProtected);
    EXPECT_EQ(askWrite(indexOfAddress(cpu == 1 ? 0x03 : 0x02)), Answer::ReportProtected);
    EXPECT_EQ(Chip::now(), before);
    EXPECT_EQ(writeByte(high, 0x12).answer, Answer::Ok);
    EXPECT_EQ(word(0x80), 0x1234);
  }
}

TEST_F(BusTest, AWriteIntoTheDataAreaDoesNotAskByItself) {
  fresh(1);
  scan(true, kTrue, kFalse);
  for (const int address : {0x03, 0x100, 0x17F, 0x180, 0x4FF}) {
    EXPECT_EQ(writeByte(address, 0x5A).answer, Answer::Ok);
    EXPECT_EQ(chipMemory[address], 0x5A);
  }
  cpuType = 0;
  EXPECT_EQ(writeWord(0x100, 0x1234).answer, Answer::Ok);
  EXPECT_EQ(word(0x100), 0x1234);
}

// ---- Writing the data area

TEST_F(BusTest, EveryByteLandsWhereItReadsFrom) {
  for (const int cpu : kCpus) {
    for (int address = 0; address < kDataEnd; ++address) {
      fresh(cpu);
      Chip expected = Chip::now();
      expected.bytes[static_cast<std::size_t>(cpu < 2 ? address : address ^ 1)] = 0xA5;
      const Written written = writeByte(address, 0xA5);
      ASSERT_EQ(written.answer, Answer::Ok);
      ASSERT_FALSE(written.readSideChanged);
      ASSERT_EQ(Chip::now(), expected) << cpu << " " << std::hex << address;
    }
  }
}

TEST_F(BusTest, EveryWordLandsLowByteFirst) {
  for (const int cpu : {0, 2}) {
    for (int address = 0; address < kDataEnd; ++address) {
      fresh(cpu);
      Chip expected = Chip::now();
      expected.bytes[static_cast<std::size_t>(address / 2 * 2)] = 0x34;
      expected.bytes[static_cast<std::size_t>(address / 2 * 2 + 1)] = 0x12;
      ASSERT_EQ(writeWord(address, 0x1234).answer, Answer::Ok);
      ASSERT_EQ(Chip::now(), expected) << cpu << " " << std::hex << address;
    }
  }
}

TEST_F(BusTest, AScanKeepsTheReportByteOfAWord) {
  for (const int cpu : {0, 2}) {
    for (const int address : {0x02, 0x7E}) {
      fresh(cpu);
      scan(true, kTrue, kFalse);
      put(address, 0x11);
      put(address + 1, 0x22);
      EXPECT_EQ(askWrite(address), Answer::Ok) << "the word is let in";
      EXPECT_EQ(writeWord(address, 0x3344).answer, Answer::ReportKept);
      EXPECT_EQ(word(address), 0x2244);
      EXPECT_EQ(writeWord(address, 0x2255).answer, Answer::Ok) << "the same high byte";
      EXPECT_EQ(word(address), 0x2255);
      scan(false, kTrue, kFalse);
      EXPECT_EQ(writeWord(address, 0x3344).answer, Answer::Ok) << "the lamp counts, not the scan";
      EXPECT_EQ(word(address), 0x3344);
    }
  }
}

TEST_F(BusTest, AByteBusHoldsTheFirstHalfByTheSwappedIndex) {
  struct Row {
    int index;
    bool held;
  };
  for (const int cpu : kCpus) {
    for (const Row& row : {Row{0x7F, false}, Row{0x80, true}, Row{0x81, true}, Row{0x4FD, true}, Row{0x4FE, true},
                           Row{0x4FF, false}, Row{0x500, false}, Row{0x57F, false}}) {
      SCOPED_TRACE(testing::Message() << cpu << " " << std::hex << row.index);
      fresh(cpu);
      put(kHprHigh, 0x10);
      const bool held = row.held && cpu % 2 == 1;
      const int before = chipMemory[row.index];
      const Written written = writeByte(cpu < 2 ? row.index : row.index ^ 1, before ^ 0xFF);
      EXPECT_EQ(written.answer, held ? Answer::Held : Answer::Ok);
      EXPECT_EQ(chipMemory[row.index], held ? before : before ^ 0xFF);
      EXPECT_EQ(chipMemory[kHprHigh], held ? 0x11 : 0x10);
      EXPECT_EQ(writeTempHighValid, held && row.index % 2 == 1 ? kTrue : kFalse);
      EXPECT_EQ(writeTempLowValid, held && row.index % 2 == 0 ? kTrue : kFalse);
    }
  }
}

// ---- Writing behind the data area

TEST_F(BusTest, TheRestBehindTheRegistersIsReadOnly) {
  for (const int cpu : kCpus) {
    for (const int hpr : {0x00, 0x11}) {
      fresh(cpu);
      put(kHprHigh, hpr);
      writeTempLowValid = hpr == 0 ? kFalse : kTrue;
      writeTempLowByte = 0x77;
      const Chip before = Chip::now();
      for (int address = kRegistersEnd; address < kChipMemorySize; ++address) {
        EXPECT_EQ(writeByte(address, 0xA5).answer, Answer::ReadOnlyArea);
        if (cpu % 2 == 0) {
          EXPECT_EQ(writeWord(address, 0xA5A5).answer, Answer::ReadOnlyArea);
        }
      }
      EXPECT_EQ(Chip::now(), before);
    }
  }
}

TEST_F(BusTest, AByteReachesTheHalfOfARegisterThatItsAddressMeans) {
  struct Row {
    int even;       // the register
    int low, high;  // what 0xFF makes of a half that was 0x01
  };
  // SCR keeps six bits, HPR bit 4 beside its own bit 0, and so on: enough to tell which half was meant.
  for (const int cpu : kCpus) {
    for (const Row& row : {Row{kScrLow, 0x3F, 0x3F}, Row{kHprLow, 0x11, 0x11}, Row{kInt0Status, 0x00, 0xFF},
                           Row{kInt1Status, 0x00, 0xF8}, Row{kC1crLow, 0x00, 0x01}, Row{kC2crLow, 0x00, 0x01},
                           Row{kBcrLow, 0x13, 0x07}}) {
      SCOPED_TRACE(testing::Message() << cpu << " " << std::hex << row.even);
      for (const int half : {0, 1}) {
        fresh(cpu);
        put(row.even, 0x01);
        put(row.even + 1, 0x01);
        Chip expected = Chip::now();
        expected.bytes[static_cast<std::size_t>(row.even + half)] = half == 0 ? row.low : row.high;
        const Written written = writeByte(cpu < 2 ? row.even + half : row.even + 1 - half, 0xFF);
        EXPECT_EQ(written.answer, Answer::Ok);
        EXPECT_EQ(written.readSideChanged, row.even == kHprLow && half == 0);
        EXPECT_EQ(Chip::now(), expected);
      }
    }
  }
}

TEST_F(BusTest, AWordReachesBothHalvesOfARegister) {
  struct Row {
    int even, before, value, after;
  };
  for (const int cpu : {0, 2}) {
    for (const Row& row : {Row{kScrLow, 0x0000, 0x0045, 0x0005}, Row{kScrLow, 0x0000, 0x4500, 0x0500},
                           Row{kHprLow, 0x0101, 0xFFFF, 0x1111}, Row{kInt0Status, 0x0086, 0xFF04, 0xFF82},
                           Row{kInt1Status, 0x0018, 0x0708, 0x0010}, Row{kC1crLow, 0x0077, 0x0001, 0x0000},
                           Row{kC2crLow, 0x0077, 0x0100, 0x0077}, Row{kBcrLow, 0x0013, 0xFFFF, 0x0713}}) {
      for (const int address : {row.even, row.even + 1}) {
        SCOPED_TRACE(testing::Message() << cpu << " " << std::hex << address);
        fresh(cpu);
        put(row.even, row.before & 0xFF);
        put(row.even + 1, row.before >> 8);
        Chip expected = Chip::now();
        expected.bytes[static_cast<std::size_t>(row.even)] = row.after & 0xFF;
        expected.bytes[static_cast<std::size_t>(row.even + 1)] = row.after >> 8;
        const Written written = writeWord(address, static_cast<std::uint16_t>(row.value));
        EXPECT_EQ(written.answer, Answer::Ok);
        EXPECT_EQ(written.readSideChanged, row.even == kHprLow);
        EXPECT_EQ(Chip::now(), expected);
      }
    }
  }
}

TEST_F(BusTest, TheReadSideIsToldOnlyWhenItChanges) {
  for (const int cpu : kCpus) {
    fresh(cpu);
    const int low = cpu < 2 ? kHprLow : kHprHigh;
    EXPECT_FALSE(writeByte(low, 0x00).readSideChanged);
    EXPECT_TRUE(writeByte(low, 0x10).readSideChanged);
    EXPECT_FALSE(writeByte(low, 0xFF).readSideChanged) << "bit 0 is no bit of the CPU's";
    EXPECT_FALSE(writeByte(low ^ 1, 0x10).readSideChanged) << "the write side";
    EXPECT_TRUE(writeByte(low, 0x00).readSideChanged);
    EXPECT_EQ(word(kHprLow), 0x1000);
  }
}

TEST_F(BusTest, ARegisterWriteLeavesTheHeldHalfAlone) {
  for (const int cpu : {1, 3}) {
    fresh(cpu);
    put(kHprHigh, 0x10);
    ASSERT_EQ(writeByte(0x100, 0x34).answer, Answer::Held);
    const int before = word(0x100);
    for (int address = kScrLow; address < kRegistersEnd; ++address)
      writeByte(address, 0x00);
    EXPECT_EQ(chipMemory[kHprHigh], 0x01);
    EXPECT_EQ(word(0x100), before);
    EXPECT_EQ(writeByte(0x101, 0x12).answer, Answer::Ok);
    EXPECT_EQ(word(0x100), cpu == 1 ? 0x1234 : 0x3412);
  }
}

TEST_F(BusTest, ARefusedRegisterChangesNothing) {
  struct Row {
    const char* name;
    int address;  // on a little-endian CPU
    bool asWord;
    int value;
    Flag continuous, oneShot;
    int jumper;
    Answer answer;
  };
  const Row table[] = {
      {"SSR word", 0x582, true, 0xFFFF, kFalse, kFalse, 16, Answer::ReadOnlyRegister},
      {"SSR low", 0x582, false, 0xFF, kFalse, kFalse, 16, Answer::ReadOnlyRegister},
      {"SSR high", 0x583, false, 0xFF, kFalse, kFalse, 16, Answer::ReadOnlyRegister},
      {"BCR word in a scan", 0x58E, true, 0xFFFF, kTrue, kFalse, 16, Answer::RegisterProtected},
      {"BCR low in a cycle", 0x58E, false, 0xFF, kFalse, kTrue, 16, Answer::RegisterProtected},
      {"BCR high in a scan", 0x58F, false, 0xFF, kTrue, kFalse, 16, Answer::RegisterProtected},
      {"two scans at once", 0x580, true, 0x0505, kFalse, kFalse, 16, Answer::BadValue},
      {"a scan in a cycle", 0x580, false, 0x05, kFalse, kTrue, 16, Answer::BadValue},
      {"a cycle in a scan", 0x581, false, 0x05, kTrue, kFalse, 16, Answer::BadValue},
      {"station 1 in full duplex", 0x580, false, 0x41, kFalse, kFalse, 16, Answer::BadValue},
      {"a bad value before the jumpers", 0x580, true, 0x0505, kFalse, kFalse, 0, Answer::BadValue},
      {"SCR against the jumpers", 0x580, true, 0x0005, kFalse, kFalse, 0, Answer::ScrWordMismatch},
      {"its low byte", 0x580, false, 0x05, kFalse, kFalse, 0, Answer::ScrLowMismatch},
      {"its high byte", 0x581, false, 0x05, kFalse, kFalse, 0, Answer::ScrHighMismatch},
  };
  for (const Row& row : table) {
    for (const int cpu : kCpus) {
      if (row.asWord && cpu % 2 == 1) continue;
      SCOPED_TRACE(testing::Message() << row.name << " cpu " << cpu);
      fresh(cpu);
      put(kSsrLow, 0x85);
      put(kHprHigh, 0x11);
      writeTempHighValid = kTrue;
      writeTempHighByte = 0x77;
      scan(false, row.continuous, row.oneShot);
      boardFullHalf = static_cast<std::uint8_t>(row.jumper);
      const Chip before = Chip::now();
      const Written written = row.asWord ? writeWord(row.address, static_cast<std::uint16_t>(row.value))
                                         : writeByte(indexOfAddress(row.address), static_cast<std::uint8_t>(row.value));
      EXPECT_EQ(written.answer, row.answer);
      EXPECT_FALSE(written.readSideChanged);
      EXPECT_EQ(Chip::now(), before);
    }
  }
}

TEST_F(BusTest, BcrAgainstTheJumpersIsWrittenAndWarnedOf) {
  for (const int cpu : kCpus) {
    fresh(cpu);
    EXPECT_EQ(writeByte(indexOfAddress(kBcrLow), 0x03).answer, Answer::BcrMismatch);
    EXPECT_EQ(chipMemory[kBcrLow], 0x03);
    EXPECT_EQ(writeByte(indexOfAddress(kBcrHigh), 0x05).answer, Answer::Ok) << "the high byte is not tested";
    EXPECT_EQ(word(kBcrLow), 0x0503);
    if (cpu % 2 == 1) continue;
    EXPECT_EQ(writeWord(kBcrLow, 0x0002).answer, Answer::BcrMismatch);
    EXPECT_EQ(word(kBcrLow), 0x0002);
  }
}

// ---- Words, lines, errors

TEST_F(BusTest, EveryAnswerHasItsWords) {
  struct Row {
    Answer answer;
    bool box;
    std::string words;
  };
  const std::string kBcr = "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\n";
  const std::string kNotStarted = "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。";
  const Row table[] = {
      {Answer::Ok, false, ""},
      {Answer::Held, false, "ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。"},
      {Answer::ReportKept, false, "スキャン中、コントロールワードの上位バイトはライトプロテクト。"},
      {Answer::BcrMismatch, true, kBcr + kNotStarted},
      {Answer::ReportProtected, false, "スキャン中、コントロールワードの上位バイトはライトプロテクト"},
      {Answer::FetchedProtected, false, "スキャン中はライトプロテクト"},
      {Answer::RegisterProtected, false, "スキャン中はライトプロテクト。"},
      {Answer::ReadOnlyRegister, false, "このレジスタはリードオンリーです。"},
      {Answer::ReadOnlyArea, false, "この番地には書き込めません。"},
      {Answer::BadValue, false, "入力された値が不適切であるため、書き込まれません。"},
      {Answer::ScrWordMismatch, true, kBcr + "ハードウェアの設定を変更するか、ＢＣＲの値を変更してください。"},
      {Answer::ScrLowMismatch, true,
       "通信設定がハードウェア設定と一致していません。\r\n\r\n"
       "ハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。"},
      {Answer::ScrHighMismatch, true, kBcr + kNotStarted},
  };
  for (const Row& row : table) {
    EXPECT_EQ(wordsOf(row.answer), row.words);
    EXPECT_EQ(toldInBox(row.answer), row.box) << row.words;
  }
  EXPECT_EQ(wordsOf(ReadFrom::Memory), "メモリよりデータを取得しました。");
  EXPECT_EQ(wordsOf(ReadFrom::MemoryAndKept), "リードテンポラリバッファにデータを格納しました。");
  EXPECT_EQ(wordsOf(ReadFrom::Buffer), "リードテンポラリバッファからデータを取得しました。");
}

TEST_F(BusTest, AnyStatusBitDrivesItsLineWhateverIsEnabled) {
  struct Row {
    int int0, int1, lines;
  };
  for (const Row& row : {Row{0, 0, 0}, Row{0x01, 0, 1}, Row{0x80, 0, 1}, Row{0, 0x08, 2}, Row{0xFF, 0x80, 3}}) {
    fresh(0);
    put(kInt0Enable, row.int0 ^ 0xFF);
    put(kInt0Status, row.int0);
    put(kInt1Status, row.int1);
    EXPECT_EQ(interruptLines(), row.lines);
    refreshIntLine();
    EXPECT_EQ(intLinePicture, row.lines + 1) << "the lamp shows the same";
    EXPECT_EQ(frmHard->picInt.Visible, row.lines != 0);
  }
}

TEST_F(BusTest, AClearedStatusLetsTheLineAndItsLampGo) {
  fresh(3);
  put(kInt0Status, 0x04);
  put(kInt1Status, 0x08);
  refreshIntLine();
  EXPECT_EQ(writeByte(0x587, 0x04).answer, Answer::Ok);
  EXPECT_EQ(interruptLines(), 2);
  EXPECT_EQ(intLinePicture, 3);
  EXPECT_EQ(writeByte(0x589, 0x08).answer, Answer::Ok);
  EXPECT_EQ(interruptLines(), 0);
  EXPECT_FALSE(frmHard->picInt.Visible);
}

using BusDeathTest = BusTest;

TEST_F(BusDeathTest, AnAddressOutsideEndsTheProgram) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  fresh(1);
  put(kHprLow, 0x11);
  for (const int address : {-2, 0x800}) {
    EXPECT_EXIT(readByte(address, buffer), testing::ExitedWithCode(kRunTimeErrorStatus), "index");
    EXPECT_EXIT(readWord(address), testing::ExitedWithCode(kRunTimeErrorStatus), "index");
    EXPECT_EXIT(askWrite(address), testing::ExitedWithCode(kRunTimeErrorStatus), "index");
    EXPECT_EXIT(writeByte(address, 0), testing::ExitedWithCode(kRunTimeErrorStatus), "index");
    EXPECT_EXIT(writeWord(address, 0), testing::ExitedWithCode(kRunTimeErrorStatus), "index");
  }
}

}  // namespace
}  // namespace zelvs
