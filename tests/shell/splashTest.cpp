// The splash during start-up, the about window afterwards.

#include <string>
#include <utility>
#include <vector>

#include "bench/ilsMouse.h"
#include "shell/frmMDI.h"
#include "shell/frmVersion.h"
#include "shell/startUp.h"
#include "support/program.h"
#include "ui/gesture.h"
#include "ui/view.h"

namespace zelvs {
namespace {

/// Looks at the splash each time that it is painted at once.
class WatchingPlatform final : public ScriptedPlatform, public View {
 public:
  struct Look {
    std::string text;
    double barWidth;
    bool shown;
  };
  Screen screen() override { return {1920, 1080}; }
  void repaint(Form& form) override {
    if (form.name() != "frmVersion" || frmVersion->lblProcess(0).Caption == "") return;
    EXPECT_EQ(frmVersion->lblProcess(0).Caption.get(), frmVersion->lblProcess(1).Caption.get());
    looks.push_back({frmVersion->lblProcess(0).Caption, frmVersion->lblProcess(1).Width,
                     frmVersion->visible() && frmVersion->lblProcess(0).shown() && frmVersion->lblProcess(1).shown()});
  }
  std::vector<Look> looks;
};

class SplashTest : public ProgramTest {
 protected:
  /// As it stands before the end of the start-up.
  void showSplash() {
    startupDone = kFalse;
    frmVersion->show();
  }
  void showAbout() { EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblVersion), ""); }
};

TEST_F(SplashTest, TheStartTellsItsNineStepsAndFillsTheBar) {
  const std::pair<const char*, int> table[] = {
      // text, ideographic blanks before it: half of what is left of 33, halves to even
      {"メインウィンドウロード中です。", 9},
      {"ハードウェアウィンドウロード中です。", 8},
      {"レジスタウィンドウロード中です。", 8},
      {"メモリウィンドウロード中です。", 9},
      {"メモリウィンドウロード中です。", 9},
      {"メモリウィンドウロード中です。", 9},
      {"メモリ処理中です。", 12},
      {"レジスタヒントウィンドウロード中です。", 7},
      {"ナビゲーションウィンドウ設定中です。", 8},
  };
  WatchingPlatform watching;
  setPlatform(&watching);
  setView(&watching);
  start();
  const double whole = frmVersion->lblProcess(0).Width;
  ASSERT_EQ(watching.looks.size(), std::size(table));
  for (std::size_t i = 0; i < std::size(table); ++i) {
    const auto& [text, blanks] = table[i];
    std::string wanted;
    for (int blank = 0; blank < blanks; ++blank)
      wanted += "\u3000";
    EXPECT_EQ(watching.looks[i].text, wanted + text) << i;
    EXPECT_EQ(watching.looks[i].barWidth, whole * static_cast<double>(std::min<std::size_t>(i + 1, 8)) / 8) << i;
    EXPECT_TRUE(watching.looks[i].shown) << i;
  }
  EXPECT_EQ(processStep, 8);
  desk().clear();
  setPlatform(&platform);
  setView(nullptr);
}

TEST_F(SplashTest, ALongTextGetsNoBlanks) {
  std::string text;
  for (int i = 0; i < 33; ++i)
    text += "漢";
  for (const char* more : {"", "字", "字字字字字"}) {
    showProcessMessage(text + more);
    EXPECT_EQ(frmVersion->lblProcess(0).Caption.get(), text + more);
  }
  EXPECT_EQ(processStep, 3);
}

TEST_F(SplashTest, TheSplashIsGoneWhenTheStartIsDone) {
  start();
  EXPECT_FALSE(frmVersion.loaded());
  EXPECT_EQ(platform.now(), 0) << "the start waits for nothing";
}

