#include "bench/pinModes.h"
#include "link/outputStage.h"
#include "panel/panel.h"
#include "support/engineFixture.h"

namespace zelvs {
namespace {

class OutputStageTest : public EngineTest {
 protected:
  static void useMode(int mode) {
    ioBoardMode = static_cast<std::int16_t>(mode);
    setIOMode();
  }
  static void latchIo(int value) {
    ioBoardDo = value;
    ioBoardDoLow = static_cast<std::uint8_t>(value);
    driveIoBoardOutputs();
  }
  static int litDuty() {
    int duty = 0;
    for (int i = 0; i < 6; ++i) {
      const int image = frmHard->picPower(i).Picture.get().image;
      EXPECT_TRUE(image == 1 || image == 2);
      if (image == 2) duty |= 1 << i;
    }
    return duty;
  }
};

TEST_F(OutputStageTest, EachBoardLightsItsOwnSixteenLamps) {
  for (int board = 1; board <= 4; ++board) {
    for (int i = 0; i < 64; ++i)
      frmHard->picPO(i).Tag = "other";
    const int value = 0xA5C3 ^ board;
    boardDo[board] = value;
    driveBoardOutputs(board);
    for (int i = 0; i < 64; ++i) {
      if (i / 16 != board - 1) {
        EXPECT_EQ(frmHard->picPO(i).Tag, std::string_view("other")) << i;
        continue;
      }
      const bool lit = (value >> i % 16 & 1) != 0;
      EXPECT_EQ(frmHard->picPO(i).Tag, std::string_view(lit ? "O1" : "O0")) << i;
      EXPECT_EQ(shown(frmHard->picPO(i).Picture), lit ? "ilsLED_G 2" : "ilsLED_G 1") << i;
    }
  }
}

TEST_F(OutputStageTest, OnlyOutputPinsOfBoard5AreDriven) {
  const char* patterns[] = {"IIIIIIIIIIIIIIII", "OOOOIIIIIIIIIIII", "OOOOOOOOIIIIIIII",
                            "OOOOOOOOOOOOIIII", "OOOOOOOOOOOOOOII", "OOOOOOOOOOOOOOOO"};
  for (int mode = 0; mode < 6; ++mode) {
    useMode(mode);
    latchIo(0x5AA5);
    for (int bit = 0; bit < 16; ++bit) {
      const PictureBox& pin = frmHard->picPI(64 + bit);
      const bool output = patterns[mode][15 - bit] == 'O';
      const bool lit = (0x5AA5 >> bit & 1) != 0;
      EXPECT_EQ(pin.Tag, std::string_view(!output ? "I0" : lit ? "O1" : "O0")) << mode << " " << bit;
      EXPECT_EQ(shown(pin.Picture), !output ? "ilsDIP1 1" : lit ? "ilsLED_G 2" : "ilsLED_G 1") << mode << " " << bit;
    }
  }
}

TEST_F(OutputStageTest, ASwitchThatIsOnStaysOnUnderADoWord) {
  useMode(0);
  frmHard->picPI(70).Tag = "I1";
  latchIo(0x0000);
  EXPECT_EQ(frmHard->picPI(70).Tag, std::string_view("I1"));
}

TEST_F(OutputStageTest, BelowMode6TheMotorIsLeftAlone) {
  useMode(5);
  frmHard->picPower(0).Picture = frmHard->ilsLED_G.image(2);
  frmHard->imgBelt.Picture = frmHard->ilsMotor.image(9);
  frmHard->timMotor.Interval = 77;
  latchIo(0x0055);
  EXPECT_EQ(frmHard->picPower(0).Picture.get().image, 2);
  EXPECT_EQ(frmHard->picPower(2).Picture.get().image, 1);
  EXPECT_EQ(shown(frmHard->imgBelt.Picture), "ilsMotor 9");
  EXPECT_EQ(frmHard->timMotor.Interval, 77);
}

struct LevelRow {
  int value;
  int duty;
  int image;
};

class LevelTest : public OutputStageTest, public testing::WithParamInterface<LevelRow> {};

TEST_P(LevelTest, Mode6ShowsDutyAndLevel) {
  useMode(6);
  frmHard->timMotor.Interval = 77;
  latchIo(GetParam().value);
  EXPECT_EQ(litDuty(), GetParam().duty);
  EXPECT_EQ(shown(frmHard->imgBelt.Picture), "ilsMotor " + std::to_string(GetParam().image));
  EXPECT_EQ(frmHard->timMotor.Interval, 77);
}

INSTANTIATE_TEST_SUITE_P(Words, LevelTest,
                         testing::Values(LevelRow{0x0000, 0, 4}, LevelRow{0x0040, 0, 4}, LevelRow{0x0041, 1, 4},
                                         LevelRow{0x0047, 7, 4}, LevelRow{0x0048, 8, 5}, LevelRow{0x0050, 16, 6},
                                         LevelRow{0x0077, 55, 10}, LevelRow{0x0078, 56, 11}, LevelRow{0x007F, 63, 11},
                                         LevelRow{0x00BF, 0, 4}, LevelRow{0x00FF, 0, 4}, LevelRow{0x003F, 0, 4},
                                         LevelRow{0xFF6A, 42, 9}),
                         [](const auto& row) { return "Do" + std::to_string(row.param.value); });

struct MotorRow {
  int value;
  int duty;
  int interval;
  int reverse;   // -1: as it was
  int triangle;  // -1: as it was
};

class MotorTest : public OutputStageTest, public testing::WithParamInterface<MotorRow> {};

TEST_P(MotorTest, Mode7SetsDutySpeedAndDirection) {
  const MotorRow& row = GetParam();
  for (const int before : {0, 1}) {
    useMode(7);
    motorReverse = static_cast<std::int16_t>(before);
    triangleFrame = 2;
    beltFrame = 3;
    latchIo(row.value);
    EXPECT_EQ(litDuty(), row.duty);
    EXPECT_EQ(frmHard->timMotor.Interval, row.interval);
    const int reverse = row.reverse < 0 ? before : row.reverse;
    const int triangle = row.triangle < 0 ? 2 : row.triangle;
    EXPECT_EQ(motorReverse, reverse);
    EXPECT_EQ(triangleFrame, triangle);
    EXPECT_EQ(beltFrame, 1);
    EXPECT_EQ(shown(frmHard->imgBelt.Picture), "ilsMotor 1");
    EXPECT_EQ(shown(frmHard->picTriangle.Picture), "ilsTriangle " + std::to_string((1 - reverse) * 4 + triangle));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Words, MotorTest,
    testing::Values(MotorRow{0x0040, 0, 0, 0, 4}, MotorRow{0x0080, 0, 0, 1, 1}, MotorRow{0x0041, 1, 999, 0, 4},
                    MotorRow{0x0042, 2, 984, 0, 4}, MotorRow{0x0043, 3, 970, 0, 4}, MotorRow{0x0044, 4, 956, 0, 4},
                    MotorRow{0x0060, 32, 550, 0, 4}, MotorRow{0x00A0, 32, 550, 1, 1}, MotorRow{0x007D, 61, 129, 0, 4},
                    MotorRow{0x00BE, 62, 114, 1, 1}, MotorRow{0x007F, 63, 125, 0, 4}, MotorRow{0x00BF, 63, 125, 1, 1},
                    MotorRow{0x00FF, 0, 0, -1, -1}, MotorRow{0x003F, 0, 0, -1, -1}, MotorRow{0xFF41, 1, 999, 0, 4}),
    [](const auto& row) { return "Do" + std::to_string(row.param.value); });

TEST_F(OutputStageTest, TheBeltTurnsBothWays) {
  useMode(7);
  const struct {
    int value;
    int belts[6];
    int triangles[6];
    int firstTriangleImage;
  } rows[] = {{0x007F, {3, 2, 1, 3, 2, 1}, {3, 2, 1, 4, 3, 2}, 4}, {0x00BF, {2, 3, 1, 2, 3, 1}, {2, 3, 4, 1, 2, 3}, 0}};
  for (const auto& row : rows) {
    latchIo(row.value);
    for (int i = 0; i < 6; ++i) {
      platform.advance(125);
      EXPECT_EQ(beltFrame, row.belts[i]) << i;
      EXPECT_EQ(triangleFrame, row.triangles[i]) << i;
      EXPECT_EQ(shown(frmHard->imgBelt.Picture), "ilsMotor " + std::to_string(row.belts[i]));
      EXPECT_EQ(shown(frmHard->picTriangle.Picture),
                "ilsTriangle " + std::to_string(row.firstTriangleImage + row.triangles[i]));
    }
  }
}

TEST_F(OutputStageTest, AStoppedMotorDoesNotTurn) {
  useMode(7);
  latchIo(0x0040);
  platform.advance(5000);
  EXPECT_EQ(beltFrame, 1);
  EXPECT_EQ(triangleFrame, 4);
}

TEST_F(OutputStageTest, TheBeltComesBackFromFramesOutsideItsRange) {
  useMode(7);
  beltFrame = 0;
  triangleFrame = 0;
  ioBoardDoLow = 0x00;
  turnBelt();
  EXPECT_EQ(beltFrame, 3);
  EXPECT_EQ(triangleFrame, 4);
}

TEST_F(OutputStageTest, TheEngineDrivesThePwmThroughTheLink) {
  useMode(7);
  putDo(5, 0x007F);
  poll(5);
  EXPECT_EQ(litDuty(), 63);
  EXPECT_EQ(frmHard->timMotor.Interval, 125);
}

}  // namespace
}  // namespace zelvs
