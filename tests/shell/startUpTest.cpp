#include <algorithm>

#include "dialogs/beep.h"
#include "monitor/frmRegister.h"
#include "shell/frmMDI.h"
#include "shell/frmVersion.h"
#include "shell/startUp.h"
#include "support/engineFixture.h"
#include "support/wave.h"
#include "text/utf8.h"
#include "ui/view.h"

namespace zelvs {
namespace {

class StartUpTest : public ProgramTest {
 protected:
  void TearDown() override { forgetQueuedNumbers(); }
};

TEST_F(StartUpTest, TheScanOfFiveStationsStartsAtTheFirstStep) {
  start({{"SA-QVT40-1", "9"}, {"SA-QVT50", "40"}});
  EXPECT_EQ(startupDone, kTrue);
  EXPECT_EQ(chipMemory[kScrLow], 5);
  EXPECT_EQ(chipMemory[kScrHigh], 0);
  EXPECT_EQ(continuousScanActive, kFalse);
  simulationStep();
  EXPECT_EQ(continuousScanActive, kTrue);
  EXPECT_EQ(finalStation, 5);
  EXPECT_EQ(currentStation, 2);
}

TEST_F(StartUpTest, AllWindowsThatBelongToTheStartAreThere) {
  start();
  EXPECT_TRUE(frmMDI->visible());
  EXPECT_TRUE(frmHard->visible());
  EXPECT_EQ(frmHard->Left.get(), 0);
  EXPECT_EQ(frmHard->Top.get(), 0);
  EXPECT_TRUE(frmRegister->visible());
  EXPECT_EQ(frmRegister->owner(), frmMDI.get());
  EXPECT_EQ(frmRegister->Top.get(), 1100);
  EXPECT_EQ(frmRegister->Left.get(), 6800);
  EXPECT_FALSE(frmVersion.visible());
}

TEST_F(StartUpTest, TheRegisterWindowStaysHiddenWhenItIsNotWanted) {
  start({{"OPENWINDOW1", "0"}});
  EXPECT_TRUE(frmRegister.loaded());
  EXPECT_FALSE(frmRegister.visible());
  EXPECT_EQ(frmRegister->Top.get(), 1100);
}

TEST_F(StartUpTest, ClearedMemoryIsZeroBelowTheRegisters) {
  start({{"MEMORYCLEAR", "1"}});
  for (int address = 0; address < 0x580; ++address)
    ASSERT_EQ(chipMemory[address], 0) << address;
  EXPECT_EQ(chipMemory[kBcrLow], 0x13);
}

TEST_F(StartUpTest, RandomMemoryLeavesTheRegistersAndWhatLiesAboveThem) {
  for (const double u : {0.5, 0.25})
    queueRandom(u);
  start({{"MEMORYCLEAR", "0"}, {"TRANSFER", "1"}});
  EXPECT_EQ(chipMemory[0], 128);
  EXPECT_EQ(chipMemory[1], 64);
  EXPECT_GT(std::count_if(chipMemory.begin(), chipMemory.begin() + 0x580, [](int byte) { return byte != 0; }), 1200);
  const int registers[] = {5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x03, 0, 0x51, 0x56, 0x54, 0x36, 0x30, 0x20};
  for (int i = 0; i < 22; ++i)
    EXPECT_EQ(chipMemory[0x580 + i], registers[i]) << i;
  for (int address = 0x596; address < kChipMemorySize; ++address)
    ASSERT_EQ(chipMemory[address], 0) << address;
}

TEST_F(StartUpTest, TheStepCounterOfTheSplashEndsAtEight) {
  start();
  EXPECT_EQ(processStep, 8);
}

TEST_F(StartUpTest, BoardFivesModeIsZeroAfterTheStartThoughItsPinsFollowTheFile) {
  start({{"IOS-QVT50", "5"}});
  EXPECT_EQ(ioBoardMode, 0);
  EXPECT_EQ(frmHard->cmbIOS.ListIndex, 5);
  EXPECT_EQ(frmHard->picPI(64).Tag, std::string_view("O0"));
}

TEST_F(StartUpTest, MessagesAreCentredInThirtyThreeIdeographs) {
  start();
  // Length of the text, blanks put before it.
  const std::pair<int, int> rows[] = {{33, 0}, {32, 0}, {31, 1}, {30, 2}, {29, 2}, {28, 2},
                                      {27, 3}, {20, 6}, {1, 16}, {0, 16}, {40, 0}};
  for (const auto& [length, blanks] : rows) {
    std::u32string text(static_cast<std::size_t>(length), U'あ');
    showProcessMessage(textOf(text));
    std::u32string expected(static_cast<std::size_t>(blanks), U'\u3000');
    expected += text;
    EXPECT_EQ(frmVersion->lblProcess(0).Caption, textOf(expected)) << length;
    EXPECT_EQ(frmVersion->lblProcess(1).Caption, textOf(expected)) << length;
  }
}

TEST_F(StartUpTest, TheBarGrowsByEighthsAndStaysFull) {
  start();
  processStep = 0;
  for (int message = 1; message <= 9; ++message) {
    showProcessMessage("x");
    EXPECT_EQ(processStep, std::min(message, 8));
    EXPECT_EQ(frmVersion->lblProcess(1).Width.get(), frmVersion->lblProcess(0).Width * std::min(message, 8) / 8);
  }
}

/// Watches the splash: what stands on it whenever it is painted.
class WatchingPlatform final : public ScriptedPlatform, public View {
 public:
  Screen screen() override { return {1920, 1080}; }
  void repaint(Form& form) override {
    if (form.name() != "frmVersion") return;
    const std::string caption = frmVersion->lblProcess(0).Caption;
    if (caption.find("。") != std::string::npos) messages.push_back(caption);
    if (!messages.empty()) doneDuringMessages |= startupDone;
  }
  std::vector<std::string> messages;
  Flag doneDuringMessages = kFalse;
};

TEST_F(StartUpTest, NineMessagesComeInTheirOrder) {
  WatchingPlatform watching;
  setPlatform(&watching);
  setView(&watching);
  start();
  const char* texts[] = {"メインウィンドウロード中です。",
                         "ハードウェアウィンドウロード中です。",
                         "レジスタウィンドウロード中です。",
                         "メモリウィンドウロード中です。",
                         "メモリウィンドウロード中です。",
                         "メモリウィンドウロード中です。",
                         "メモリ処理中です。",
                         "レジスタヒントウィンドウロード中です。",
                         "ナビゲーションウィンドウ設定中です。"};
  ASSERT_EQ(watching.messages.size(), std::size(texts));
  for (std::size_t i = 0; i < std::size(texts); ++i)
    EXPECT_TRUE(watching.messages[i].ends_with(texts[i])) << watching.messages[i];
  EXPECT_EQ(watching.doneDuringMessages, kFalse);
  desk().clear();
  setPlatform(&platform);
  setView(nullptr);
}

TEST_F(StartUpTest, ATickInsideTheLoadingFindsNoScan) {
  /// Lets time pass at every yield, so that timTick fires in the middle of the start.
  class BusyPlatform final : public ScriptedPlatform {
   public:
    Screen screen() override { return {1920, 1080}; }
    void yield() override {
      ++yields;
      advance(20);
      steadyRegisters &= std::all_of(&chipMemory[0x580], &chipMemory[0x590], [](int byte) { return byte == 0; });
      scanned |= continuousScanActive != kFalse;
    }
    int yields = 0;
    bool steadyRegisters = true;
    bool scanned = false;
  };
  BusyPlatform busy;
  setPlatform(&busy);
  start();
  EXPECT_GT(busy.yields, 2);
  EXPECT_TRUE(busy.steadyRegisters);
  EXPECT_FALSE(busy.scanned);
  desk().clear();
  setPlatform(&platform);
}

TEST_F(StartUpTest, WithoutAWaveFileTheSystemBeeps) {
  start();
  EXPECT_EQ(beepDeviceOpen, kFalse);
  const int beeps = platform.beeps();
  playBeep();
  EXPECT_EQ(platform.beeps(), beeps + 1);
}

TEST_F(StartUpTest, AWaveFileOpensTheDevice) {
  folder.write("BEEP.WAV", silentWave());
  start();
  EXPECT_EQ(beepDeviceOpen, kTrue);
  const int beeps = platform.beeps();
  playBeep();
  EXPECT_EQ(platform.beeps(), beeps + 1);
}

TEST_F(StartUpTest, AFileThatIsNoWaveFallsBackWithoutAWord) {
  folder.write("BEEP.WAV", "no sound");
  bool boxed = false;
  platform.onMessageBox = [&](const std::string&, const std::string&, MessageButtons) { return boxed = true; };
  start();
  EXPECT_EQ(beepDeviceOpen, kFalse);
  EXPECT_FALSE(boxed);
}

}  // namespace
}  // namespace zelvs