TEST_F(SplashTest, TheTextsOfTheWindow) {
  const std::pair<Label&, const char*> table[] = {
      {frmVersion->Label1(0), "ZEL-VS "},
      {frmVersion->Label1(1), "ZEL-VS "},
      {frmVersion->lblVer, "Ver,1.00"},
      {frmVersion->Label2(0), "Zelmar 体験シミュレーター"},
      {frmVersion->Label2(1), "このシステムは、QVT60を搭載するボードをシミュレートし、　"},
      {frmVersion->Label2(2), "Zelmar と QVT60,40,50 の機能を体験できます。"},
      {frmVersion->Label2(3), "（マウスを移動させてポインタに応じた操作ができます。）"},
      {frmVersion->Label2(4), "左クリックで操作できます。"},
      {frmVersion->Label2(5), "左ダブルクリックで操作できます。"},
      {frmVersion->Label2(6), "警告！"},
      {frmVersion->Label2(7), "シミュレーションの実行マシンによって速度が異なります。"},
      {frmVersion->Label2(8), "実際のシステムは本シミュレータよりも格段に高速です。"},
      {frmVersion->Label2(9), "本シミュレータは、学習と疑似体験用に開発されたのもで、"},
      {frmVersion->Label2(10), "実システムと、速度や詳細動作において異なる場合があります。"},
      {frmVersion->Label2(11), "実システム構築時には、実システム上で機能や詳細動作の確認"},
      {frmVersion->Label2(12), "を行ってください。"},
  };
  for (const auto& [label, text] : table) {
    EXPECT_EQ(label.Caption.get(), text);
  }
  EXPECT_TRUE(frmVersion->Picture1(0).Picture == ilsMouse.image(1));
  EXPECT_TRUE(frmVersion->Picture1(1).Picture == ilsMouse.image(2));
  EXPECT_EQ(frmVersion->lblProcess(0).container(), &frmVersion->picProgress);
  EXPECT_EQ(frmVersion->lblProcess(1).container(), &frmVersion->picProgress);
}

TEST_F(SplashTest, DuringTheStartNothingClosesIt) {
  showSplash();
  EXPECT_TRUE(frmVersion->picProgress.Visible);
  EXPECT_EQ(frmVersion->timTimer.Interval, 1000);
  platform.advance(60000);
  EXPECT_TRUE(frmVersion.visible());
  EXPECT_EQ(frmVersion->timTimer.Interval, 500) << "after five seconds it asks every half second";
}

TEST_F(SplashTest, AClickDuringTheStartShortensTheTimerOnly) {
  showSplash();
  EXPECT_EQ(gesture::click(*frmVersion, &frmVersion->lblVer), "");
  EXPECT_TRUE(frmVersion.visible());
  EXPECT_EQ(frmVersion->timTimer.Interval, 500);
  platform.advance(2499);
  startupDone = kTrue;
  EXPECT_TRUE(frmVersion.visible()) << "four of the five counts are used up";
  platform.advance(1);
  EXPECT_FALSE(frmVersion.loaded());
}

TEST_F(SplashTest, TheNextTimerAfterTheStartClosesIt) {
  showSplash();
  platform.advance(5200);
  EXPECT_TRUE(frmVersion.visible());
  startupDone = kTrue;
  platform.advance(299);
  EXPECT_TRUE(frmVersion.visible());
  platform.advance(1);
  EXPECT_FALSE(frmVersion.loaded());
}

TEST_F(SplashTest, TheAboutWindowClosesAfterFiveSeconds) {
  start();
  for (int round = 0; round < 2; ++round) {
    showAbout();
    EXPECT_TRUE(frmVersion.visible());
    EXPECT_FALSE(frmVersion->modal());
    EXPECT_TRUE(frmVersion->topmost());
    EXPECT_FALSE(frmVersion->picProgress.Visible);
    platform.advance(4999);
    EXPECT_TRUE(frmVersion.visible());
    platform.advance(1);
    EXPECT_FALSE(frmVersion.loaded());
  }
}

TEST_F(SplashTest, AClickAnywhereClosesTheAboutWindow) {
  start();
  const std::size_t timers = desk().timers.running();
  const std::vector<std::string> names = {"Label1", "Label2", "lblVer", "lblCopyright", "Picture1", "Picture2"};
  std::vector<std::pair<std::string, int>> targets = {{"", -1}};
  for (const Control* control : frmVersion->controls()) {
    if (std::find(names.begin(), names.end(), control->name()) != names.end()) {
      targets.emplace_back(control->name(), control->index());
    }
  }
  ASSERT_EQ(targets.size(), 1u + 2 + 13 + 1 + 1 + 2 + 1);
  for (const auto& [name, index] : targets) {
    showAbout();
    Control* control = name.empty() ? nullptr : frmVersion->find(name, index);
    EXPECT_EQ(gesture::click(*frmVersion, control), "");
    EXPECT_FALSE(frmVersion.loaded()) << name << "(" << index << ")";
  }
  EXPECT_EQ(desk().timers.running(), timers) << "its timer is gone";
}

TEST_F(SplashTest, TheAboutWindowStaysInFront) {
  start();
  showAbout();
  gesture::click(*frmHard, &frmHard->picReset(0));
  EXPECT_EQ(desk().forms().front(), frmVersion.form());
}

}  // namespace
}  // namespace zelvs
