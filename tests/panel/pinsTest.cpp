// Switches, counters, CLR, RESET and the pins of board 5.

#include <algorithm>

#include "bench/pinModes.h"
#include "panel/panel.h"
#include "support/panelFixture.h"

namespace zelvs {
namespace {

class PinsTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    start();
  }
  static void useMode(int mode) { choose(frmHard->picIOS, frmHard->cmbIOS, mode); }
};

TEST_F(PinsTest, EverySwitchOfBoards1To4TurnsItsBit) {
  for (int i = 0; i < 64; ++i) {
    PictureBox& pin = frmHard->picPI(i);
    click(pin);
    EXPECT_EQ(pin.Tag, std::string_view("I1"));
    EXPECT_EQ(shown(pin.Picture), "ilsDIP1 2");
    for (int byte = 0; byte < 10; ++byte)
      EXPECT_EQ(boardDi[byte], byte == i / 8 ? 1 << i % 8 : 0) << i;
    click(pin);
    EXPECT_EQ(pin.Tag, std::string_view("I0"));
    EXPECT_EQ(shown(pin.Picture), "ilsDIP1 1");
    EXPECT_EQ(boardDi[i / 8], 0);
  }
}

TEST_F(PinsTest, ASwitchLeavesItsNeighboursBitsAlone) {
  boardDi[2] = 0xA5;
  frmHard->picPI(17).Tag = "I0";
  click(frmHard->picPI(17));
  EXPECT_EQ(boardDi[2], 0xA7);
  click(frmHard->picPI(17));
  EXPECT_EQ(boardDi[2], 0xA5);
}

TEST_F(PinsTest, QuickClicksOnASwitchAllCount) {
  doubleClick(frmHard->picPI(3));
  EXPECT_EQ(boardDi[0], 0) << "on and off again";
  click(frmHard->picPI(3));
  EXPECT_EQ(boardDi[0], 8);
}

struct ModeRow {
  int mode;
  const char* pattern;
  bool pwm;
};

class IoModeTest : public PinsTest, public testing::WithParamInterface<ModeRow> {};

TEST_P(IoModeTest, MakesThePinsAndTheBoardAroundThem) {
  const ModeRow& row = GetParam();
  useMode(row.mode == 0 ? 5 : 0);
  boardDi[8] = boardDi[9] = 0xFF;
  boardCounters[48] = 0x34;
  boardCounters[49] = 0x12;
  for (int bit = 0; bit < 16; ++bit)
    frmHard->picPI(64 + bit).Tag = "x";
  useMode(row.mode);
  for (int bit = 0; bit < 16; ++bit) {
    SCOPED_TRACE(bit);
    const PictureBox& pin = frmHard->picPI(64 + bit);
    const char kind = row.pattern[15 - bit];
    EXPECT_EQ(pin.Visible.get(), kind != '*');
    if (kind == '*') {
      EXPECT_EQ(pin.Tag, std::string_view("x"));
      continue;
    }
    const bool input = kind == 'I';
    EXPECT_EQ(pin.Tag, std::string_view(input ? "I0" : "O0"));
    EXPECT_EQ(shown(pin.Picture), input ? "ilsDIP1 1" : "ilsLED_G 1");
    EXPECT_EQ(pin.Left.get(), input ? 240 : 352);
    EXPECT_EQ(pin.ToolTipText, std::string_view(input ? "IO端子接続 入力ディップ・スイッチ" : "IO端子接続 LED(緑）"));
  }
  EXPECT_EQ(boardDi[8], row.mode == 7 ? 0x34 : 0);
  EXPECT_EQ(boardDi[9], row.mode == 7 ? 0x02 : 0);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(frmHard->lblPWMTitle(i).Visible.get(), row.pwm);
    EXPECT_EQ(frmHard->picCW(i).Visible.get(), row.pwm);
  }
  EXPECT_EQ(frmHard->picBoard(6).Visible.get(), row.pwm);
  EXPECT_EQ(frmHard->picShadow(6).Visible.get(), row.pwm);
  EXPECT_EQ(frmHard->picPWMBridge.Visible.get(), row.pwm);
  EXPECT_EQ(frmHard->fraCounter(4).Visible.get(), row.mode == 7);
  for (Control* terminal :
       {static_cast<Control*>(&frmHard->picSSA(4)), static_cast<Control*>(&frmHard->picSSB(4)),
        static_cast<Control*>(&frmHard->lblPWMSSA(0)), static_cast<Control*>(&frmHard->lblPWMSSA(1)),
        static_cast<Control*>(&frmHard->picSTB(9)), static_cast<Control*>(&frmHard->lblSTB2)}) {
    EXPECT_EQ(terminal->Visible.get(), !row.pwm) << terminal->fullName();
  }
  EXPECT_EQ(frmHard->timMotor.Enabled.get(), row.mode == 7);
  if (row.mode == 6) {
    EXPECT_EQ(shown(frmHard->imgBelt.Picture), "ilsMotor 4");
    EXPECT_FALSE(frmHard->picTriangle.Visible);
  }
  if (row.mode == 7) {
    EXPECT_EQ(shown(frmHard->imgBelt.Picture), "ilsMotor 1");
    EXPECT_TRUE(frmHard->picTriangle.Visible);
  }
}

