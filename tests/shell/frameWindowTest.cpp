// The frame: its tool bar, the run modes, the tick marker and the exit question.

#include <string>
#include <vector>

#include "bench/ilsMouse.h"
#include "monitor/frmRegister.h"
#include "shell/frmMDI.h"
#include "shell/frmVersion.h"
#include "shell/tick.h"
#include "support/program.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class FrameWindowTest : public ProgramTest {
 protected:
  FrameWindowTest() { start(); }

  void select(int mode) { EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblRunMode(mode)), ""); }
  void moveOver(int mode) { EXPECT_EQ(gesture::move(*frmMDI, &frmMDI->lblRunMode(mode)), ""); }
  /// Makes the register window out of date: a refresh shows the new byte.
  void changeRegister(std::uint8_t byte) { chipMemory[0x584] = byte; }
  std::string shownRegister() { return frmRegister->lblValL(3).Caption; }
  double markerLeft() { return frmMDI->shpTick.Left; }
};

TEST_F(FrameWindowTest, TheToolBarHasItsLabelsInOneRow) {
  struct Row {
    Label& label;
    const char* caption;
    Colour ground;
    int pointer;
  };
  const Row table[] = {
      {frmMDI->lblSimulationTick, "Simurator Mode", 0xC0FFFF, 0},
      {frmMDI->lblRunMode(0), " RUN ", 0xC0E0FF, 1},
      {frmMDI->lblRunMode(1), "STOP", 0xC0FFFF, 1},
      {frmMDI->lblRunMode(2), "SLOW", 0xC0FFFF, 1},
      {frmMDI->lblRunMode(3), "1-Time", 0xC0FFFF, 1},
      {frmMDI->lblMemoryWindow, "Memory Window", 0xC0FFFF, 1},
      {frmMDI->lblRegisterWindow, "Register Window", 0xC0FFFF, 1},
      {frmMDI->lblRegisterHint, "Register Hint", 0xC0FFFF, 1},
      {frmMDI->lblVersion, "Version", 0xF6FFE9, 1},
      {frmMDI->lblDefault, "Simurator Default Set", 0xC0FFFF, 1},
      {frmMDI->lblNagigator, "Navigator", 0xC0C0FF, 2},
  };
  EXPECT_EQ(frmMDI->Caption.get(), "ZEL-VS");
  EXPECT_EQ(frmMDI->ToolBox.Height, 225.0);
  EXPECT_EQ(frmMDI->ToolBox.unit(), kTwipsPerPixel);
  double right = 0;
  for (const Row& row : table) {
    SCOPED_TRACE(row.caption);
    EXPECT_EQ(row.label.Caption.get(), row.caption);
    EXPECT_EQ(row.label.BackColor, row.ground);
    EXPECT_EQ(row.label.container(), &frmMDI->ToolBox);
    EXPECT_GE(row.label.Left, right) << "from left to right";
    right = row.label.Left + row.label.Width;
    if (row.pointer == 0) {
      EXPECT_TRUE(row.label.MouseIcon.get().none());
    } else {
      EXPECT_EQ(row.label.MousePointer, kCustomPointer);
      EXPECT_TRUE(row.label.MouseIcon == ilsMouse.image(row.pointer));
    }
  }
  const Shape& marker = frmMDI->shpTick;
  EXPECT_EQ(marker.BackColor, 0xC0C0FF);
  EXPECT_EQ(marker.ForeColor, 0xC0C0FF);
  EXPECT_EQ(marker.container(), &frmMDI->ToolBox);
}

TEST_F(FrameWindowTest, SelectingARunModeSetsColoursTimerAndMarker) {
  struct Row {
    int mode, interval;
    double width;
  };
  for (const Row& row : {Row{0, 20, 51}, Row{1, 0, 9}, Row{2, 300, 9}, Row{3, 0, 9}, Row{0, 20, 51}}) {
    SCOPED_TRACE(row.mode);
    select(row.mode);
    EXPECT_EQ(runMode, row.mode);
    EXPECT_EQ(frmMDI->timTick.Interval, row.interval);
    EXPECT_EQ(frmMDI->shpTick.Width, row.width);
    for (int label = 0; label <= 3; ++label)
      EXPECT_EQ(frmMDI->lblRunMode(label).BackColor, label == row.mode ? 0xC0E0FF : 0xC0FFFF) << label;
  }
}

TEST_F(FrameWindowTest, EachModeStepsAtItsPace) {
  // A lamp timer counts down once a step.
  struct Row {
    int mode;
    std::int64_t wait;
    int steps;
  };
  for (const Row& row : {Row{0, 20, 67}, Row{0, 19, 0}, Row{2, 300, 1}, Row{2, 1500, 5}, Row{2, 299, 0},
                         Row{1, 5000, 0}, Row{3, 5000, 0}}) {
    SCOPED_TRACE(std::to_string(row.mode) + " for " + std::to_string(row.wait));
    select(1);
    select(row.mode);
    chk1LedTimer = 5000;
    platform.advance(row.wait);
    EXPECT_EQ(5000 - chk1LedTimer, row.steps);
  }
}

TEST_F(FrameWindowTest, TheMarkerVisitsItsPlaces) {
  struct Row {
    int mode;
    std::vector<double> places;
  };
  const Row table[] = {
      {0, {51, 102, 0, 51, 102, 0}},
      {2, {9, 18, 27, 36, 45, 54, 63, 72, 81, 90, 99, 108, 117, 126, 135, 144, 0, 9}},
  };
  for (const Row& row : table) {
    select(row.mode);
    frmMDI->shpTick.Left = 0;
    for (const double place : row.places) {
      platform.advance(frmMDI->timTick.Interval);
      EXPECT_EQ(markerLeft(), place) << row.mode;
    }
  }
}

