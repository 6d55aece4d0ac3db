// What the center does in the first half of a step: starts, lamps, the chain of cables and who answers.

#include "support/engineFixture.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class CenterChipTest : public EngineTest {};

TEST_F(CenterChipTest, NothingHappensWithoutAScan) {
  const auto memory = chipMemory;
  steps(10);
  for (int address = 0; address < kChipMemorySize; ++address)
    ASSERT_EQ(chipMemory[address], memory[address]);
  EXPECT_EQ(currentStation, 0);
  EXPECT_EQ(finalStation, 0);
  EXPECT_EQ(frmHard->picScanLed.Tag, std::string_view(""));
}

struct StartCase {
  const char* name;
  int scr;
  int bcr;
  int clock;
};

class ScanStartTest : public EngineTest, public testing::WithParamInterface<StartCase> {};

TEST_P(ScanStartTest, AByteInScrStartsTheScan) {
  const StartCase& c = GetParam();
  chipMemory[c.scr] = 4;
  chipMemory[kBcrLow] = static_cast<std::uint8_t>(c.bcr);
  diChangedThisCycle = serialRoseThisCycle = errorThisCycle = kTrue;
  c1CountedThisCycle = c2CountedThisCycle = kTrue;
  stepCenterChip();
  EXPECT_EQ(continuousScanActive, c.scr == kScrLow ? kTrue : kFalse);
  EXPECT_EQ(oneShotScanActive, c.scr == kScrHigh ? kTrue : kFalse);
  EXPECT_EQ(currentStation, 1);
  EXPECT_EQ(finalStation, 4);
  EXPECT_EQ(shown(frmHard->picScanLed.Picture), "ilsLED_G 2");
  EXPECT_EQ(frmHard->picScanLed.Tag, std::string_view("1"));
  EXPECT_EQ(clockSetting[0], c.clock);
  EXPECT_EQ(diChangedThisCycle, kFalse);
  EXPECT_EQ(serialRoseThisCycle, kFalse);
  EXPECT_EQ(errorThisCycle, kFalse);
  EXPECT_EQ(c1CountedThisCycle, kTrue);
  EXPECT_EQ(c2CountedThisCycle, kTrue);
}

INSTANTIATE_TEST_SUITE_P(BothBytesAllClocks, ScanStartTest,
                         testing::Values(StartCase{"Low48", kScrLow, 0x13, 0}, StartCase{"Low24", kScrLow, 0x12, 1},
                                         StartCase{"Low12", kScrLow, 0x11, 2}, StartCase{"Low3", kScrLow, 0x10, 3},
                                         StartCase{"High48", kScrHigh, 0x03, 0}, StartCase{"High24", kScrHigh, 0x02, 1},
                                         StartCase{"High12", kScrHigh, 0xFD, 2}),
                         [](const auto& row) { return row.param.name; });

TEST_F(CenterChipTest, AClockWrittenDuringAScanCountsFromTheNextStart) {
  chipMemory[kScrLow] = 2;
  steps(1);
  chipMemory[kBcrLow] = 0x12;
  steps(6);
  EXPECT_EQ(clockSetting[0], 0);
  chipMemory[kScrLow] = 0;
  steps(4);
  ASSERT_EQ(continuousScanActive, kFalse);
  chipMemory[kScrLow] = 2;
  steps(1);
  EXPECT_EQ(clockSetting[0], 1);
}

TEST_F(CenterChipTest, TheScanWalksFromOneToTheFinalStationAndWraps) {
  chipMemory[kScrLow] = 3;
  const int polled[] = {1, 2, 3, 1, 2, 3, 1};
  for (const int station : polled) {
    simulationStep();
    EXPECT_EQ(polledStation, station);
    EXPECT_EQ(controlWordAddress, 2 * station);
    const int next = station == 3 ? 1 : station + 1;
    EXPECT_EQ(currentStation, next);
    EXPECT_EQ(chipMemory[kSsrLow], 0x80 | next);
  }
}

TEST_F(CenterChipTest, AScanOfOneStationEndsItsCycleOnEveryStep) {
  chipMemory[kScrLow] = 1;
  chipMemory[kInt0Enable] = 0x08;
  for (int i = 0; i < 3; ++i) {
    chipMemory[kInt0Status] = 0;
    simulationStep();
    EXPECT_EQ(currentStation, 1);
    EXPECT_EQ(chipMemory[kSsrLow], 0x81);
    EXPECT_EQ(chipMemory[kInt0Status], 0x08);
  }
}

