// What each register makes of a write, table by table.

#include <string>

#include "chip/registerWrite.h"
#include "support/program.h"

namespace zelvs {
namespace {

constexpr const char* kBad = "入力された値が不適切であるため、書き込まれません。";
const std::string kBcrHead = "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\n";
const std::string kScrWordBox = kBcrHead + "ハードウェアの設定を変更するか、ＢＣＲの値を変更してください。";
const std::string kBcrBox = kBcrHead + "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。";
const std::string kScrLowBox =
    "通信設定がハードウェア設定と一致していません。\r\n\r\n"
    "ハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。";

enum Access { kWord, kLow, kHigh };

class RegisterWriteTest : public ProgramTest {
 protected:
  RegisterWriteTest() {
    start();
    idle();
  }
  /// Full duplex on both sides, no scan, all else 0.
  void idle() {
    for (int address = 0x580; address < 0x590; ++address)
      chipMemory[address] = 0;
    chipMemory[kBcrLow] = 0x13;
    boardFullHalf = 16;
    continuousScanActive = oneShotScanActive = kFalse;
  }
  /// An answer as its words, by where they are told.
  struct Report {
    std::string_view message, warning;
  };
  static Report write(int address, Access access, int value) {
    RegisterValue parts;
    if (access != kHigh) parts.low = static_cast<std::uint8_t>(value & 0xFF);
    if (access == kWord) parts.high = static_cast<std::uint8_t>(value >> 8);
    if (access == kHigh) parts.high = static_cast<std::uint8_t>(value);
    const Answer answer = writeRegister(address, parts).answer;
    return toldInBox(answer) ? Report{{}, wordsOf(answer)} : Report{wordsOf(answer), {}};
  }
  static int word(int address) { return chipMemory[address + 1] * 256 + chipMemory[address]; }
};

TEST_F(RegisterWriteTest, ScrStartsAndStopsScans) {
  struct Row {
    const char* name;
    Access access;
    int value;
    bool continuous, oneShot, full;
    int before, after;
    const char* message;
  };
  const Row table[] = {
      {"continuous scan", kWord, 0x0005, false, false, true, 0, 0x0005, ""},
      {"single cycle", kWord, 0x0500, false, false, true, 0, 0x0500, ""},
      {"both at once", kWord, 0x0505, false, false, true, 0, 0, kBad},
      {"single cycle during a continuous scan", kWord, 0x0500, true, false, true, 5, 5, kBad},
      {"continuous scan during a single cycle", kWord, 0x0005, false, true, true, 0x300, 0x300, kBad},
      {"single cycle during a single cycle", kWord, 0x0500, false, true, true, 0x300, 0x300, kBad},
      {"another final station", kWord, 0x0007, true, false, true, 5, 7, ""},
      {"stop", kWord, 0x0000, true, false, true, 5, 0, ""},
      {"nothing during a single cycle", kWord, 0x0000, false, true, true, 0x300, 0, ""},
      {"station 1 in full duplex", kWord, 0x0001, false, false, true, 0, 0, kBad},
      {"station 1 once in full duplex", kWord, 0x0100, false, false, true, 0, 0, kBad},
      {"station 1 under the upper bits", kWord, 0x00C1, false, false, true, 0, 0, kBad},
      {"station 1 in half duplex", kWord, 0x0001, false, false, false, 0, 1, ""},
      {"station 1 once in half duplex", kWord, 0x0100, false, false, false, 0, 0x100, ""},
      {"six bits are kept", kWord, 0x00C5, false, false, true, 0, 0x0005, ""},
      {"six bits are kept above", kWord, 0xC500, false, false, true, 0, 0x0500, ""},
      {"upper bits alone ask for a scan too", kWord, 0xC005, false, false, true, 0, 0, kBad},

      {"low: continuous scan", kLow, 0xC5, false, false, true, 0, 0x0005, ""},
      {"low: the high byte stays", kLow, 0x00, false, true, true, 0x300, 0x300, ""},
      {"low: during a single cycle", kLow, 0x05, false, true, true, 0x300, 0x300, kBad},
      {"low: during a continuous scan", kLow, 0x07, true, false, true, 5, 7, ""},
      {"low: stop", kLow, 0x00, true, false, true, 5, 0, ""},
      {"low: station 1 in full duplex", kLow, 0x41, false, false, true, 0, 0, kBad},
      {"low: station 1 in half duplex", kLow, 0x41, false, false, false, 0, 1, ""},

      {"high: single cycle", kHigh, 0xC5, false, false, true, 0, 0x0500, ""},
      {"high: the low byte stays", kHigh, 0x00, true, false, true, 5, 5, ""},
      {"high: during a continuous scan", kHigh, 0x05, true, false, true, 5, 5, kBad},
      {"high: during a single cycle", kHigh, 0x05, false, true, true, 0x300, 0x300, kBad},
      {"high: 0 during a single cycle", kHigh, 0x00, false, true, true, 0x300, 0, ""},
      {"high: station 1 in full duplex", kHigh, 0x41, false, false, true, 0, 0, kBad},
      {"high: station 1 in half duplex", kHigh, 0x41, false, false, false, 0, 0x100, ""},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    idle();
    continuousScanActive = row.continuous ? kTrue : kFalse;
    oneShotScanActive = row.oneShot ? kTrue : kFalse;
    chipMemory[kBcrLow] = row.full ? 0x13 : 0x03;
    boardFullHalf = row.full ? 16 : 0;
    chipMemory[kScrLow] = static_cast<std::uint8_t>(row.before & 0xFF);
    chipMemory[kScrHigh] = static_cast<std::uint8_t>(row.before >> 8);
    const Report report = write(0x580, row.access, row.value);
    EXPECT_EQ(report.message, row.message);
    EXPECT_EQ(report.warning, "");
    EXPECT_EQ(word(0x580), row.after);
  }
}

TEST_F(RegisterWriteTest, ScrIsNotWrittenWhileTheJumpersDisagree) {
  const std::pair<Access, std::string> table[] = {{kWord, kScrWordBox}, {kLow, kScrLowBox}, {kHigh, kBcrBox}};
  for (const auto& [access, box] : table) {
    for (const int jumper : {0, 16}) {
      idle();
      boardFullHalf = static_cast<std::uint8_t>(jumper);
      chipMemory[kBcrLow] = jumper == 0 ? 0x13 : 0x03;
      // Even a stop is held back.
      for (const int value : {0x05, 0x00}) {
        const Report report = write(0x580, access, value);
        EXPECT_EQ(report.warning, box);
        EXPECT_EQ(report.message, "");
        EXPECT_EQ(word(0x580), 0);
      }
    }
    idle();
    boardFullHalf = 0;
    EXPECT_EQ(write(0x580, access, 0x01).message, access == kWord || access == kLow ? kBad : kBad)
        << "a bad value is told first";
  }
}

TEST_F(RegisterWriteTest, SsrIsReadOnly) {
  chipMemory[kSsrLow] = 0x85;
  for (const Access access : {kWord, kLow, kHigh}) {
    EXPECT_EQ(write(0x582, access, 0).message, "このレジスタはリードオンリーです。");
    EXPECT_EQ(word(0x582), 0x85);
  }
}

TEST_F(RegisterWriteTest, MaskedRegistersKeepWhatAWriteCannotReach) {
  struct Row {
    const char* name;
    int address;
    Access access;
    int value, before, after;
  };
  const Row table[] = {
      {"HPR word", 0x584, kWord, 0x1111, 0x0000, 0x1010},
      {"HPR keeps its bits 0", 0x584, kWord, 0x1111, 0x0101, 0x1111},
      {"HPR off, buffers stay half done", 0x584, kWord, 0x0000, 0x1111, 0x0101},
      {"HPR all ones", 0x584, kWord, 0xFFFF, 0x0000, 0x1010},
      {"HPR low", 0x584, kLow, 0xFF, 0x0101, 0x0111},
      {"HPR high", 0x584, kHigh, 0xFF, 0x0101, 0x1101},
      {"INT0R word", 0x586, kWord, 0xFF04, 0x0086, 0xFF82},
      {"INT0R low clears by ones", 0x586, kLow, 0x82, 0x5586, 0x5504},
      {"INT0R low 0 clears nothing", 0x586, kLow, 0x00, 0x5586, 0x5586},
      {"INT0R high", 0x586, kHigh, 0xAA, 0x5586, 0xAA86},
      {"INT1R word 0700", 0x588, kWord, 0x0700, 0x0008, 0x0008},
      {"INT1R word", 0x588, kWord, 0xFFFF, 0x00F8, 0xF800},
      {"INT1R low", 0x588, kLow, 0x08, 0xF8F8, 0xF8F0},
      {"INT1R high", 0x588, kHigh, 0xFF, 0x0018, 0xF818},
      {"C1CR 0001", 0x58A, kWord, 0x0001, 0x0077, 0x0000},
      {"C1CR 0002", 0x58A, kWord, 0x0002, 0x0077, 0x0077},
      {"C1CR 0100", 0x58A, kWord, 0x0100, 0x0077, 0x0077},
      {"C1CR FFFF", 0x58A, kWord, 0xFFFF, 0x0077, 0x0000},
      {"C1CR low 1", 0x58A, kLow, 0x81, 0x0077, 0x0000},
      {"C1CR low 0", 0x58A, kLow, 0x80, 0x0077, 0x0077},
      {"C1CR high", 0x58A, kHigh, 0x01, 0x0077, 0x0077},
      {"C2CR 0001", 0x58C, kWord, 0x0001, 0x0077, 0x0000},
      {"C2CR 0002", 0x58C, kWord, 0x0002, 0x0077, 0x0077},
      {"C2CR low", 0x58C, kLow, 0x01, 0x0077, 0x0000},
      {"C2CR high", 0x58C, kHigh, 0xFF, 0x0077, 0x0077},
      {"BCR FFFF", 0x58E, kWord, 0xFFFF, 0x0013, 0x0713},
      {"BCR 0010", 0x58E, kWord, 0x0010, 0x0713, 0x0010},
      {"BCR low", 0x58E, kLow, 0xFC, 0x0713, 0x0710},
      {"BCR high", 0x58E, kHigh, 0xFD, 0x0013, 0x0513},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    idle();
    chipMemory[row.address] = static_cast<std::uint8_t>(row.before & 0xFF);
    chipMemory[row.address + 1] = static_cast<std::uint8_t>(row.before >> 8);
    const Report report = write(row.address, row.access, row.value);
    EXPECT_EQ(word(row.address), row.after);
    EXPECT_EQ(report.message, "");
    EXPECT_EQ(report.warning, "");
  }
}

TEST_F(RegisterWriteTest, ClearedStatusLetsGoOfTheInterruptLine) {
  for (const int address : {0x586, 0x588}) {
    idle();
    chipMemory[address] = 0x08;
    write(address, kHigh, 0xF8);
    EXPECT_NE(intLinePicture, address == 0x586 ? 2 : 3) << "the enables leave the line to the engine";
    write(address, kLow, 0x00);
    EXPECT_EQ(intLinePicture, address == 0x586 ? 2 : 3);
    EXPECT_TRUE(frmHard->picInt.Visible);
    write(address, kWord, 0x0008);
    EXPECT_EQ(intLinePicture, 1);
    EXPECT_FALSE(frmHard->picInt.Visible);
  }
}

TEST_F(RegisterWriteTest, BcrStandsStillDuringAScan) {
  for (const bool continuous : {true, false}) {
    for (const Access access : {kWord, kLow, kHigh}) {
      idle();
      (continuous ? continuousScanActive : oneShotScanActive) = kTrue;
      EXPECT_EQ(write(0x58E, access, 0).message, "スキャン中はライトプロテクト。");
      EXPECT_EQ(word(0x58E), 0x13);
    }
  }
}

TEST_F(RegisterWriteTest, BcrAgainstTheJumpersIsWrittenAndTold) {
  for (const Access access : {kWord, kLow}) {
    idle();
    const Report report = write(0x58E, access, 0x03);
    EXPECT_EQ(report.warning, kBcrBox);
    EXPECT_EQ(report.message, "");
    EXPECT_EQ(word(0x58E), 0x03);
    EXPECT_EQ(write(0x580, kWord, 0x0005).warning, kScrWordBox);
    EXPECT_EQ(write(0x58E, access, 0x13).warning, "");
    EXPECT_EQ(write(0x580, kWord, 0x0005).warning, "");
  }
  idle();
  chipMemory[kBcrLow] = 0x03;
  EXPECT_EQ(write(0x58E, kHigh, 0x02).warning, "") << "the high byte is not tested";
  EXPECT_EQ(word(0x58E), 0x0203);
}

using RegisterWriteDeathTest = RegisterWriteTest;

TEST_F(RegisterWriteDeathTest, AnAddressWithoutARegisterEndsTheProgram) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  for (const int address : {0x57E, 0x581, 0x590})
    EXPECT_EXIT(write(address, kWord, 0), testing::ExitedWithCode(kRunTimeErrorStatus), "there is no register");
}

}  // namespace
}  // namespace zelvs
