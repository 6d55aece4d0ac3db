// The boards' input switches, and the sixteen pins of board 5 that its I/O mode makes inputs or outputs.

#include <string_view>

#include "bench/frmHard.h"
#include "bench/pinModes.h"
#include "link/outputStage.h"
#include "panel/ioCounter.h"
#include "panel/panel.h"
#include "panel/panelParts.h"
#include "state/state.h"

namespace zelvs {

namespace {

// The two modes with a motor: one direction and a level, or both directions with a counter.
constexpr int kPlainPwmMode = 6;
constexpr int kCounterPwmMode = 7;

// Both kinds of pin stand on one centre line.
constexpr double kSwitchLeft = 240;
constexpr double kSwitchWidth = 450;
constexpr double kLedLeft = 352;
constexpr double kLedWidth = 225;

constexpr std::string_view kInputTip = "IO端子接続 入力ディップ・スイッチ";
constexpr std::string_view kOutputTip = "IO端子接続 LED(緑）";

void picPI_Click(int i) {
  PictureBox& pin = frmHard->picPI(i);
  if (!pin.Tag.get().starts_with('I')) return;  // an output has no switch
  int byte = i / 8;
  int bit = i % 8;
  if (byte > 7 && ioBoardMode == kCounterPwmMode) {
    // The twelve counter bits take the low end of the word: the four switches answer at its top.
    byte = 9;
    bit += 4;
  }
  const bool on = pin.Tag != "I1";
  pin.Picture = frmHard->ilsDIP1.image(on ? kInputOn : kInputOff);
  pin.Tag = on ? "I1" : "I0";
  const auto mask = static_cast<std::uint8_t>(1 << bit);
  if (on) {
    boardDi[byte] |= mask;
  } else {
    boardDi[byte] &= static_cast<std::uint8_t>(~mask);
  }
}

void setPin(PictureBox& pin, char kind) {
  // A pin that the mode does not have is only hidden: its Tag stays as it was.
  pin.Visible = kind != '*';
  if (kind == '*') return;
  const bool input = kind == 'I';
  pin.Picture = input ? frmHard->ilsDIP1.image(kInputOff) : frmHard->ilsLED_G.image(kDark);
  pin.Left = input ? kSwitchLeft : kLedLeft;
  pin.Width = input ? kSwitchWidth : kLedWidth;
  pin.Tag = input ? "I0" : "O0";
  pin.ToolTipText = input ? kInputTip : kOutputTip;
}

void showPlainPwm() {
  frmHard->timMotor.Enabled = false;
  frmHard->imgBelt.Picture = frmHard->ilsMotor.image(4);
  frmHard->picTriangle.Visible = false;
}

void showCounterPwm() {
  frmHard->timMotor.Enabled = true;
  frmHard->timMotor.Interval = 100;
  frmHard->imgBelt.Picture = frmHard->ilsMotor.image(1);
  frmHard->picTriangle.Visible = true;
  mirrorIoCounter();
}

void setPinPattern(std::string_view pattern, bool pwm) {
  for (int bit = 0; bit < kPinsOfBoard; ++bit)
    setPin(frmHard->picPI(kFirstIoPin + bit), pattern[static_cast<std::size_t>(kPinsOfBoard - 1 - bit)]);
  boardDi[8] = 0;
  boardDi[9] = 0;
  for (int i = 0; i < 4; ++i) {
    frmHard->lblPWMTitle(i).Visible = pwm;
    frmHard->picCW(i).Visible = pwm;
  }
  if (!pwm) {
    frmHard->timMotor.Enabled = false;
  } else if (ioBoardMode == kPlainPwmMode) {
    showPlainPwm();
  } else {
    showCounterPwm();
  }
  frmHard->picBoard(6).Visible = pwm;
  frmHard->picPWMBridge.Visible = pwm;
  frmHard->fraCounter(4).Visible = pwm && ioBoardMode == kCounterPwmMode;
  // The PWM pins use these terminals.
  for (Control* control :
       std::initializer_list<Control*>{&frmHard->picSSA(4), &frmHard->picSSB(4), &frmHard->lblPWMSSA(0),
                                       &frmHard->lblPWMSSA(1), &frmHard->picSTB(9), &frmHard->lblSTB2}) {
    control->Visible = !pwm;
  }
  drivePwm();
}

}  // namespace

void setIOMode() {
  // There is no picture of any other mode: the program ends here.
  frmHard->picIOS.Picture = frmHard->ilsDIP3.image(ioBoardMode + 1);
  if (ioBoardMode == kCounterPwmMode) frmHard->fraCounter(4).Visible = true;
  const IoMode& mode = kIoModes[static_cast<std::size_t>(ioBoardMode)];
  setPinPattern(mode.pattern, mode.pwm);
  setFormWidth();
}

void attachPins(FrmHard& panel) {
  panel.picPI.on(&Control::onClick, picPI_Click);
  panel.timMotor.onTimer = turnBelt;
}

}  // namespace zelvs
