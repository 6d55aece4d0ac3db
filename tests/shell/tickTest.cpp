#include "monitor/frmRegister.h"
#include "monitor/windowRefresh.h"
#include "shell/frmMDI.h"
#include "shell/tick.h"
#include "support/engineFixture.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

/// The steps that have run are counted by a scan of one station, whose DI changes are not needed: C1CR stands still
/// and chk1LedTimer counts each step down.
class TickTest : public ProgramTest {
 protected:
  void SetUp() override { start(); }

  static int stepsIn(const std::function<void()>& action) {
    constexpr std::int16_t kMany = 30000;
    chk1LedTimer = kMany;
    action();
    return kMany - chk1LedTimer;
  }
  std::function<void()> ticks(int count) {
    return [count] {
      for (int i = 0; i < count; ++i)
        timTick_Timer();
    };
  }
  static void clickMode(int mode) { gesture::click(*frmMDI, &frmMDI->lblRunMode(mode)); }
};

struct ModeRow {
  int mode;
  const char* caption;
  int interval;
  int stepsPerTick;
  int markerWidth;
};

class RunModeTest : public TickTest, public testing::WithParamInterface<ModeRow> {};

TEST_P(RunModeTest, AClickSelectsTheMode) {
  const ModeRow& row = GetParam();
  clickMode(row.mode);
  EXPECT_EQ(runMode, row.mode);
  EXPECT_EQ(frmMDI->timTick.Interval, row.interval);
  EXPECT_EQ(frmMDI->shpTick.Width.get(), row.markerWidth);
  EXPECT_EQ(frmMDI->lblRunMode(row.mode).Caption, std::string_view(row.caption));
  for (int mode = 0; mode < 4; ++mode)
    EXPECT_EQ(frmMDI->lblRunMode(mode).BackColor, mode == row.mode ? 0xC0E0FF : 0xC0FFFF) << mode;
}

TEST_P(RunModeTest, ATickDoesTheModesSteps) {
  const ModeRow& row = GetParam();
  clickMode(row.mode);
  EXPECT_EQ(stepsIn(ticks(1)), row.stepsPerTick);
  EXPECT_EQ(stepsIn(ticks(3)), 3 * row.stepsPerTick);
}

TEST_P(RunModeTest, OneSecondOfTheClock) {
  const ModeRow& row = GetParam();
  clickMode(row.mode);
  const int fired = row.interval == 0 ? 0 : 1000 / row.interval;
  EXPECT_EQ(stepsIn([this] { platform.advance(1000); }), fired * row.stepsPerTick);
}

INSTANTIATE_TEST_SUITE_P(Modes, RunModeTest,
                         testing::Values(ModeRow{0, " RUN ", 20, 67, 51}, ModeRow{1, "STOP", 0, 0, 9},
                                         ModeRow{2, "SLOW", 300, 1, 9}, ModeRow{3, "1-Time", 0, 0, 9}),
                         [](const auto& row) { return "Mode" + std::to_string(row.param.mode); });

TEST_F(TickTest, TheProgramComesUpInRun) {
  EXPECT_EQ(runMode, 0);
  EXPECT_EQ(frmMDI->timTick.Interval, 20);
  EXPECT_EQ(frmMDI->lblRunMode(0).BackColor, 0xC0E0FF);
  for (int mode = 1; mode < 4; ++mode)
    EXPECT_EQ(frmMDI->lblRunMode(mode).BackColor, 0xC0FFFF);
  EXPECT_EQ(frmMDI->shpTick.Width.get(), 51);
}

TEST_F(TickTest, EveryClickOnOneTimeGivesOneStepAndOneBeep) {
  const int beeps = platform.beeps();
  EXPECT_EQ(stepsIn([] { clickMode(3); }), 1);
  EXPECT_EQ(platform.beeps(), beeps + 1);
  EXPECT_EQ(stepsIn([] { clickMode(3); }), 1);
  EXPECT_EQ(platform.beeps(), beeps + 2);
}

TEST_F(TickTest, OtherModesNeitherBeepNorStepByTheClick) {
  const int beeps = platform.beeps();
  for (const int mode : {0, 1, 2})
    EXPECT_EQ(stepsIn([mode] { clickMode(mode); }), 0) << mode;
  EXPECT_EQ(platform.beeps(), beeps);
}