TEST_F(CenterChipTest, ThePollKeepsTheOrderAndTheRetryBitOfTheControlWord) {
  order(2) = 0xFA;
  report(2) = 0x07;
  poll(2);
  EXPECT_EQ(polledCommand, 0x0A);
  EXPECT_EQ(polledRetryFlag, 4);
  report(2) = 0xFB;
  poll(2);
  EXPECT_EQ(polledRetryFlag, 0);
}

TEST_F(CenterChipTest, DoReachesTheBoardOfTheStation) {
  for (int board = 1; board <= 5; ++board)
    putDo(board, 0x1200 + board);
  chipMemory[kScrLow] = 5;
  steps(5);
  for (int board = 1; board <= 4; ++board)
    EXPECT_EQ(boardDo[board], 0x1200 + board);
  EXPECT_EQ(ioBoardDo, 0x1205);
  EXPECT_EQ(ioBoardDoLow, 0x05);
}

TEST_F(CenterChipTest, AnUnchangedDoWordIsNotDrivenAgain) {
  putDo(1, 0x0001);
  poll(1);
  frmHard->picPO(0).Tag = "mark";
  poll(1);
  EXPECT_EQ(frmHard->picPO(0).Tag, std::string_view("mark"));
  putDo(1, 0x0003);
  poll(1);
  EXPECT_EQ(frmHard->picPO(0).Tag, std::string_view("O1"));
}

TEST_F(CenterChipTest, ADoWordWithItsTopBitIsNotNegative) {
  putDo(3, 0xFFFF);
  poll(3);
  EXPECT_EQ(boardDo[3], 65535);
}

struct CutCase {
  const char* name;
  int connector;
  bool reached[6];  // by board
};

class PulledCableTest : public EngineTest, public testing::WithParamInterface<CutCase> {};

TEST_P(PulledCableTest, AllBehindTheCutIsSilentAndItsOutputsHold) {
  for (int board = 1; board <= 5; ++board)
    putDo(board, 0x0100);
  chipMemory[kScrLow] = 5;
  steps(5);
  cutLink(GetParam().connector);
  for (int board = 1; board <= 5; ++board)
    putDo(board, 0x0200);
  steps(5);
  for (int board = 1; board <= 5; ++board) {
    const bool reached = GetParam().reached[board];
    EXPECT_EQ(answered(board), reached) << board;
    EXPECT_EQ(board == 5 ? ioBoardDo : boardDo[board], reached ? 0x0200 : 0x0100) << board;
  }
}

INSTANTIATE_TEST_SUITE_P(EachLink, PulledCableTest,
                         testing::Values(CutCase{"First", 0, {}},
                                         CutCase{"Second", 1, {false, true, true, false, false, false}},
                                         CutCase{"Third", 3, {false, true, true, true, true, false}}),
                         [](const auto& row) { return row.param.name; });

TEST_F(CenterChipTest, OnlyAOneInTheTagPlugsACable) {
  for (const char* tag : {"", "0", "2", "11", " 1"}) {
    frmHard->picBOARD2_RXD(0).Tag = tag;
    EXPECT_FALSE(answers(1)) << "'" << tag << "'";
  }
  frmHard->picBOARD2_RXD(0).Tag = "1";
  EXPECT_TRUE(answers(1));
}

TEST_F(CenterChipTest, TheHandleConnectorsDecideNothing) {
  for (const int connector : {2, 4, 5})
    frmHard->picBOARD2_RXD(connector).Tag = "0";
  for (int board = 1; board <= 5; ++board)
    EXPECT_TRUE(answers(board)) << board;
}

struct ClockCase {
  const char* name;
  int setting;
  bool answering[6];
};

class ClockMismatchTest : public EngineTest, public testing::WithParamInterface<ClockCase> {};

TEST_P(ClockMismatchTest, ABoardOnAnotherClockHearsNothingAndTheChainGoesOn) {
  clockSetting[GetParam().setting] = 1;
  for (int board = 1; board <= 5; ++board)
    putDo(board, 0x0011);
  chipMemory[kScrLow] = 5;
  steps(5);
  for (int board = 1; board <= 5; ++board) {
    const bool hears = GetParam().answering[board];
    EXPECT_EQ(answered(board), hears) << board;
    EXPECT_EQ(board == 5 ? ioBoardDo : boardDo[board], hears ? 0x0011 : 0) << board;
  }
}

INSTANTIATE_TEST_SUITE_P(EachClock, ClockMismatchTest,
                         testing::Values(ClockCase{"Pair1", 1, {false, false, false, true, true, true}},
                                         ClockCase{"Pair2", 2, {false, true, true, false, false, true}},
                                         ClockCase{"Board5", 3, {false, true, true, true, true, false}}),
                         [](const auto& row) { return row.param.name; });

