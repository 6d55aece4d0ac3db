// What an answer or its absence does to the center's memory, and what the end of a cycle makes of it.

#include "support/engineFixture.h"

namespace zelvs {
namespace {

constexpr int kKept = 0xC0;

/// One command of the control word. Next orders are without the two kept bits.
struct CommandRow {
  int command;
  int base;
  enum { Di, Counter, Zero, Serial } source;
  int counter;  // 1 to 6
  int next[4];  // by sweep mode
};

constexpr CommandRow kCommandRows[] = {
    {0, 0x100, CommandRow::Di, 0, {0x00, 0x00, 0x21, 0x31}},
    {1, 0x180, CommandRow::Counter, 1, {0x01, 0x00, 0x22, 0x32}},
    {2, 0x200, CommandRow::Counter, 2, {0x02, 0x00, 0x23, 0x33}},
    {3, 0x280, CommandRow::Counter, 3, {0x03, 0x00, 0x24, 0x34}},
    {4, 0x300, CommandRow::Counter, 4, {0x04, 0x00, 0x25, 0x35}},
    {5, 0x380, CommandRow::Counter, 5, {0x05, 0x00, 0x26, 0x36}},
    {6, 0x400, CommandRow::Counter, 6, {0x06, 0x00, 0x20, 0x00}},
    {7, 0x480, CommandRow::Serial, 0, {0x00, 0x00, 0x00, 0x00}},
    {8, 0x100, CommandRow::Di, 0, {0x00, 0x00, 0x00, 0x00}},
    {9, 0x180, CommandRow::Zero, 1, {0x00, 0x00, 0x00, 0x00}},
    {10, 0x200, CommandRow::Zero, 2, {0x00, 0x00, 0x00, 0x00}},
    {11, 0x280, CommandRow::Zero, 3, {0x00, 0x00, 0x00, 0x00}},
    {12, 0x300, CommandRow::Zero, 4, {0x00, 0x00, 0x00, 0x00}},
    {13, 0x380, CommandRow::Zero, 5, {0x00, 0x00, 0x00, 0x00}},
    {14, 0x400, CommandRow::Zero, 6, {0x00, 0x00, 0x00, 0x00}},
    {15, 0x480, CommandRow::Serial, 0, {0x00, 0x00, 0x00, 0x00}},
};

/// Different in every byte and never 0, so that no two sources look alike.
void fillBoards() {
  for (int i = 0; i < 10; ++i)
    boardDi[i] = static_cast<std::uint8_t>(0x11 + i);
  for (int i = 0; i < 50; ++i)
    boardCounters[i] = static_cast<std::uint8_t>(0x40 + i);
  for (int i = 0; i < 8; ++i)
    serialData[i] = static_cast<std::uint8_t>(0xA1 + i);
  for (int i = 0; i < 4; ++i) {
    serialPending[i] = kTrue;
    frmHard->picSE(i).Picture = frmHard->ilsLED_G.image(2);
  }
}

int expectedValue(const CommandRow& row, int board) {
  const auto pair = [](int low) { return low + 256 * (low + 1); };
  if (row.source == CommandRow::Di) return pair(0x11 + 2 * (board - 1));
  if (board == 5) return 0;
  if (row.source == CommandRow::Counter) return pair(0x40 + 12 * (board - 1) + 2 * (row.counter - 1));
  if (row.source == CommandRow::Serial) return pair(0xA1 + 2 * (board - 1));
  return 0;
}

class CommandTest : public EngineTest, public testing::WithParamInterface<CommandRow> {};

TEST_P(CommandTest, MovesItsWordAndTurnsTheOrderOnEachBoardInEachSweepMode) {
  const CommandRow& row = GetParam();
  for (int board = 1; board <= 5; ++board) {
    for (int sweep = 0; sweep < 4; ++sweep) {
      for (const int kept : {0x00, 0x40, 0x80, kKept}) {
        SCOPED_TRACE(testing::Message() << "board " << board << ", sweep " << sweep << ", kept " << kept);
        fillBoards();
        for (int address = 0x100; address < 0x500; ++address)
          chipMemory[address] = 0xEE;
        order(board) = static_cast<std::uint8_t>(kept | sweep << 4 | row.command);
        report(board) = 0;
        poll(board);

        EXPECT_EQ(int{order(board)}, kept | row.next[sweep]);
        const int target = row.base + 2 * board;
        for (int address = 0x100; address < 0x500; address += 2)
          ASSERT_EQ(word(address), address == target ? expectedValue(row, board) : 0xEEEE) << address;

        const bool serialRead = row.source == CommandRow::Serial && board != 5;
        for (int i = 0; i < 4; ++i) {
          const bool read = serialRead && i == board - 1;
          EXPECT_EQ(serialPending[i], read ? kFalse : kTrue) << i;
          EXPECT_EQ(shown(frmHard->picSE(i).Picture), read ? "ilsLED_G 1" : "ilsLED_G 2") << i;
        }
        for (int i = 0; i < 8; ++i)
          EXPECT_EQ(serialData[i], 0xA1 + i) << "the serial word stays";
        const int cleared =
            row.source == CommandRow::Zero && board != 5 ? 12 * (board - 1) + 2 * (row.counter - 1) : -2;
        for (int i = 0; i < 50; ++i)
          EXPECT_EQ(boardCounters[i], i == cleared || i == cleared + 1 ? 0 : 0x40 + i) << i;
      }
    }
  }
}

TEST_P(CommandTest, AFailedPollLeavesTheOrderAndTheMemoryAlone) {
  const CommandRow& row = GetParam();
  cutLink(0);
  fillBoards();
  for (int sweep = 0; sweep < 4; ++sweep) {
    order(1) = static_cast<std::uint8_t>(kKept | sweep << 4 | row.command);
    putWord(row.base + 2, 0x1234);
    poll(1);
    EXPECT_EQ(int{order(1)}, kKept | sweep << 4 | row.command);
    EXPECT_EQ(word(row.base + 2), 0x1234);
    EXPECT_EQ(serialPending[0], kTrue);
    EXPECT_EQ(boardCounters[0], 0x40);
  }
}

TEST_P(CommandTest, TheReportOfAGoodAnswerTellsSerialDataUnlessItWasRead) {
  const CommandRow& row = GetParam();
  for (const bool pending : {false, true}) {
    for (const int before : {0x00, 0x01, 0x7E, 0xFF}) {
      SCOPED_TRACE(testing::Message() << "pending " << pending << ", report " << before);
      serialPending[0] = pending ? kTrue : kFalse;
      serialRoseThisCycle = kFalse;
      order(1) = static_cast<std::uint8_t>(row.command);
      report(1) = static_cast<std::uint8_t>(before);
      poll(1);
      const bool told = pending && row.source != CommandRow::Serial;
      EXPECT_EQ(int{report(1)}, told ? 1 : 0);
      EXPECT_EQ(serialRoseThisCycle, told && (before & 1) == 0 ? kTrue : kFalse);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllCommands, CommandTest, testing::ValuesIn(kCommandRows),
                         [](const auto& row) { return "Command" + std::to_string(row.param.command); });

class SatellitesTest : public EngineTest {};

TEST_F(SatellitesTest, EndlessSweepWalksAllSixCountersAgainAndAgain) {
  order(3) = 0x20;
  const int orders[] = {0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x20, 0x21};
  for (const int next : orders) {
    poll(3);
    EXPECT_EQ(int{order(3)}, next);
  }
}

TEST_F(SatellitesTest, OneSweepEndsAtTheDiReading) {
  order(3) = 0x30;
  const int orders[] = {0x31, 0x32, 0x33, 0x34, 0x35, 0x36, 0x00, 0x00};
  for (const int next : orders) {
    poll(3);
    EXPECT_EQ(int{order(3)}, next);
  }
}

TEST_F(SatellitesTest, AClearedCounterReadsZeroFromThenOn) {
  boardCounters[6] = 0x34;
  boardCounters[7] = 0x12;
  order(1) = 12;
  poll(1);
  EXPECT_EQ(word(0x302), 0);
  order(1) = 4;
  poll(1);
  EXPECT_EQ(word(0x302), 0);
  EXPECT_EQ(int{order(1)}, 4);
}

TEST_F(SatellitesTest, TheAnswerGoesToTheStationThatAnswered) {
  saSetting[0] = 0x30;
  putDi(2, 0xCAFE);
  poll(0x31);
  EXPECT_EQ(diOf(0x31), 0xCAFE);
}

// ---- The hold-back of the first answer after a failure

struct HandshakeCase {
  const char* name;
  int command;
  int board;
};

class HandshakeTest : public EngineTest, public testing::WithParamInterface<HandshakeCase> {
 protected:
  void failOnceThenAnswer(std::string_view tag) {
    const auto [name, command, board] = GetParam();
    frmHard->picSSB(board - 1).Tag = tag;
    putWord(0x500 + 2 * board, 0xFFFF);
    chipMemory[kInt0Enable] = 0x01;
    Flag& reset = board == 5 ? ioBoardResetHeld : boardResetHeld[board];
    reset = kTrue;
    poll(board);
    ASSERT_FALSE(answered(board));
    reset = kFalse;
    putDi(board, 0x8001);
    order(board) = static_cast<std::uint8_t>(command | 0x10);
    diChangedThisCycle = kFalse;
    poll(board);
  }
};

TEST_P(HandshakeTest, WithTheSwitchOffTheFirstAnswerMovesNothingAndTheSecondDoes) {
  const auto [name, command, board] = GetParam();
  for (const std::string_view tag : {"", "0"}) {
    failOnceThenAnswer(tag);
    EXPECT_EQ(diOf(board), 0);
    EXPECT_EQ(int{report(board)}, 0) << "the report byte is cleared all the same";
    EXPECT_EQ(diChangedThisCycle, kFalse);
    EXPECT_EQ(int{chipMemory[kInt0Status]}, 0);
    // The sweep of the plain reading waits with the data; the single reading goes home.
    EXPECT_EQ(int{order(board)}, command == 0 ? 0x10 : 0x00);
    poll(board);
    EXPECT_EQ(diOf(board), 0x8001);
    EXPECT_EQ(int{report(board)}, 2);
    EXPECT_EQ(diChangedThisCycle, kTrue);
    EXPECT_EQ(int{chipMemory[kInt0Status]}, 1);
    EXPECT_EQ(int{order(board)}, 0x00);
    putDi(board, 0);
    poll(board);
    chipMemory[kInt0Status] = 0;
  }
}

TEST_P(HandshakeTest, WithTheSwitchOnTheFirstAnswerMovesDiAtOnce) {
  const auto [name, command, board] = GetParam();
  failOnceThenAnswer("1");
  EXPECT_EQ(diOf(board), 0x8001);
  EXPECT_EQ(int{report(board)}, 2);
  EXPECT_EQ(int{order(board)}, 0x00);
  EXPECT_EQ(int{chipMemory[kInt0Status]}, 1);
}

INSTANTIATE_TEST_SUITE_P(Readings, HandshakeTest,
                         testing::Values(HandshakeCase{"Di1", 0, 1}, HandshakeCase{"Di2", 0, 2},
                                         HandshakeCase{"Di4", 0, 4}, HandshakeCase{"Di5", 0, 5},
                                         HandshakeCase{"SingleDi1", 8, 1}, HandshakeCase{"SingleDi3", 8, 3},
                                         HandshakeCase{"SingleDi5", 8, 5}),
                         [](const auto& row) { return row.param.name; });

TEST_F(SatellitesTest, CountersAreNotHeldBackAfterAFailure) {
  order(1) = 1;
  report(1) = 0x14;
  boardCounters[0] = 7;
  poll(1);
  EXPECT_EQ(word(0x182), 7);
}

// ---- Failures

TEST_F(SatellitesTest, EightFailuresInARow) {
  const struct {
    int report;
    int c1;
    int c2;
    Flag error;
  } rows[] = {{0x14, 1, 0, kTrue}, {0x24, 1, 0, kTrue},  {0x3C, 1, 1, kTrue},  {0x4C, 1, 1, kTrue}, {0x5C, 1, 1, kTrue},
              {0x6C, 1, 1, kTrue}, {0x7C, 1, 1, kFalse}, {0x7C, 1, 1, kFalse}, {0x7C, 1, 1, kFalse}};
  cutLink(0);
  for (const auto& row : rows) {
    errorThisCycle = kFalse;
    poll(1);
    EXPECT_EQ(int{report(1)}, row.report);
    EXPECT_EQ(int{chipMemory[kC1crLow]}, row.c1);
    EXPECT_EQ(int{chipMemory[kC2crLow]}, row.c2);
    EXPECT_EQ(errorThisCycle, row.error);
  }
  frmHard->picBOARD2_RXD(0).Tag = "1";
  poll(1);
  EXPECT_EQ(int{report(1)}, 0) << "one good answer wipes all";
}

TEST_F(SatellitesTest, AFailureKeepsTheSerialBitAndClearsWhatStaleBitsThereWere) {
  cutLink(0);
  const struct {
    int before;
    int after;
  } rows[] = {{0x00, 0x14}, {0x01, 0x15}, {0x02, 0x14}, {0x8F, 0x15}, {0x2E, 0x3C},
              {0xAF, 0x3D}, {0x6D, 0x7D}, {0x70, 0x7C}, {0xF3, 0xFF}, {0x72, 0x7E}};
  for (const auto& row : rows) {
    report(1) = static_cast<std::uint8_t>(row.before);
    poll(1);
    EXPECT_EQ(int{report(1)}, row.after) << row.before;
  }
}

TEST_F(SatellitesTest, EachFailingStationCountsOnceInEachCheckCounter) {
  cutLink(0);
  chipMemory[kScrLow] = 6;
  steps(6 * 10);
  EXPECT_EQ(int{chipMemory[kC1crLow]}, 6);
  EXPECT_EQ(int{chipMemory[kC2crLow]}, 6);
}

struct CheckRow {
  const char* name;
  void (*count)();
  int counter;
  int lamp;
  std::int16_t* timer;
  Flag* counted;
};

class CheckCounterTest : public EngineTest, public testing::WithParamInterface<CheckRow> {};

TEST_P(CheckCounterTest, CountsLightsAndStopsAt255) {
  const CheckRow& row = GetParam();
  for (const int before : {0, 1, 253, 254, 255, 255}) {
    chipMemory[row.counter] = static_cast<std::uint8_t>(before);
    chipMemory[row.counter + 1] = 0x55;
    frmHard->picChkLED(row.lamp).Picture = frmHard->ilsLED_R.image(1);
    *row.timer = 1;
    *row.counted = kFalse;
    row.count();
    EXPECT_EQ(int{chipMemory[row.counter]}, std::min(before + 1, 255));
    EXPECT_EQ(int{chipMemory[row.counter + 1]}, 0x55);
    EXPECT_EQ(shown(frmHard->picChkLED(row.lamp).Picture), "ilsLED_R 2");
    EXPECT_EQ(*row.timer, 5000);
    EXPECT_EQ(*row.counted, kTrue);
  }
  EXPECT_EQ(frmHard->picChkLED(1 - row.lamp).Picture.get().image, 1);
}

INSTANTIATE_TEST_SUITE_P(Both, CheckCounterTest,
                         testing::Values(CheckRow{"C1", countCheck1, 0x58A, 0, &chk1LedTimer, &c1CountedThisCycle},
                                         CheckRow{"C2", countCheck2, 0x58C, 1, &chk2LedTimer, &c2CountedThisCycle}),
                         [](const auto& row) { return row.param.name; });

TEST_F(SatellitesTest, TheCheckLampBurnsFor5000StepsFromTheCount) {
  cutLink(0);
  poll(1);
  EXPECT_EQ(chk1LedTimer, 5000);
  continuousScanActive = kFalse;
  chipMemory[kScrLow] = 0;
  steps(4999);
  EXPECT_EQ(shown(frmHard->picChkLED(0).Picture), "ilsLED_R 2");
  steps(1);
  EXPECT_EQ(shown(frmHard->picChkLED(0).Picture), "ilsLED_R 1");
}

TEST_F(SatellitesTest, OnlyBoard5LightsTheMonLampFor2000Steps) {
  for (int board = 1; board <= 4; ++board)
    poll(board);
  EXPECT_EQ(monLedTimer, 0);
  poll(5);
  EXPECT_EQ(monLedTimer, 2000);
  EXPECT_EQ(shown(frmHard->picB1_LED(5).Picture), "ilsLED_G 2");
}

// ---- DI changes

struct MaskCase {
  const char* name;
  int mask;
  int before;
  int after;
  bool changed;
};

class DrcMaskTest : public EngineTest, public testing::WithParamInterface<MaskCase> {};

TEST_P(DrcMaskTest, OnlyMaskedBitsCountAsAChange) {
  const MaskCase& c = GetParam();
  for (const int board : {1, 4, 5}) {
    for (const int enable : {0x00, 0x01, 0xFE}) {
      SCOPED_TRACE(testing::Message() << "board " << board << ", enable " << enable);
      putWord(0x500 + 2 * board, c.mask);
      putWord(0x100 + 2 * board, c.before);
      putDi(board, c.after);
      chipMemory[kInt0Enable] = static_cast<std::uint8_t>(enable);
      chipMemory[kInt0Status] = 0;
      diChangedThisCycle = kFalse;
      poll(board);
      EXPECT_EQ(diOf(board), c.after);
      EXPECT_EQ(int{report(board)}, c.changed ? 2 : 0);
      EXPECT_EQ(diChangedThisCycle, c.changed ? kTrue : kFalse);
      EXPECT_EQ(int{chipMemory[kInt0Status]}, c.changed && enable == 1 ? 1 : 0);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Masks, DrcMaskTest,
                         testing::Values(MaskCase{"NoMask", 0x0000, 0x0000, 0xFFFF, false},
                                         MaskCase{"LowBit", 0x0001, 0x0000, 0x0001, true},
                                         MaskCase{"OtherBit", 0x0001, 0x0000, 0xFFFE, false},
                                         MaskCase{"HighBit", 0x8000, 0x8000, 0x0000, true},
                                         MaskCase{"HighByteOnly", 0x0F00, 0x0000, 0x0200, true},
                                         MaskCase{"BytesNotMixedUp", 0x00FF, 0x0000, 0xFF00, false},
                                         MaskCase{"Unchanged", 0xFFFF, 0x1234, 0x1234, false}),
                         [](const auto& row) { return row.param.name; });

TEST_F(SatellitesTest, AMaskedChangeIsToldOnceAndShowsOnTheLineAtOnce) {
  putWord(0x502, 0x0008);
  chipMemory[kInt0Enable] = 0x01;
  putDi(1, 0x0008);
  poll(1);
  EXPECT_EQ(shown(frmHard->picInt.Picture), "ilsInt 2");
  EXPECT_TRUE(frmHard->picInt.Visible);
  poll(1);
  EXPECT_EQ(int{report(1)}, 0);
}

TEST_F(SatellitesTest, AChangeWithPendingSerialDataTellsBoth) {
  putWord(0x502, 0xFFFF);
  putDi(1, 1);
  serialPending[0] = kTrue;
  poll(1);
  EXPECT_EQ(int{report(1)}, 3);
  EXPECT_EQ(serialRoseThisCycle, kTrue);
  EXPECT_EQ(diChangedThisCycle, kTrue);
}

TEST_F(SatellitesTest, CountersDoNotCountAsDiChanges) {
  for (int command = 1; command <= 7; ++command) {
    putWord(0x502, 0xFFFF);
    putWord(0x100 + 0x80 * command + 2, 0xFFFF);
    order(1) = static_cast<std::uint8_t>(command);
    poll(1);
    EXPECT_EQ(int{report(1)}, 0);
    EXPECT_EQ(diChangedThisCycle, kFalse);
  }
}

// ---- The serial bit

TEST_F(SatellitesTest, TheSerialBitRisesOnceAndFallsWhenTheWordIsRead) {
  serialPending[1] = kTrue;
  poll(2);
  EXPECT_EQ(int{report(2)}, 1);
  EXPECT_EQ(serialRoseThisCycle, kTrue);
  serialRoseThisCycle = kFalse;
  poll(2);
  EXPECT_EQ(int{report(2)}, 1);
  EXPECT_EQ(serialRoseThisCycle, kFalse);
  order(2) = 7;
  poll(2);
  EXPECT_EQ(int{report(2)}, 0);
  poll(2);
  EXPECT_EQ(int{report(2)}, 0);
  serialPending[1] = kTrue;
  poll(2);
  EXPECT_EQ(serialRoseThisCycle, kTrue);
}

TEST_F(SatellitesTest, AFailureBetweenDoesNotMakeTheSerialBitRiseAgain) {
  serialPending[0] = kTrue;
  poll(1);
  serialRoseThisCycle = kFalse;
  boardResetHeld[1] = kTrue;
  poll(1);
  EXPECT_EQ(int{report(1)}, 0x15);
  boardResetHeld[1] = kFalse;
  poll(1);
  EXPECT_EQ(int{report(1)}, 1);
  EXPECT_EQ(serialRoseThisCycle, kFalse);
}

// ---- The end of a cycle

struct CycleEndRow {
  const char* name;
  Flag* flag;  // null: always
  int ssrBefore;
  int int0;
  int int1;
  int ssr;
};

class CycleEndTest : public EngineTest, public testing::WithParamInterface<CycleEndRow> {};

TEST_P(CycleEndTest, SetsTheEnabledBitsAndReportsTheCycle) {
  const CycleEndRow& row = GetParam();
  for (int bit = -1; bit <= 8; ++bit) {
    // -1: no enable, 8: all.
    const int enable = bit < 0 ? 0 : bit == 8 ? 0xFF : 1 << bit;
    SCOPED_TRACE(enable);
    chipMemory[kInt0Enable] = chipMemory[kInt1Enable] = static_cast<std::uint8_t>(enable);
    chipMemory[kInt0Status] = chipMemory[kInt1Status] = 0;
    chipMemory[kSsrHigh] = static_cast<std::uint8_t>(row.ssrBefore);
    for (Flag* flag :
         {&diChangedThisCycle, &serialRoseThisCycle, &errorThisCycle, &c1CountedThisCycle, &c2CountedThisCycle}) {
      *flag = kFalse;
    }
    if (row.flag != nullptr) *row.flag = kTrue;
    pollLast(1);
    EXPECT_EQ(int{chipMemory[kInt0Status]}, row.int0 & enable);
    EXPECT_EQ(int{chipMemory[kInt1Status]}, row.int1 & enable);
    EXPECT_EQ(int{chipMemory[kSsrHigh]}, row.ssr);
    for (const Flag* flag :
         {&diChangedThisCycle, &serialRoseThisCycle, &errorThisCycle, &c1CountedThisCycle, &c2CountedThisCycle}) {
      EXPECT_EQ(*flag, kFalse);
    }
    chipMemory[kInt0Status] = 0;
  }
}

INSTANTIATE_TEST_SUITE_P(Flags, CycleEndTest,
                         testing::Values(CycleEndRow{"Nothing", nullptr, 7, 0x08, 0x08, 0},
                                         CycleEndRow{"DiChanged", &diChangedThisCycle, 0, 0x0E, 0x08, 1},
                                         CycleEndRow{"SerialRose", &serialRoseThisCycle, 6, 0x18, 0x18, 2},
                                         CycleEndRow{"SerialBehindADiChange", &serialRoseThisCycle, 1, 0x08, 0x08, 2},
                                         CycleEndRow{"Error", &errorThisCycle, 0, 0x08, 0x08, 4},
                                         CycleEndRow{"C1", &c1CountedThisCycle, 0, 0x28, 0x28, 0},
                                         CycleEndRow{"C2", &c2CountedThisCycle, 0, 0x48, 0x48, 0}),
                         [](const auto& row) { return row.param.name; });

TEST_F(SatellitesTest, StatusBitsThatStandAreKeptAtTheEndOfACycle) {
  chipMemory[kInt0Status] = 0x01;
  chipMemory[kInt1Status] = 0x80;
  chipMemory[kInt0Enable] = 0x08;
  pollLast(1);
  EXPECT_EQ(int{chipMemory[kInt0Status]}, 0x09);
  EXPECT_EQ(int{chipMemory[kInt1Status]}, 0x80);
}

TEST_F(SatellitesTest, AllThreeResultsOfACycleStandTogetherInSsr) {
  chipMemory[kScrLow] = 6;  // nobody at 6
  putWord(0x502, 0xFFFF);
  putDi(1, 1);
  serialPending[1] = kTrue;
  steps(6);
  EXPECT_EQ(int{chipMemory[kSsrHigh]}, 7);
  steps(6);
  EXPECT_EQ(int{chipMemory[kSsrHigh]}, 4);
}

TEST_F(SatellitesTest, TheSeventhFailureLeavesAGapInSsr) {
  chipMemory[kScrLow] = 1;
  boardResetHeld[1] = kTrue;
  const int shown[] = {4, 4, 4, 4, 4, 4, 0, 0};
  for (const int high : shown) {
    simulationStep();
    EXPECT_EQ(int{chipMemory[kSsrHigh]}, high);
  }
}

TEST_F(SatellitesTest, NoStatusIsSetInTheMiddleOfACycle) {
  chipMemory[kInt0Enable] = chipMemory[kInt1Enable] = 0xFE;
  chipMemory[kScrLow] = 5;
  steps(4);
  EXPECT_EQ(int{chipMemory[kInt0Status]}, 0);
  EXPECT_EQ(int{chipMemory[kInt1Status]}, 0);
  steps(1);
  EXPECT_EQ(int{chipMemory[kInt0Status]}, 0x08);
  EXPECT_EQ(int{chipMemory[kInt1Status]}, 0x08);
}

struct ScanEndRow {
  const char* name;
  int scr;
  int enable0;
  int enable1;
};

class ScanEndTest : public EngineTest, public testing::WithParamInterface<ScanEndRow> {};

TEST_P(ScanEndTest, SetsBit7WhereItIsEnabled) {
  const ScanEndRow& row = GetParam();
  chipMemory[row.scr] = 2;
  chipMemory[kInt0Enable] = static_cast<std::uint8_t>(row.enable0);
  chipMemory[kInt1Enable] = static_cast<std::uint8_t>(row.enable1);
  steps(1);
  if (row.scr == kScrLow) chipMemory[kScrLow] = 0;
  steps(1);
  EXPECT_EQ(continuousScanActive, kFalse);
  EXPECT_EQ(oneShotScanActive, kFalse);
  EXPECT_EQ(int{chipMemory[kInt0Status]}, row.enable0);
  EXPECT_EQ(int{chipMemory[kInt1Status]}, row.enable1);
}

INSTANTIATE_TEST_SUITE_P(BothScans, ScanEndTest,
                         testing::Values(ScanEndRow{"Continuous0", kScrLow, 0x80, 0x00},
                                         ScanEndRow{"Continuous1", kScrLow, 0x00, 0x80},
                                         ScanEndRow{"ContinuousWithCycleEnd", kScrLow, 0x88, 0x88},
                                         ScanEndRow{"ContinuousOff", kScrLow, 0x00, 0x00},
                                         ScanEndRow{"OneShot0", kScrHigh, 0x80, 0x00},
                                         ScanEndRow{"OneShot1", kScrHigh, 0x08, 0x80}),
                         [](const auto& row) { return row.param.name; });

TEST_F(SatellitesTest, AWrapIsNoScanEnd) {
  chipMemory[kInt0Enable] = 0x80;
  chipMemory[kScrLow] = 2;
  steps(6);
  EXPECT_EQ(int{chipMemory[kInt0Status]}, 0);
}

TEST_F(SatellitesTest, ADiChangeHaltsTheScanAtTheEndOfTheCycleOnly) {
  putWord(0x502, 0xFFFF);
  putDi(1, 1);
  chipMemory[kInt0Enable] = 0x04;
  chipMemory[kScrLow] = 3;
  steps(3);
  EXPECT_EQ(int{chipMemory[kInt0Status]}, 4);
  EXPECT_EQ(currentStation, 1);
  putDi(2, 0x0F);
  steps(10);
  EXPECT_EQ(currentStation, 1);
  EXPECT_EQ(diOf(2), 0);
  chipMemory[kInt0Status] = 0;
  steps(2);
  EXPECT_EQ(diOf(2), 0x0F);
}

TEST_F(SatellitesTest, FourPicturesOfTheInterruptLines) {
  const struct {
    int status0;
    int status1;
    int picture;
  } rows[] = {{0, 0, 1}, {1, 0, 2}, {0, 0x80, 3}, {0x80, 0x08, 4}, {0, 0x08, 3}, {0x40, 0, 2}, {0, 0, 1}};
  for (const auto& row : rows) {
    chipMemory[kInt0Status] = static_cast<std::uint8_t>(row.status0);
    chipMemory[kInt1Status] = static_cast<std::uint8_t>(row.status1);
    refreshIntLine();
    EXPECT_EQ(intLinePicture, row.picture);
    EXPECT_EQ(intLinePictureShown, row.picture);
    EXPECT_EQ(shown(frmHard->picInt.Picture), "ilsInt " + std::to_string(row.picture));
    EXPECT_EQ(frmHard->picInt.Visible.get(), row.picture > 1);
  }
}

TEST_F(SatellitesTest, TheInterruptPictureIsPutUpOnAChangeOnly) {
  chipMemory[kInt0Status] = 1;
  refreshIntLine();
  frmHard->picInt.Visible = false;
  chipMemory[kInt0Status] = 2;
  refreshIntLine();
  EXPECT_FALSE(frmHard->picInt.Visible) << "the same picture is not put up again";
  chipMemory[kInt1Status] = 1;
  refreshIntLine();
  EXPECT_TRUE(frmHard->picInt.Visible);
}

TEST_F(SatellitesTest, BothScansAtOnceMoveTheStationTwice) {
  // The CPU's guards keep this from happening; the engine does it in this order all the same.
  chipMemory[kScrLow] = chipMemory[kScrHigh] = 5;
  simulationStep();
  EXPECT_EQ(currentStation, 3);
  EXPECT_EQ(chipMemory[kSsrLow], 0x83);
}

}  // namespace
}  // namespace zelvs