TEST_F(TickTest, NoOtherModeTicks) {
  clickMode(0);
  for (const std::int16_t mode : {-1, 4, 5}) {
    runMode = mode;
    EXPECT_EQ(stepsIn([this] { platform.advance(1000); }), 0) << mode;
  }
  runMode = 0;
  EXPECT_EQ(stepsIn([this] { platform.advance(20); }), 67);
}

TEST_F(TickTest, OneTimeShowsItsStepAtOnce) {
  clickMode(1);
  clickMode(3);
  EXPECT_EQ(frmRegister->lblValL(2).Caption, std::string_view("82"));
  clickMode(3);
  EXPECT_EQ(frmRegister->lblValL(2).Caption, std::string_view("83"));
}

TEST_F(TickTest, InOneTimeTheMouseOverAModeLabelRefreshesWithoutAStep) {
  clickMode(3);
  for (int label = 0; label < 4; ++label) {
    chipMemory[0x584] = static_cast<std::uint8_t>(0x50 + label);
    const double marker = frmMDI->shpTick.Left;
    EXPECT_EQ(stepsIn([label] { gesture::move(*frmMDI, &frmMDI->lblRunMode(label)); }), 0);
    EXPECT_EQ(frmRegister->lblValL(3).Caption, std::string_view("5" + std::to_string(label)));
    EXPECT_EQ(frmMDI->shpTick.Left.get(), marker);
  }
}

TEST_F(TickTest, InTheOtherModesTheMouseDoesNothing) {
  for (const int mode : {0, 1, 2}) {
    clickMode(mode);
    chipMemory[0x584] = static_cast<std::uint8_t>(0x60 + mode);
    EXPECT_EQ(stepsIn([] { gesture::move(*frmMDI, &frmMDI->lblRunMode(0)); }), 0);
    EXPECT_EQ(frmRegister->lblValL(3).Caption, std::string_view("00")) << mode;
  }
}

TEST_F(TickTest, RunResumesTheCycleThatOneTimeLeft) {
  clickMode(3);
  clickMode(3);
  ASSERT_EQ(currentStation, 3);
  clickMode(0);
  EXPECT_EQ(currentStation, 3);
  EXPECT_EQ(continuousScanActive, kTrue);
  timTick_Timer();
  EXPECT_EQ(currentStation, 1 + (2 + 67) % 5);
}

TEST_F(TickTest, ARestartInProgressNeitherStepsNorRefreshes) {
  runMode = 4;
  chipMemory[0x584] = 0x33;
  const double marker = frmMDI->shpTick.Left;
  EXPECT_EQ(stepsIn(ticks(2)), 0);
  EXPECT_EQ(frmRegister->lblValL(3).Caption, std::string_view("00"));
  EXPECT_EQ(frmMDI->shpTick.Left.get(), marker);
}

TEST_F(TickTest, StopsTickRefreshesWithoutASteps) {
  clickMode(1);
  chipMemory[0x584] = 0x44;
  const double marker = frmMDI->shpTick.Left;
  timTick_Timer();
  EXPECT_EQ(frmRegister->lblValL(3).Caption, std::string_view("44"));
  EXPECT_EQ(frmMDI->shpTick.Left.get(), marker);
}

TEST_F(TickTest, TheMarkerOfRunVisitsThreePlaces) {
  frmMDI->shpTick.Left = 0;
  for (const double left : {51.0, 102.0, 0.0, 51.0}) {
    timTick_Timer();
    EXPECT_EQ(frmMDI->shpTick.Left.get(), left);
  }
}

TEST_F(TickTest, TheNarrowMarkerWalksTo144) {
  clickMode(2);
  frmMDI->shpTick.Left = 0;
  for (int place = 1; place <= 16; ++place) {
    timTick_Timer();
    EXPECT_EQ(frmMDI->shpTick.Left.get(), 9 * place);
  }
  timTick_Timer();
  EXPECT_EQ(frmMDI->shpTick.Left.get(), 0);
}