TEST_F(CenterChipTest, AllBoardsOnTheCentersOtherClockAnswer) {
  chipMemory[kBcrLow] = 0x11;
  for (const int setting : {1, 2, 3})
    clockSetting[setting] = 2;
  chipMemory[kScrLow] = 5;
  steps(5);
  for (int board = 1; board <= 5; ++board)
    EXPECT_TRUE(answered(board)) << board;
}

TEST_F(CenterChipTest, FullAndHalfDuplexMakeNoDifferenceToTheLink) {
  boardFullHalf = 0;
  chipMemory[kBcrLow] = 0x13;
  EXPECT_TRUE(answers(1));
  chipMemory[kBcrLow] = 0x03;
  boardFullHalf = 16;
  EXPECT_TRUE(answers(5));
}

TEST_F(CenterChipTest, ResetHeldSilencesOneBoardOnly) {
  for (int held = 1; held <= 5; ++held) {
    Flag& flag = held == 5 ? ioBoardResetHeld : boardResetHeld[held];
    flag = kTrue;
    for (int board = 1; board <= 5; ++board) {
      putDo(board, 0x0040 + held);
      EXPECT_EQ(answers(board), board != held) << "held " << held << ", board " << board;
      const int latched = board == 5 ? ioBoardDo : boardDo[board];
      EXPECT_EQ(latched == 0x0040 + held, board != held) << "held " << held << ", board " << board;
    }
    flag = kFalse;
  }
}

TEST_F(CenterChipTest, ClrHeldStopsTheLatchingButNotTheAnswer) {
  for (int held = 1; held <= 5; ++held) {
    Flag& flag = held == 5 ? ioBoardClrHeld : boardClrHeld[held];
    flag = kTrue;
    putDo(held, 0x0055);
    EXPECT_TRUE(answers(held)) << held;
    EXPECT_EQ(held == 5 ? ioBoardDo : boardDo[held], 0) << held;
    flag = kFalse;
    poll(held);
    EXPECT_EQ(held == 5 ? ioBoardDo : boardDo[held], 0x0055) << held;
  }
}

TEST_F(CenterChipTest, ASlaveWithoutItsCableNeitherLatchesNorAnswers) {
  for (const int pair : {0, 1}) {
    const int slave = 2 * pair + 2;
    frmHard->picBridge(pair).Visible = false;
    putDo(slave, 0x0101);
    EXPECT_FALSE(answers(slave));
    EXPECT_EQ(boardDo[slave], 0);
    EXPECT_TRUE(answers(slave - 1));
    frmHard->picBridge(pair).Visible = true;
    EXPECT_TRUE(answers(slave));
    EXPECT_EQ(boardDo[slave], 0x0101);
  }
}

struct CollisionCase {
  const char* name;
  int addresses[3];
  int station;
  bool latches[6];
};

class EqualAddressTest : public EngineTest, public testing::WithParamInterface<CollisionCase> {};

TEST_P(EqualAddressTest, BothBoardsTakeDoAndTheAnswerIsLost) {
  const CollisionCase& c = GetParam();
  for (int i = 0; i < 3; ++i)
    saSetting[i] = static_cast<std::int16_t>(c.addresses[i]);
  putDo(c.station, 0x0F0F);
  for (int board = 1; board <= 5; ++board)
    putDi(board, 0xFFFF);
  EXPECT_FALSE(answers(c.station));
  EXPECT_EQ(answeringBoard, 0);
  EXPECT_EQ(diOf(c.station), 0);
  for (int board = 1; board <= 5; ++board)
    EXPECT_EQ(board == 5 ? ioBoardDo : boardDo[board], c.latches[board] ? 0x0F0F : 0) << board;
}

INSTANTIATE_TEST_SUITE_P(
    Pairs, EqualAddressTest,
    testing::Values(CollisionCase{"Masters", {1, 1, 9}, 1, {false, true, false, true, false, false}},
                    CollisionCase{"Slaves", {1, 1, 9}, 2, {false, false, true, false, true, false}},
                    CollisionCase{"Master1AndIo", {1, 5, 1}, 1, {false, true, false, false, false, true}},
                    CollisionCase{"Slave2AndMaster3", {1, 2, 9}, 2, {false, false, true, true, false, false}},
                    CollisionCase{"Master1AndSlave4", {4, 3, 9}, 4, {false, true, false, false, true, false}},
                    CollisionCase{"Slave4AndIo", {1, 3, 4}, 4, {false, false, false, false, true, true}},
                    CollisionCase{"Three", {2, 2, 2}, 2, {false, true, false, true, false, true}}),
    [](const auto& row) { return row.param.name; });

