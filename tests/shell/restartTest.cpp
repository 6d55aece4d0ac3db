// The restart without leaving the program.

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "monitor/frmDumpC17.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/frmDumpSel.h"
#include "monitor/frmHint.h"
#include "monitor/frmRegister.h"
#include "panel/frmKAIROZU.h"
#include "panel/frmOsiro.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "shell/iniFile.h"
#include "shell/restart.h"
#include "support/heap.h"
#include "support/program.h"
#include "support/wave.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

/// One before which a person does something while events run.
class EventfulPlatform final : public HeadlessPlatform {
 public:
  void yield() override {
    ++yields;
    if (onYield) onYield();
    HeadlessPlatform::yield();
  }
  int yields = 0;
  std::function<void()> onYield;
};

class RestartTest : public ProgramTest {
 protected:
  static std::vector<std::string> visibleForms() {
    std::vector<std::string> names;
    for (const Form* form : desk().forms()) {
      if (form->visible()) names.push_back(form->name());
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  static std::vector<FormPlace*> renewed() { return {&frmHard, &frmRegister, &frmDumpCDIO, &frmDumpC17, &frmDumpDRC}; }
};

TEST_F(RestartTest, PanelAndMonitorWindowsComeBackAsNewAndTheRestLivesOn) {
  start();
  EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblDefault), "");
  const Form* frame = frmMDI.get();
  const Form* hint = frmHint.get();
  const Form* defaults = frmDefault.get();
  for (FormPlace* window : renewed())
    window->form()->Tag = "old";
  restartSimulator();
  for (FormPlace* window : renewed()) {
    EXPECT_TRUE(window->loaded()) << window->name();
    EXPECT_EQ(window->form()->Tag.get(), "") << window->name();
  }
  EXPECT_EQ(frmMDI.get(), frame);
  EXPECT_EQ(frmHint.get(), hint);
  EXPECT_EQ(frmDefault.get(), defaults);
}

TEST_F(RestartTest, TheWindowsOfTheSettingsOpen) {
  start();
  using Names = std::vector<std::string>;
  struct Row {
    std::vector<std::int16_t> open;  // openWindow[1] to [5]
    Names visible;
  };
  const Row table[] = {
      {{0, 0, 0, 0, 0}, {"frmHard", "frmMDI"}},
      {{1, 0, 0, 0, 0}, {"frmHard", "frmMDI", "frmRegister"}},
      {{0, 1, 0, 0, 0}, {"frmHard", "frmHint", "frmMDI"}},
      {{0, 0, 1, 0, 0}, {"frmDumpCDIO", "frmHard", "frmMDI"}},
      {{0, 0, 0, 1, 0}, {"frmDumpC17", "frmHard", "frmMDI"}},
      {{0, 0, 0, 0, 1}, {"frmDumpDRC", "frmHard", "frmMDI"}},
      {{-1, 2, 7, -5, 1}, {"frmDumpC17", "frmDumpCDIO", "frmDumpDRC", "frmHard", "frmHint", "frmMDI", "frmRegister"}},
  };
  for (const Row& row : table) {
    std::copy(row.open.begin(), row.open.end(), openWindow.begin());
    mdiClientHandle = 0;
    restartSimulator();
    EXPECT_EQ(visibleForms(), row.visible);
    EXPECT_EQ(mdiClientHandle != 0, row.open[2] != 0);
  }
  EXPECT_EQ(frmRegister->owner(), frmMDI.get());
}

TEST_F(RestartTest, HintsDefaultsAndSchematicAreHidden) {
  start();
  openWindow[2] = 0;
  EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblDefault), "");
  frmKAIROZU->show();
  frmDumpSel->show();
  frmOsiro->show();
  ASSERT_TRUE(frmHint.visible() && frmDefault.visible() && frmKAIROZU.visible());
  restartSimulator();
  EXPECT_FALSE(frmHint.visible());
  EXPECT_FALSE(frmDefault.visible());
  EXPECT_FALSE(frmKAIROZU.visible());
  EXPECT_FALSE(frmDumpSel.visible()) << "by the selection of RUN";
  EXPECT_TRUE(frmOsiro.visible()) << "nothing closes this one";
}

TEST_F(RestartTest, WindowsGoBackToTheirPlaces) {
  start();
  struct Row {
    FormPlace& window;
    double left, top;
  };
  const Row table[] = {{frmHard, 0, 0},        {frmRegister, 6800, 1100}, {frmDumpCDIO, 12000, 0},
                       {frmHint, 12600, 6700}, {frmDumpC17, 10500, 1300}, {frmDumpDRC, 7600, 10000}};
  for (const Row& row : table)
    row.window.form()->move(1, 2);
  restartSimulator();
  for (const Row& row : table) {
    EXPECT_EQ(row.window.form()->Left.get(), row.left) << row.window.name();
    EXPECT_EQ(row.window.form()->Top.get(), row.top) << row.window.name();
  }
}