TEST_F(TickTest, CancelInTheExitQuestionChangesNothing) {
  clickMode(2);
  std::string asked;
  platform.onMessageBox = [&](const std::string& title, const std::string& text, MessageButtons buttons) {
    asked = title + "|" + text;
    EXPECT_EQ(buttons, MessageButtons::OkCancel);
    return false;
  };
  gesture::close(*frmMDI);
  EXPECT_EQ(asked, "ZELVS終了確認|アプリケーションを終了します。よろしいですか？");
  EXPECT_FALSE(desk().ended());
  EXPECT_EQ(runMode, 2);
  EXPECT_EQ(frmMDI->timTick.Interval, 300);
  EXPECT_EQ(stepsIn([this] { platform.advance(300); }), 1);
}

TEST_F(TickTest, OkInTheExitQuestionEndsTheProgramAndWritesNothing) {
  const std::string before = folder.read("ZELVS.INI");
  platform.onMessageBox = [](const std::string&, const std::string&, MessageButtons) { return true; };
  gesture::close(*frmMDI);
  EXPECT_TRUE(desk().ended());
  EXPECT_TRUE(desk().forms().empty());
  EXPECT_EQ(folder.read("ZELVS.INI"), before);
}

// ---- The register window's refresh

TEST_F(TickTest, EachRowShowsItsTwoBytes) {
  for (int row = 1; row <= 8; ++row) {
    chipMemory[0x580 + 2 * (row - 1)] = static_cast<std::uint8_t>(0x10 + row);
    chipMemory[0x581 + 2 * (row - 1)] = static_cast<std::uint8_t>(0xE0 + row);
  }
  refreshRegisterWindow();
  const char* digits = "0123456789ABCDEF";
  const char* nibbles[] = {"0000", "0001", "0010", "0011", "0100", "0101", "0110", "0111", "1000"};
  for (int row = 1; row <= 8; ++row) {
    EXPECT_EQ(frmRegister->lblValL(row).Caption, std::string("1") + digits[row]);
    EXPECT_EQ(frmRegister->lblValH(row).Caption, std::string("E") + digits[row]);
    EXPECT_EQ(frmRegister->lblBinL(row).Caption, std::string("0001_") + nibbles[row]);
    EXPECT_EQ(frmRegister->lblBinH(row).Caption, std::string(" 1110_") + nibbles[row]);
  }
}

TEST_F(TickTest, AChangedByteTurnsRedAndSsrsLowByteDoesNot) {
  clickMode(1);
  for (int row = 1; row <= 8; ++row) {
    for (const bool high : {false, true}) {
      SCOPED_TRACE(testing::Message() << "row " << row << (high ? " high" : " low"));
      refreshRegisterWindow();
      Label& value = high ? frmRegister->lblValH(row) : frmRegister->lblValL(row);
      Label& binary = high ? frmRegister->lblBinH(row) : frmRegister->lblBinL(row);
      value.Tag = "";
      value.ForeColor = binary.ForeColor = kBlack;
      const std::uint8_t shownBefore = (high ? registerHighShown : registerLowShown)[row];
      std::uint8_t& byte = chipMemory[0x580 + 2 * (row - 1) + (high ? 1 : 0)];
      byte = static_cast<std::uint8_t>(byte + 1);
      refreshRegisterWindow();
      const bool marked = high || row != 2;
      EXPECT_EQ(value.Tag, std::string_view(marked ? "4" : ""));
      EXPECT_EQ(value.ForeColor, marked ? kRed : kBlack);
      EXPECT_EQ(binary.ForeColor, marked ? kRed : kBlack);
      EXPECT_EQ((high ? registerHighShown : registerLowShown)[row], marked ? byte : shownBefore);
    }
  }
}

TEST_F(TickTest, AHiddenRegisterWindowIsNotRefreshed) {
  frmRegister->hide();
  const int shownBefore = registerLowShown[3];
  chipMemory[0x584] = 0x77;
  refreshRegisterWindow();
  EXPECT_EQ(registerLowShown[3], shownBefore);
  EXPECT_EQ(frmRegister->lblValL(3).Caption, std::string_view("00"));
}

}  // namespace
}  // namespace zelvs