TEST_F(FrameWindowTest, OneTimeMakesOneStepAndOneBeepAtEachClick) {
  select(1);
  frmMDI->shpTick.Left = 0;
  chk1LedTimer = 100;
  const int beeps = platform.beeps();
  for (int clicks = 1; clicks <= 3; ++clicks) {
    changeRegister(static_cast<std::uint8_t>(clicks));
    select(3);
    EXPECT_EQ(chk1LedTimer, 100 - clicks);
    EXPECT_EQ(platform.beeps(), beeps + clicks);
    EXPECT_EQ(markerLeft(), 9 * clicks);
    EXPECT_EQ(shownRegister(), "0" + std::to_string(clicks));
  }
}

TEST_F(FrameWindowTest, OtherModesAreSilent) {
  const int beeps = platform.beeps();
  for (const int mode : {1, 2, 0})
    select(mode);
  EXPECT_EQ(platform.beeps(), beeps);
}

TEST_F(FrameWindowTest, TheMouseLetsTheWindowsCatchUpInOneTimeOnly) {
  select(3);
  chk1LedTimer = 100;
  const double left = markerLeft();
  for (int label = 0; label <= 3; ++label) {
    changeRegister(static_cast<std::uint8_t>(0x20 + label));
    moveOver(label);
    EXPECT_EQ(shownRegister(), "2" + std::to_string(label));
  }
  EXPECT_EQ(chk1LedTimer, 100) << "no step";
  EXPECT_EQ(markerLeft(), left);
  for (const int mode : {0, 1, 2}) {
    select(mode);
    const std::string before = shownRegister();
    changeRegister(static_cast<std::uint8_t>(0x30 + mode));
    moveOver(3);
    EXPECT_EQ(shownRegister(), before) << mode;
    EXPECT_EQ(chk1LedTimer, 100) << mode;
  }
}

TEST_F(FrameWindowTest, AChangeOfModeLeavesTheScan) {
  platform.advance(20);
  ASSERT_EQ(continuousScanActive, kTrue);
  const int station = currentStation;
  select(1);
  platform.advance(1000);
  EXPECT_EQ(currentStation, station);
  EXPECT_EQ(continuousScanActive, kTrue);
  select(3);
  const int next = currentStation;
  EXPECT_NE(next, station);
  select(0);
  EXPECT_EQ(currentStation, next) << "the click itself steps nothing";
}

TEST_F(FrameWindowTest, NothingTicksDuringARestart) {
  runMode = kRestarting;
  chk1LedTimer = 100;
  changeRegister(0x77);
  const double left = markerLeft();
  platform.advance(100);
  EXPECT_EQ(chk1LedTimer, 100);
  EXPECT_EQ(markerLeft(), left);
  EXPECT_NE(shownRegister(), "77");
}

TEST_F(FrameWindowTest, TheTimerRunsFromTheFramesLoad) {
  desk().clear();
  clearState();
  frmMDI.load();
  EXPECT_EQ(frmMDI->timTick.Interval, 20);
  EXPECT_EQ(desk().timers.nextDue(), platform.now() + 20);
}

TEST_F(FrameWindowTest, TheRegisterWindowIsShownInFrontAndOwnedByTheFrame) {
  frmRegister->hide();
  for (int click = 0; click < 2; ++click) {
    EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblRegisterWindow), "");
    EXPECT_TRUE(frmRegister.visible());
    EXPECT_FALSE(frmRegister->modal());
    EXPECT_EQ(frmRegister->owner(), frmMDI.form());
    EXPECT_EQ(desk().forms().front(), frmRegister.form());
  }
}

TEST_F(FrameWindowTest, ExitAsksFirst) {
  struct Box {
    std::string title, text;
    MessageButtons buttons;
  };
  std::vector<Box> boxes;
  select(2);
  platform.onMessageBox = [&](const std::string& title, const std::string& text, MessageButtons buttons) {
    boxes.push_back({title, text, buttons});
    return false;
  };
  EXPECT_EQ(gesture::close(*frmMDI), "");
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].title, "ZELVS終了確認");
  EXPECT_EQ(boxes[0].text, "アプリケーションを終了します。よろしいですか？");
  EXPECT_EQ(boxes[0].buttons, MessageButtons::OkCancel);
  EXPECT_FALSE(desk().ended());
  EXPECT_TRUE(frmMDI.visible());
  EXPECT_TRUE(frmHard.visible());
  EXPECT_EQ(runMode, kSlow) << "Cancel leaves the mode";
  EXPECT_EQ(frmMDI->timTick.Interval, 300);
}

TEST_F(FrameWindowTest, ExitUnloadsEverythingAndWritesNothing) {
  const std::string ini = folder.read("ZELVS.INI");
  platform.onMessageBox = [](const std::string&, const std::string&, MessageButtons) { return true; };
  EXPECT_EQ(gesture::close(*frmMDI), "");
  EXPECT_TRUE(desk().ended());
  EXPECT_TRUE(desk().forms().empty());
  EXPECT_EQ(desk().timers.running(), 0u);
  EXPECT_EQ(folder.read("ZELVS.INI"), ini);
}

TEST_F(FrameWindowTest, TheIconOfTheExitQuestionIsAQuestion) {
  class AskedPlatform final : public ScriptedPlatform {
   public:
    Screen screen() override { return {1920, 1080}; }
    bool messageBox(const std::string&, const std::string&, MessageIcon icon, MessageButtons) override {
      asked = icon == MessageIcon::Question;
      return false;
    }
    bool asked = false;
  };
  AskedPlatform other;
  setPlatform(&other);
  frmMDI->close(true);
  setPlatform(&platform);
  EXPECT_TRUE(other.asked);
}

}  // namespace
}  // namespace zelvs