TEST_F(RestartTest, EveryModeBecomesRun) {
  start();
  for (const int mode : {1, 2, 3, 0}) {
    EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblRunMode(mode)), "");
    restartSimulator();
    EXPECT_EQ(runMode, kRun);
    EXPECT_EQ(frmMDI->timTick.Interval, 20);
    EXPECT_EQ(frmMDI->shpTick.Width.get(), 51.0);
    EXPECT_EQ(frmMDI->lblRunMode(0).BackColor, 0xC0E0FF);
    EXPECT_EQ(frmMDI->lblRunMode(mode == 0 ? 1 : mode).BackColor, 0xC0FFFF);
    EXPECT_EQ(startupDone, kTrue);
  }
}

TEST_F(RestartTest, AFreshScanStartsWithTheNextStep) {
  start();
  platform.advance(100);
  ASSERT_EQ(continuousScanActive, kTrue);
  oneShotScanActive = kFalse;
  finalStation = 9;
  currentStation = 7;
  restartSimulator();
  EXPECT_EQ(continuousScanActive, kFalse);
  EXPECT_EQ(finalStation, 9) << "left as it was";
  EXPECT_EQ(currentStation, 7);
  EXPECT_EQ(chipMemory[kScrLow], 5);
  platform.advance(20);
  EXPECT_EQ(continuousScanActive, kTrue);
  EXPECT_EQ(finalStation, 5);
  EXPECT_EQ(frmHard->picScanLed.Tag.get(), "1");
}

TEST_F(RestartTest, AOneShotScanIsNotEnded) {
  start();
  oneShotScanActive = kTrue;
  restartSimulator();
  EXPECT_EQ(oneShotScanActive, kTrue);
}

TEST_F(RestartTest, MemoryIsClearedOrFilledAtRandom) {
  start();
  const auto all = [](int from, int to, int byte) {
    return std::all_of(chipMemory.begin() + from, chipMemory.begin() + to, [&](auto at) { return at == byte; });
  };
  std::fill(chipMemory.begin(), chipMemory.end(), std::uint8_t{0xA5});
  memoryClear = 0;
  restartSimulator();
  EXPECT_FALSE(all(0, 0x580, 0xA5));
  EXPECT_FALSE(all(0, 0x580, 0));
  EXPECT_TRUE(all(0x596, 0x800, 0xA5)) << "above the chip's name nothing is touched";
  memoryClear = 1;
  restartSimulator();
  EXPECT_TRUE(all(0, 0x580, 0));
  EXPECT_TRUE(all(0x596, 0x800, 0));
  EXPECT_EQ(chipMemory[kScrLow], 5);
  EXPECT_EQ(chipMemory[0x590], 'Q');
}

TEST_F(RestartTest, ThePanelTakesTheSettingsButIOSAndCounterMode) {
  start();
  Mdef_Set();
  ASSERT_EQ(ioBoardMode, 5);
  cpuType = 3;
  transferSetting[0] = 1;
  copyTransferSetting();
  clockSetting[1] = 2;
  cascadeSetting[2] = 0;
  restartSimulator();
  EXPECT_EQ(frmHard->cmbCPUType.ListIndex, 3);
  EXPECT_EQ(boardFullHalf, 0);
  EXPECT_EQ(chipMemory[0x58E], 3);
  EXPECT_EQ(frmHard->lblClock(1).Caption.get(), "12MHz");
  EXPECT_TRUE(frmHard->picBoard(2).Visible);
  EXPECT_FALSE(frmHard->picBoard(4).Visible);
  EXPECT_EQ(ioBoardMode, 0) << "reset before the panel could take it";
  EXPECT_EQ(frmHard->cmbIOS.ListIndex, 0);
  EXPECT_EQ(frmHard->cmbMode.ListIndex, 0);
  EXPECT_EQ(saSetting[2], 5) << "the list position 4 has become a station";
}

TEST_F(RestartTest, DuplicateAddressesAreNotToldDuringIt) {
  start();
  std::fill(saSetting.begin(), saSetting.end(), std::int16_t{0});
  restartSimulator();
  EXPECT_EQ(desk().modal(), nullptr);
  EXPECT_EQ(platform.beeps(), 0);
}

TEST_F(RestartTest, TheBeepDeviceOpensForTheNewPanel) {
  start();
  EXPECT_EQ(beepDeviceOpen, kFalse);
  folder.write("BEEP.WAV", silentWave());
  restartSimulator();
  EXPECT_EQ(beepDeviceOpen, kTrue);
  EXPECT_EQ(frmHard->mmcBeep.FileName.get(), folder.file("BEEP.WAV"));
}