TEST_F(CenterChipTest, AThirdBoardDoesNotHealACollision) {
  saSetting[0] = saSetting[1] = saSetting[2] = 7;
  poll(7);
  EXPECT_FALSE(answered(7));
  boardResetHeld[3] = kTrue;
  ioBoardResetHeld = kTrue;
  poll(7);
  EXPECT_TRUE(answered(7));
}

TEST_F(CenterChipTest, ASlaveAt64IsBeyondEveryScan) {
  saSetting[0] = 63;
  putDo(63, 0x0001);
  putDo(64, 0x0002);
  chipMemory[kScrLow] = 63;
  steps(63 * 2);
  EXPECT_TRUE(answered(63));
  EXPECT_EQ(boardDo[1], 0x0001);
  EXPECT_EQ(boardDo[2], 0);
}

TEST_F(CenterChipTest, TheAnsweringStationAndBoardAreTold) {
  saSetting[1] = 0x20;
  chipMemory[kScrLow] = 63;
  continuousScanActive = kTrue;
  finalStation = 63;
  const int expected[][2] = {{1, 1}, {2, 2}, {0x20, 3}, {0x21, 4}, {5, 5}};
  for (const auto& [station, board] : expected) {
    currentStation = static_cast<std::uint8_t>(station);
    stepCenterChip();
    EXPECT_EQ(answeringBoard, board);
    EXPECT_EQ(answeringStation, station);
    stepSatellites();
    EXPECT_EQ(answeringBoard, 0);
  }
}

TEST_F(CenterChipTest, OnlyTheAnsweringQvt40BoardsSerialDataIsTold) {
  chipMemory[kScrLow] = 63;
  continuousScanActive = kTrue;
  finalStation = 63;
  for (int holder = 0; holder < 4; ++holder) {
    serialPending[holder] = kTrue;
    for (int board = 1; board <= 5; ++board) {
      currentStation = static_cast<std::uint8_t>(board);
      stepCenterChip();
      EXPECT_EQ(answerSerialFlag, board == holder + 1 ? kTrue : kFalse) << holder << " " << board;
      stepSatellites();
    }
    serialPending[holder] = kFalse;
  }
}

struct LampCase {
  const char* name;
  std::int16_t* timer;
  int lamp;  // 0 and 1 picChkLED, 5 picB1_LED
};

class LampTest : public EngineTest, public testing::WithParamInterface<LampCase> {
 protected:
  PictureBox& lamp() const {
    return GetParam().lamp == 5 ? static_cast<PictureBox&>(frmHard->picB1_LED(5)) : frmHard->picChkLED(GetParam().lamp);
  }
};

TEST_P(LampTest, GoesDarkThroughTheRedListWhenItsTimerEndsWithoutAScan) {
  lamp().Picture = frmHard->ilsLED_G.image(2);
  *GetParam().timer = 3;
  steps(2);
  EXPECT_EQ(*GetParam().timer, 1);
  EXPECT_EQ(shown(lamp().Picture), "ilsLED_G 2");
  steps(1);
  EXPECT_EQ(*GetParam().timer, 0);
  EXPECT_EQ(shown(lamp().Picture), "ilsLED_R 1");
  lamp().Picture = frmHard->ilsLED_G.image(2);
  steps(1);
  EXPECT_EQ(*GetParam().timer, 0);
  EXPECT_EQ(shown(lamp().Picture), "ilsLED_G 2") << "a timer that stands at 0 touches nothing";
}

TEST_P(LampTest, GoesDarkWhileTheScanIsHalted) {
  chipMemory[kScrLow] = 2;
  steps(1);
  chipMemory[kInt0Status] = 4;
  const int station = currentStation;
  lamp().Picture = frmHard->ilsLED_R.image(2);
  *GetParam().timer = 2;
  steps(2);
  EXPECT_EQ(shown(lamp().Picture), "ilsLED_R 1");
  EXPECT_EQ(currentStation, station);
}

INSTANTIATE_TEST_SUITE_P(Lamps, LampTest,
                         testing::Values(LampCase{"Chk1", &chk1LedTimer, 0}, LampCase{"Chk2", &chk2LedTimer, 1},
                                         LampCase{"Mon", &monLedTimer, 5}),
                         [](const auto& row) { return row.param.name; });

