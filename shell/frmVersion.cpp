#include "shell/frmVersion.h"

#include <array>
#include <string_view>

#include "bench/ilsMouse.h"
#include "state/state.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

constexpr std::int16_t kSecondsShown = 5;
constexpr int kSecond = 1000;
constexpr int kAskAgain = 500;

constexpr Colour kGround = 0xFFFAF0;
constexpr Colour kTitleBlue = 0x8B3A00;
constexpr Colour kTitleShadow = 0xD8C8B0;
constexpr Colour kWarningRed = 0x2020C0;
constexpr Colour kBarGround = 0xE8E0D8;
constexpr Colour kBarBlue = 0xB06020;

constexpr double kFormWidth = 8400;
constexpr double kFormHeight = 6300;

struct TextRow {
  std::string_view text;
  double left;
  double top;
  double fontSize;
  Colour colour;
};

// Index: Label2.
constexpr std::array<TextRow, 13> kTexts = {{
    {"Zelmar 体験シミュレーター", 600, 1230, 14, kTitleBlue},
    {"このシステムは、QVT60を搭載するボードをシミュレートし、　", 600, 1860, 9, kBlack},
    {"Zelmar と QVT60,40,50 の機能を体験できます。", 600, 2115, 9, kBlack},
    {"（マウスを移動させてポインタに応じた操作ができます。）", 600, 2370, 9, kBlack},
    {"左クリックで操作できます。", 1260, 2775, 9, kBlack},
    {"左ダブルクリックで操作できます。", 4740, 2775, 9, kBlack},
    {"警告！", 600, 3345, 11, kWarningRed},
    {"シミュレーションの実行マシンによって速度が異なります。", 1440, 3375, 9, kBlack},
    {"実際のシステムは本シミュレータよりも格段に高速です。", 1440, 3630, 9, kBlack},
    {"本シミュレータは、学習と疑似体験用に開発されたのもで、", 1440, 3885, 9, kBlack},
    {"実システムと、速度や詳細動作において異なる場合があります。", 1440, 4140, 9, kBlack},
    {"実システム構築時には、実システム上で機能や詳細動作の確認", 1440, 4395, 9, kBlack},
    {"を行ってください。", 1440, 4650, 9, kBlack},
}};

void place(Label& label, const TextRow& row) {
  label.AutoSize = true;
  label.FontSize = row.fontSize;
  label.ForeColor = row.colour;
  label.Caption = row.text;
  label.Left = row.left;
  label.Top = row.top;
}

void askToClose() {
  frmVersion->hideVersion();
}

}  // namespace

std::string_view programVersion() {
  return ZELVS_VERSION;
}

FrmVersion::FrmVersion() : Form("frmVersion", kKind, Border::None) {
  Caption = "ZEL-VS";
  setTopmost();  // from the start, so that no window has to be made a second time
  BackColor = kGround;
  Width = kFormWidth;
  Height = kFormHeight;

  // The shadow first: what comes later lies in front.
  place(Label1(0), {"ZEL-VS ", 645, 345, 36, kTitleShadow});
  place(Label1(1), {"ZEL-VS ", 600, 300, 36, kTitleBlue});
  Label1(0).FontBold = true;
  Label1(1).FontBold = true;
  for (Label& label : Label2)
    place(label, kTexts[static_cast<std::size_t>(label.index())]);
  Label2(6).FontBold = true;
  place(lblVer, {"Ver," ZELVS_VERSION, 3480, 780, 10, kTitleBlue});
  place(lblCopyright, {"ZEL-VS Ver," ZELVS_VERSION "   学習用シミュレーター", 600, 5040, 8, 0x707070});

  Picture2.move(6600, 420, 1200, 1200);
  Picture2.Transparent = true;
  Picture2.Picture = ilsLogo.image(1);
  for (PictureBox& pointer : Picture1) {
    pointer.Transparent = true;
    pointer.move(pointer.index() == 0 ? 720 : 4200, 2655, 480, 480);
    pointer.Picture = ilsMouse.image(pointer.index() + 1);
  }

  picProgress.move(600, 5460, kFormWidth - 1200, 420);
  picProgress.Bordered = true;
  picProgress.BackColor = kBarGround;
  for (Label& bar : lblProcess) {
    bar.placeIn(picProgress);
    bar.move(0, 0, picProgress.Width, picProgress.Height);
    bar.Transparent = false;
    bar.FontSize = 9;
    bar.Visible = false;
  }
  lblProcess(0).BackColor = kBarGround;
  lblProcess(1).BackColor = kBarBlue;
  lblProcess(1).ForeColor = kWhite;

  const auto closes = [](auto& controls) {
    for (Control& control : controls)
      control.onClick = askToClose;
  };
  closes(Label1);
  closes(Label2);
  closes(Picture1);
  for (Control* control :
       {static_cast<Control*>(&lblCopyright), static_cast<Control*>(&lblVer), static_cast<Control*>(&Picture2)}) {
    control->onClick = askToClose;
  }
  timTimer.onTimer = [] {
    if (--frmVersion->secondsLeft_ < 1) frmVersion->hideVersion();
  };
  timTimer.Enabled = false;
}

void FrmVersion::load() {
  const Screen screen = platform().screen();
  move((screen.width * kTwipsPerPixel - Width) / 2, (screen.height * kTwipsPerPixel - Height) / 2);
}

void FrmVersion::activated() {
  secondsLeft_ = kSecondsShown;
  timTimer.Enabled = false;  // shown anew it begins a whole second, and does not end the one that runs
  timTimer.Interval = kSecond;
  timTimer.Enabled = true;
  setTopmost();
  if (startupDone == kTrue) picProgress.Visible = false;
}

void FrmVersion::hideVersion() {
  if (startupDone != kTrue) {
    // Start-up ends it: the timer asks again until then.
    timTimer.Interval = kAskAgain;
    return;
  }
  picProgress.Visible = false;
  timTimer.Enabled = false;
  hide();
  unload();
}

void FrmVersion::unloading() {
  timTimer.Enabled = false;
}

}  // namespace zelvs