TEST_F(RestartTest, WhatTheUserDoesMeanwhileDoesNotPullTheBenchAway) {
  start();
  EventfulPlatform eventful;
  setPlatform(&eventful);
  bool asked = false;
  eventful.onMessageBox = [&](const std::string&, const std::string&, MessageButtons) { return asked = true; };
  eventful.onModal = [](Form& form) {
    ADD_FAILURE() << form.name();
    form.hide();
  };
  eventful.onYield = [] {
    for (Control& label : frmMDI->lblRunMode)
      gesture::click(*frmMDI, &label);
    EXPECT_EQ(runMode, kRestarting);
    gesture::click(*frmMDI, &frmMDI->lblDefault);
    gesture::doubleClick(*frmMDI, &frmMDI->lblNagigator);
    gesture::close(*frmMDI);
  };
  restartSimulator();
  EXPECT_GT(eventful.yields, 0);
  EXPECT_FALSE(asked);
  EXPECT_FALSE(desk().ended());
  EXPECT_FALSE(frmDefault.visible());
  EXPECT_EQ(runMode, kRun);
  setPlatform(&platform);
}

TEST_F(RestartTest, AnExitDuringTheStartLoadsNothingMore) {
  folder.write("ZELVS.INI", makerIni());
  int most = 1;
  for (int exitAt = 1; exitAt <= most; ++exitAt) {
    SCOPED_TRACE(exitAt);
    desk().clear();
    clearState();
    programFolder = folder.path();
    EventfulPlatform eventful;
    setPlatform(&eventful);
    eventful.onMessageBox = [](const std::string&, const std::string&, MessageButtons) { return true; };
    eventful.onYield = [&] {
      if (eventful.yields == exitAt) gesture::close(*frmMDI);
    };
    startUp();
    most = std::max(most, eventful.yields + 1);
    if (exitAt > eventful.yields) {
      EXPECT_EQ(startupDone, kTrue) << "every moment has been tried";
      break;
    }
    EXPECT_TRUE(desk().ended());
    EXPECT_NE(startupDone, kTrue);
    for (const Form* form : desk().forms())
      EXPECT_FALSE(form->visible()) << form->name();
  }
  EXPECT_GT(most, 4);
  setPlatform(&platform);
}

TEST_F(RestartTest, WhatTheUserDidBeforeIsForgotten) {
  start();
  EXPECT_EQ(gesture::click(*frmHard, &frmHard->picPI(3)), "");
  serialPending[1] = kTrue;
  frmDumpCDIO->chkTopMost.Value = 1;
  ASSERT_TRUE(frmDumpCDIO->floating());
  restartSimulator();
  EXPECT_EQ(boardDi[0], 0);
  EXPECT_NE(frmHard->picPI(3).Tag.get(), "1");
  EXPECT_EQ(serialPending[1], kFalse);
  EXPECT_EQ(frmDumpCDIO->chkTopMost.Value, 0);
  EXPECT_FALSE(frmDumpCDIO->floating());
}

TEST_F(RestartTest, AThousandOfThemLeaveNothingBehind) {
  start();
  const auto live = [] {
    Mdef_Set();  // the panel has made stations of the list positions
    openWindow[4] = openWindow[5] = 1;
    restartSimulator();
    gesture::click(*frmHard, &frmHard->picPI(3));  // something that a new panel must not remember
  };
  constexpr int kWarmUp = 10;
  constexpr int kRestarts = 1000;
  for (int i = 0; i < kWarmUp; ++i)
    live();
  const std::size_t bytes = heapBytes();
  const std::size_t forms = desk().forms().size();
  const std::size_t timers = desk().timers.running();
  const auto order = visibleForms();
  for (int i = 0; i < kRestarts; ++i)
    live();
  const std::size_t bytesAtTheEnd = heapBytes();
  EXPECT_EQ(desk().forms().size(), forms);
  EXPECT_EQ(desk().timers.running(), timers);
  EXPECT_EQ(visibleForms(), order);
  // Less than one small object a restart. The plain heap is not exact.
#if ZELVS_HEAP_IS_EXACT
  constexpr std::size_t kSlack = 1024;
#else
  constexpr std::size_t kSlack = 32 * kRestarts;
#endif
  EXPECT_LT(bytesAtTheEnd, bytes + kSlack);
  RecordProperty("bytesAfterWarmUp", static_cast<int>(bytes));
  RecordProperty("bytesAtTheEnd", static_cast<int>(bytesAtTheEnd));
  platform.advance(100);
  EXPECT_EQ(continuousScanActive, kTrue);
}

}  // namespace
}  // namespace zelvs