TEST_F(CenterChipTest, TheHaltBitStopsThePollingAndTheScanGoesOnWhereItStood) {
  chipMemory[kScrLow] = 5;
  steps(2);
  ASSERT_EQ(currentStation, 3);
  chipMemory[kInt0Status] = 4;
  putDo(3, 0x0001);
  steps(20);
  EXPECT_EQ(currentStation, 3);
  EXPECT_EQ(continuousScanActive, kTrue);
  EXPECT_EQ(boardDo[3], 0);
  EXPECT_EQ(answeringBoard, 0);
  chipMemory[kInt0Status] = 0xFB;  // every other bit
  steps(1);
  EXPECT_EQ(currentStation, 4);
  EXPECT_EQ(boardDo[3], 1);
}

TEST_F(CenterChipTest, AScanStartsWhileHaltedButDoesNotPoll) {
  chipMemory[kInt0Status] = 4;
  chipMemory[kScrLow] = 3;
  steps(4);
  EXPECT_EQ(continuousScanActive, kTrue);
  EXPECT_EQ(currentStation, 1);
  EXPECT_EQ(frmHard->picScanLed.Tag, std::string_view("1"));
}

TEST_F(CenterChipTest, TheFinalStationIsTakenAtTheWrap) {
  chipMemory[kScrLow] = 3;
  steps(1);
  chipMemory[kScrLow] = 5;
  EXPECT_EQ(finalStation, 3);
  steps(2);
  EXPECT_EQ(finalStation, 5);
  EXPECT_EQ(currentStation, 1);
  steps(4);
  EXPECT_EQ(currentStation, 5);
  chipMemory[kScrLow] = 2;
  steps(1);
  EXPECT_EQ(finalStation, 2);
}

TEST_F(CenterChipTest, ZeroInScrStopsTheScanAtTheEndOfItsCycle) {
  chipMemory[kScrLow] = 4;
  steps(1);
  chipMemory[kScrLow] = 0;
  steps(2);
  EXPECT_EQ(continuousScanActive, kTrue);
  EXPECT_EQ(currentStation, 4);
  steps(1);
  EXPECT_EQ(continuousScanActive, kFalse);
  EXPECT_EQ(currentStation, 0);
  EXPECT_EQ(chipMemory[kSsrLow], 0);
  EXPECT_EQ(shown(frmHard->picScanLed.Picture), "ilsLED_G 1");
  EXPECT_EQ(frmHard->picScanLed.Tag, std::string_view("0"));
}

TEST_F(CenterChipTest, OneShotPollsOnceAndKeepsItsLastStation) {
  chipMemory[kScrHigh] = 3;
  chipMemory[kInt0Enable] = 0x80;
  steps(2);
  EXPECT_EQ(chipMemory[kSsrLow], 0x83);
  EXPECT_EQ(chipMemory[kInt0Status], 0);
  steps(1);
  EXPECT_EQ(oneShotScanActive, kFalse);
  EXPECT_EQ(chipMemory[kScrHigh], 0);
  EXPECT_EQ(chipMemory[kSsrLow], 0);
  EXPECT_EQ(currentStation, 3);
  EXPECT_EQ(chipMemory[kInt0Status], 0x80);
  EXPECT_EQ(frmHard->picScanLed.Tag, std::string_view("0"));
  EXPECT_EQ(shown(frmHard->picScanLed.Picture), "ilsLED_G 1");
  const int polled = polledStation;
  putDo(1, 0x0077);
  steps(5);
  EXPECT_EQ(polledStation, polled);
  EXPECT_EQ(boardDo[1], 0);
}

TEST_F(CenterChipTest, OneShotOfOneStationEndsOnItsOnlyStep) {
  chipMemory[kScrHigh] = 1;
  chipMemory[kInt0Enable] = 0x88;
  chipMemory[kInt1Enable] = 0x88;
  steps(1);
  EXPECT_EQ(oneShotScanActive, kFalse);
  EXPECT_EQ(chipMemory[kScrHigh], 0);
  EXPECT_EQ(chipMemory[kInt0Status], 0x88);
  EXPECT_EQ(chipMemory[kInt1Status], 0x88);
  EXPECT_TRUE(answered(1));
}

TEST_F(CenterChipTest, ALostAnswerStillBringsDoDown) {
  noiseHeld = kTrue;
  noiseHoldOff = 500;  // the first step is spoilt
  putDo(4, 0xBEEF);
  poll(4);
  EXPECT_FALSE(answered(4));
  EXPECT_EQ(boardDo[4], 0xBEEF);
}

}  // namespace
}  // namespace zelvs