TEST_P(IoModeTest, OnlyInputPinsAreSwitches) {
  const ModeRow& row = GetParam();
  useMode(row.mode);
  for (int bit = 0; bit < 16; ++bit) {
    if (row.pattern[15 - bit] == '*') continue;
    PictureBox& pin = frmHard->picPI(64 + bit);
    const std::string before = pin.Tag;
    boardDi[8] = boardDi[9] = 0;
    click(pin);
    if (row.pattern[15 - bit] == 'O') {
      EXPECT_EQ(pin.Tag.get(), before);
      EXPECT_EQ(boardDi[8] + boardDi[9], 0);
      continue;
    }
    const int at = row.mode == 7 ? bit + 12 : bit;
    EXPECT_EQ(boardDi[8] + 256 * boardDi[9], 1 << at) << bit;
    click(pin);
    EXPECT_EQ(boardDi[8] + boardDi[9], 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Modes, IoModeTest,
                         testing::Values(ModeRow{0, "IIIIIIIIIIIIIIII", false}, ModeRow{1, "OOOOIIIIIIIIIIII", false},
                                         ModeRow{2, "OOOOOOOOIIIIIIII", false}, ModeRow{3, "OOOOOOOOOOOOIIII", false},
                                         ModeRow{4, "OOOOOOOOOOOOOOII", false}, ModeRow{5, "OOOOOOOOOOOOOOOO", false},
                                         ModeRow{6, "****OOOOIIIIIIII", true}, ModeRow{7, "****OOOO****IIII", true}),
                         [](const auto& row) { return "Mode" + std::to_string(row.param.mode); });

TEST_F(PinsTest, InMode7ASwitchKeepsTheCountersLowByte) {
  useMode(7);
  boardDi[8] = 0x5A;
  boardDi[9] = 0x07;
  click(frmHard->picPI(64));
  EXPECT_EQ(boardDi[8], 0x5A);
  EXPECT_EQ(boardDi[9], 0x17);
}

TEST_F(PinsTest, AModeChangeTurnsSwitchesOffAndKeepsAHiddenPinsTag) {
  useMode(0);
  click(frmHard->picPI(64));
  click(frmHard->picPI(79));
  useMode(6);
  EXPECT_EQ(boardDi[8], 0);
  EXPECT_EQ(boardDi[9], 0);
  EXPECT_EQ(frmHard->picPI(64).Tag, std::string_view("I0"));
  EXPECT_EQ(frmHard->picPI(79).Tag, std::string_view("I1"));
  EXPECT_FALSE(frmHard->picPI(79).Visible);
}

TEST_F(PinsTest, AModeBeyondTheListTakesThePatternOfMode0) {
  // Only the pattern: there is no picture for such a mode.
  useMode(5);
  for (const std::int16_t mode : {-1, 8}) {
    ioBoardMode = mode;
    EXPECT_DEATH(setIOMode(), "ilsDIP3") << mode;
  }
}

// ---- Counters

TEST_F(PinsTest, EveryCounterCountsOnRelease) {
  for (int i = 0; i < 24; ++i) {
    PictureBox& button = frmHard->picCounter(i);
    press(button);
    EXPECT_EQ(shown(button.Picture), "ilsCount 2");
    EXPECT_EQ(boardCounters[2 * i], 0);
    release(button);
    EXPECT_EQ(shown(button.Picture), "ilsCount 1");
    for (int byte = 0; byte < 50; ++byte)
      EXPECT_EQ(boardCounters[byte], byte == 2 * i ? 1 : 0) << i;
    boardCounters[2 * i] = 0;
  }
  EXPECT_EQ(std::count(boardDi.begin(), boardDi.end(), 0), 10);
}

TEST_F(PinsTest, CountersAreSixteenBitsWide) {
  const struct {
    int before[2];
    int after[2];
  } rows[] = {{{0, 0}, {1, 0}}, {{254, 0}, {255, 0}}, {{255, 0}, {0, 1}}, {{255, 254}, {0, 255}}, {{255, 255}, {0, 0}}};
  for (const int i : {0, 5, 13, 23}) {
    for (const auto& row : rows) {
      boardCounters[2 * i] = static_cast<std::uint8_t>(row.before[0]);
      boardCounters[2 * i + 1] = static_cast<std::uint8_t>(row.before[1]);
      click(frmHard->picCounter(i));
      EXPECT_EQ(boardCounters[2 * i], row.after[0]);
      EXPECT_EQ(boardCounters[2 * i + 1], row.after[1]);
    }
  }
}

TEST_F(PinsTest, ADoubleClickOnACounterCountsTwice) {
  doubleClick(frmHard->picCounter(2));
  EXPECT_EQ(boardCounters[4], 2);
}

TEST_F(PinsTest, Board5sCounterShowsTwelveOfItsBitsInDi) {
  useMode(7);
  click(frmHard->picPI(67));
  for (int i = 1; i <= 4097; ++i) {
    click(frmHard->picCounter(24));
    if (i != 1 && i != 256 && i != 4095 && i != 4096 && i != 4097) continue;
    EXPECT_EQ(boardCounters[48], i % 256) << i;
    EXPECT_EQ(boardCounters[49], i / 256) << i;
    EXPECT_EQ(boardDi[8], i % 256) << i;
    EXPECT_EQ(boardDi[9], 0x80 | (i / 256 % 16)) << i;
  }
}

TEST_F(PinsTest, TheClearButtonClearsOnThePressAndKeepsTheSwitches) {
  useMode(7);
  click(frmHard->picPI(65));
  boardCounters[48] = 0xCD;
  boardCounters[49] = 0x1B;
  click(frmHard->picCounter(24));
  ASSERT_EQ(boardDi[9], 0x2B);
  press(frmHard->picCounter(25));
  EXPECT_EQ(shown(frmHard->picCounter(25).Picture), "ilsCount 2");
  EXPECT_EQ(boardCounters[48], 0);
  EXPECT_EQ(boardCounters[49], 0);
  EXPECT_EQ(boardDi[8], 0);
  EXPECT_EQ(boardDi[9], 0x20);
  release(frmHard->picCounter(25));
  EXPECT_EQ(shown(frmHard->picCounter(25).Picture), "ilsCount 1");
  EXPECT_EQ(boardCounters[48], 0);
}

TEST_F(PinsTest, InAnotherCounterModeTheClearButtonOnlyMoves) {
  useMode(7);
  ioBoardCounterMode = 1;
  boardCounters[48] = 9;
  click(frmHard->picCounter(25));
  EXPECT_EQ(boardCounters[48], 9);
}

// ---- CLR and RESET

TEST_F(PinsTest, ClrClearsTheOutputsWhileItIsHeld) {
  for (int i = 0; i < 4; ++i) {
    const int board = i + 1;
    boardDo[board] = 0xFFFF;
    for (int bit = 0; bit < 16; ++bit)
      frmHard->picPO(16 * i + bit).Tag = "O1";
    hold(frmHard->picCLR(i));
    EXPECT_EQ(shown(frmHard->picCLR(i).Picture), "ilsCount 4");
    EXPECT_EQ(boardClrHeld[board], kTrue);
    EXPECT_EQ(boardDo[board], 0);
    for (int bit = 0; bit < 16; ++bit) {
      EXPECT_EQ(frmHard->picPO(16 * i + bit).Tag, std::string_view("O0"));
      EXPECT_EQ(shown(frmHard->picPO(16 * i + bit).Picture), "ilsLED_G 1");
    }
    chipMemory[0x80 + 2 * board] = 0xFF;
    chipMemory[kScrLow] = 5;
    for (int step = 0; step < 5; ++step)
      simulationStep();
    EXPECT_EQ(boardDo[board], 0) << "no new word is latched";
    EXPECT_EQ(chipMemory[2 * board + 1], 0) << "the board still answers";
    release(frmHard->picCLR(i));
    EXPECT_EQ(shown(frmHard->picCLR(i).Picture), "ilsCount 3");
    EXPECT_EQ(boardClrHeld[board], kFalse);
    for (int step = 0; step < 5; ++step)
      simulationStep();
    EXPECT_EQ(boardDo[board], 0xFF);
  }
}

TEST_F(PinsTest, ClrOfBoard5DarkensItsOutputs) {
  useMode(5);
  ioBoardDo = 0xFFFF;
  ioBoardDoLow = 0xFF;
  for (int bit = 0; bit < 16; ++bit)
    frmHard->picPI(64 + bit).Tag = "O1";
  hold(frmHard->picCLR(4));
  EXPECT_EQ(shown(frmHard->picCLR(4).Picture), "ilsCount 4");
  EXPECT_EQ(ioBoardClrHeld, kTrue);
  EXPECT_EQ(ioBoardDo, 0);
  EXPECT_EQ(ioBoardDoLow, 0xFF) << "the low byte alone is the engine's";
  for (int bit = 0; bit < 16; ++bit)
    EXPECT_EQ(frmHard->picPI(64 + bit).Tag, std::string_view("O0"));
  release(frmHard->picCLR(4));
  EXPECT_EQ(ioBoardClrHeld, kFalse);
}

TEST_F(PinsTest, ResetOfAQvt40BoardHoldsItAndKeepsItsInputs) {
  for (int board = 1; board <= 4; ++board) {
    boardDo[board] = 0x8001;
    boardDi[2 * board - 2] = 0x55;
    boardCounters[12 * (board - 1)] = 7;
    frmHard->picPO(16 * (board - 1)).Tag = "O1";
    hold(frmHard->picReset(board));
    EXPECT_EQ(shown(frmHard->picReset(board).Picture), "ilsRESET 2");
    for (int other = 1; other <= 4; ++other)
      EXPECT_EQ(boardResetHeld[other], other == board ? kTrue : kFalse);
    EXPECT_EQ(boardDo[board], 0);
    EXPECT_EQ(frmHard->picPO(16 * (board - 1)).Tag, std::string_view("O0"));
    EXPECT_EQ(boardDi[2 * board - 2], 0x55);
    EXPECT_EQ(boardCounters[12 * (board - 1)], 7);
    release(frmHard->picReset(board));
    EXPECT_EQ(shown(frmHard->picReset(board).Picture), "ilsRESET 1");
    EXPECT_EQ(boardResetHeld[board], kFalse);
  }
}

TEST_F(PinsTest, ResetOfBoard5ClearsItsCounterAndKeepsItsSwitches) {
  useMode(7);
  click(frmHard->picPI(66));
  click(frmHard->picCounter(24));
  ioBoardDo = 0x0F00;
  frmHard->picPI(72).Tag = "O1";
  frmHard->picB1_LED(5).Picture = frmHard->ilsLED_G.image(2);
  boardCounters[0] = 3;
  hold(frmHard->picReset(5));
  EXPECT_EQ(ioBoardResetHeld, kTrue);
  EXPECT_EQ(ioBoardDo, 0);
  EXPECT_EQ(boardCounters[48], 0);
  EXPECT_EQ(boardCounters[49], 0);
  EXPECT_EQ(boardDi[8], 0);
  EXPECT_EQ(boardDi[9], 0x40);
  EXPECT_EQ(frmHard->picPI(66).Tag, std::string_view("I1"));
  EXPECT_EQ(frmHard->picPI(72).Tag, std::string_view("O0"));
  EXPECT_EQ(shown(frmHard->picB1_LED(5).Picture), "ilsLED_R 1");
  EXPECT_EQ(boardCounters[0], 3);
  release(frmHard->picReset(5));
  EXPECT_EQ(ioBoardResetHeld, kFalse);
}

TEST_F(PinsTest, ASingleClickOnAButtonOnlyReleases) {
  for (int i = 0; i < 6; ++i) {
    click(frmHard->picReset(i));
    EXPECT_EQ(shown(frmHard->picReset(i).Picture), "ilsRESET 1");
  }
  for (int i = 0; i < 5; ++i) {
    click(frmHard->picCLR(i));
    EXPECT_EQ(shown(frmHard->picCLR(i).Picture), "ilsCount 3");
  }
  for (int board = 1; board <= 4; ++board) {
    EXPECT_EQ(boardResetHeld[board], kFalse);
    EXPECT_EQ(boardClrHeld[board], kFalse);
  }
  EXPECT_EQ(chipMemory[kScrLow], 5);
}

TEST_F(PinsTest, TheCentersButtonHasNothingToRelease) {
  hold(frmHard->picReset(0));
  EXPECT_EQ(shown(frmHard->picReset(0).Picture), "ilsRESET 2");
  EXPECT_EQ(chipMemory[kScrLow], 0);
  EXPECT_EQ(chipMemory[kBcrLow], 0x13);
  chipMemory[kScrLow] = 4;
  release(frmHard->picReset(0));
  EXPECT_EQ(shown(frmHard->picReset(0).Picture), "ilsRESET 1");
  EXPECT_EQ(chipMemory[kScrLow], 4);
}

TEST_F(PinsTest, TheCentersButtonTouchesNoCableAndNoJumper) {
  doubleClick(frmHard->picReset(0));
  for (const int connector : {0, 1, 3})
    EXPECT_EQ(frmHard->picBOARD2_RXD(connector).Tag, std::string_view("1"));
  EXPECT_EQ(frmHard->lblHF(0).Caption, std::string_view("JMP-F"));
}

// ---- Setting switches

TEST_F(PinsTest, SettingSwitchesTurnHighFirstAndThenLow) {
  for (const bool a : {true, false}) {
    for (int i = 0; i < 5; ++i) {
      PictureBox& input = a ? frmHard->picSSA(i) : frmHard->picSSB(i);
      EXPECT_EQ(input.Tag, std::string_view(""));
      doubleClick(input);
      EXPECT_EQ(input.Tag, std::string_view("1"));
      EXPECT_EQ(shown(input.Picture), "ilsDIP1 4");
      doubleClick(input);
      EXPECT_EQ(input.Tag, std::string_view("0"));
      EXPECT_EQ(shown(input.Picture), "ilsDIP1 3");
    }
  }
}

// ---- The serial input and the panel's own timer for it

TEST_F(PinsTest, UnreadSerialDataRefusesMore) {
  std::string opened;
  platform.onModal = [&opened](Form& form) {
    opened += form.name() + " ";
    EXPECT_EQ(gesture::close(form), "");
  };
  for (int i = 0; i < 4; ++i) {
    doubleClick(frmHard->picSDI(i));
    EXPECT_EQ(takeMessage(), "") << i;
    serialPending[i] = kTrue;
    doubleClick(frmHard->picSDI(i));
    EXPECT_EQ(takeMessage(), "SEがローレベル(LED点灯)中は入力できません。") << i;
    EXPECT_EQ(serialPending[i], kTrue);
  }
  EXPECT_EQ(opened, "frmEditSerial frmEditSerial frmEditSerial frmEditSerial ");
}

TEST_F(PinsTest, TheSerialTimerCountsDownOnceAndStops) {
  const char* before[] = {"2", "1", "0", ""};
  const char* after[] = {"1", "0", "0", "0"};
  const bool visible[] = {true, false, true, false};
  serialEditBoard = 3;
  for (int i = 0; i < 4; ++i) {
    frmHard->picSerialInt(i).Tag = before[i];
    frmHard->picSerialInt(i).Visible = true;
  }
  EXPECT_FALSE(frmHard->timSE.Enabled);
  EXPECT_EQ(frmHard->timSE.Interval, 1000);
  frmHard->timSE.Enabled = true;
  platform.advance(1000);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(frmHard->picSerialInt(i).Tag, std::string_view(after[i])) << i;
    EXPECT_EQ(frmHard->picSerialInt(i).Visible.get(), visible[i]) << i;
    EXPECT_EQ(shown(frmHard->picSE(i).Picture), i == 1 ? "ilsLED_G 2" : "ilsLED_G 1") << i;
  }
  EXPECT_FALSE(frmHard->timSE.Enabled);
}

TEST_F(PinsTest, LampsAndOutputsDoNotReactToTheMouse) {
  useMode(7);
  const auto control = [](Control& one) { return &one; };
  Control* const lamps[] = {
      control(frmHard->picPO(0)),     control(frmHard->picPO(63)),      control(frmHard->picCW(0)),
      control(frmHard->picSE(0)),     control(frmHard->picScanLed),     control(frmHard->picChkLED(0)),
      control(frmHard->picB1_LED(5)), control(frmHard->picPower(0)),    control(frmHard->picTRX(0)),
      control(frmHard->picPTR(0)),    control(frmHard->picCableRole(0))};
  for (Control* lamp : lamps) {
    EXPECT_FALSE(lamp->onClick || lamp->onDblClick || lamp->onMouseDown || lamp->onMouseUp || lamp->onMouseMove)
        << lamp->fullName();
  }
}

}  // namespace
}  // namespace zelvs
