// The boards' process side: DI switches, counters, CLR, RESET, setting switches and the pins of board 5.

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "kernel/hexText.h"
#include "kernel/outputStage.h"
#include "kernel/resets.h"
#include "kernel/state.h"
#include "learning/frmKAIROZU.h"
#include "learning/frmMessage.h"
#include "learning/frmOsiro.h"
#include "learning/messages.h"
#include "monitor/frmEditSerial.h"
#include "panel/frmHard.h"
#include "panel/panelSetup.h"
#include "panel/pinModes.h"
#include "shell/frmMDI.h"

namespace zelvs {

namespace {

constexpr int kFirstIoPin = 64;
constexpr int kIoPins = 16;
constexpr int kIoCounter = 24;       // counter and button of board 5
constexpr int kIoCounterClear = 25;  // its second button
constexpr int kIoCounterByte = 2 * kIoCounter;
constexpr int kIoBoard = 5;

// Images of ilsDIP1, ilsCount and ilsRESET.
constexpr int kInputOff = 1;
constexpr int kInputOn = 2;
constexpr int kSettingLow = 3;
constexpr int kSettingHigh = 4;
constexpr int kCounterUp = 1;
constexpr int kCounterDown = 2;
constexpr int kClrUp = 3;
constexpr int kClrDown = 4;
constexpr int kResetUp = 1;
constexpr int kResetDown = 2;

// Both kinds of pin stand on one centre line.
constexpr double kSwitchWidth = 450;
constexpr double kLedWidth = 225;

constexpr std::string_view kInputTip = "IO端子接続 入力ディップ・スイッチ";
constexpr std::string_view kOutputTip = "IO端子接続 LED(緑）";

void picPI_Click(int i) {
  PictureBox& pin = frmHard->picPI(i);
  if (!pin.Tag.get().starts_with('I')) return;  // an output has no switch
  int byte = i / 8;
  int bit = i % 8;
  if (byte > 7 && ioBoardMode == 7) {
    // The twelve counter bits take the low end of the word: the four switches answer at its top.
    byte = 9;
    bit += 4;
  }
  const bool on = !(pin.Tag == "I1");
  pin.Picture = frmHard->ilsDIP1.image(on ? kInputOn : kInputOff);
  pin.Tag = on ? "I1" : "I0";
  const auto mask = static_cast<std::uint8_t>(1 << bit);
  if (on) {
    boardDi[byte] |= mask;
  } else {
    boardDi[byte] &= static_cast<std::uint8_t>(~mask);
  }
}

/// Twelve bits of board 5's counter show in its DI word, above them four switches.
void mirrorIoCounter() {
  boardDi[8] = boardCounters[kIoCounterByte];
  boardDi[9] = static_cast<std::uint8_t>((boardCounters[kIoCounterByte + 1] & 0x0F) | (boardDi[9] & 0xF0));
}

void clearIoCounter() {
  boardCounters[kIoCounterByte] = 0;
  boardCounters[kIoCounterByte + 1] = 0;
  mirrorIoCounter();
}

void picCounter_MouseDown(int i) {
  frmHard->picCounter(i).Picture = frmHard->ilsCount.image(kCounterDown);
  if (i == kIoCounterClear && ioBoardCounterMode == 0) clearIoCounter();
}

void picCounter_MouseUp(int i) {
  frmHard->picCounter(i).Picture = frmHard->ilsCount.image(kCounterUp);
  if (i > kIoCounter) return;
  // 16 bits, over both bytes.
  if (++boardCounters[2 * i] == 0) ++boardCounters[2 * i + 1];
  if (i == kIoCounter) mirrorIoCounter();
}

void picCLR_DblClick(int i) {
  frmHard->picCLR(i).Picture = frmHard->ilsCount.image(kClrDown);
  const int board = i + 1;
  if (board == kIoBoard) {
    ioBoardClrHeld = kTrue;
    ioBoardDo = 0;
    driveIoBoardOutputs();
  } else {
    boardClrHeld[board] = kTrue;
    boardDo[board] = 0;
    driveBoardOutputs(board);
  }
}

void picCLR_MouseUp(int i) {
  frmHard->picCLR(i).Picture = frmHard->ilsCount.image(kClrUp);
  const int board = i + 1;
  (board == kIoBoard ? ioBoardClrHeld : boardClrHeld[board]) = kFalse;
}

void resetCenter() {
  continuousScanActive = kFalse;
  oneShotScanActive = kFalse;
  currentStation = 0;
  frmHard->picScanLed.Picture = frmHard->ilsLED_G.image(1);
  frmHard->picScanLed.Tag = "0";
  resetCenterRegisters();
  // The hardware comes up in full duplex whatever the jumper says: half's 3 does not survive this button.
  chipMemory[kBcrLow] = kBcrResetFull;
}

void picReset_DblClick(int i) {
  frmHard->picReset(i).Picture = frmHard->ilsRESET.image(kResetDown);
  if (i == 0) {
    resetCenter();
  } else if (i == kIoBoard) {
    ioBoardResetHeld = kTrue;
    ioBoardDo = 0;
    clearIoCounter();
    driveIoBoardOutputs();
    frmHard->picB1_LED(kIoBoard).Picture = frmHard->ilsLED_R.image(1);
  } else {
    boardResetHeld[i] = kTrue;
    boardDo[i] = 0;
    driveBoardOutputs(i);
  }
}

void picReset_MouseUp(int i) {
  frmHard->picReset(i).Picture = frmHard->ilsRESET.image(kResetUp);
  if (i == kIoBoard) {
    ioBoardResetHeld = kFalse;
  } else if (i != 0) {
    boardResetHeld[i] = kFalse;
  }
}

void turnSettingSwitch(PictureBox& input) {
  const bool high = !(input.Tag == "1");
  input.Picture = frmHard->ilsDIP1.image(high ? kSettingHigh : kSettingLow);
  input.Tag = high ? "1" : "0";
}

struct Offset {
  double top;
  double left;
};

void moveBesideBoard(Form& form, const Offset& place) {
  form.move(frmHard->Left + place.left, frmHard->Top + place.top);
  form.keepOnScreen();
}

// Twips from the panel's corner, beside the board. Index: picSDI.
constexpr std::array<Offset, 4> kSerialEditorPlaces = {{{2800, 7500}, {2800, 12600}, {5900, 7500}, {5900, 12600}}};

/// The word is four hexadecimal digits, high byte first; of a shorter text the missing digits count as none.
void sendSerialWord(int i, const std::string& digits) {
  frmHard->picSE(i).Picture = frmHard->ilsLED_G.image(2);
  serialPending[i] = kTrue;
  const std::string high = digits.substr(0, 2);
  const std::string low = digits.substr(high.size(), 2);
  serialData[2 * i + 1] = static_cast<std::uint8_t>(hexValue(high));
  serialData[2 * i] = static_cast<std::uint8_t>(hexValue(low));
}

void picSDI_DblClick(int i) {
  if (serialPending[i] == kTrue) {
    showMessage("SEがローレベル(LED点灯)中は入力できません。");
    return;
  }
  serialEditBoard = static_cast<std::int16_t>(i);
  FrmEditSerial& dialog = *frmEditSerial;
  dialog.lblAdr.Caption = std::to_string(i + 1);
  dialog.lblSECaution.Visible = false;
  if (frmMessage.visible()) frmMessage->hide();
  moveBesideBoard(dialog, kSerialEditorPlaces[static_cast<std::size_t>(i)]);
  dialog.show(ShowMode::Modal, frmMDI.get());
  frmHard->picSerialInt(i).Visible = false;
  if (dialog.cancelled == kFalse) sendSerialWord(i, dialog.enteredValue);
}

/// Picks the explanation of what a board's two setting switches, 0 to 4, mean together. Untouched ones mean nothing.
void showStbPicture(int board) {
  const auto is = [board](std::string_view ssa, std::string_view ssb) {
    return frmHard->picSSA(board).Tag == ssa && frmHard->picSSB(board).Tag == ssb;
  };
  const int image = is("0", "0") ? 1 : is("1", "0") ? 2 : is("0", "1") ? 3 : is("1", "1") ? 4 : 0;
  frmOsiro->initPicture(image);
}

// Twips from the panel's corner, beside the board; the last one serves all other boards.
constexpr std::array<Offset, 5> kExplanationPlaces = {
    {{4000, 7900}, {4000, 13300}, {7100, 7900}, {7100, 13300}, {9000, 7900}}};

void explainStb(int board) {
  moveBesideBoard(*frmOsiro, kExplanationPlaces[static_cast<std::size_t>(std::min(board, 4))]);
  showStbPicture(board);
  if (!frmOsiro.visible()) frmOsiro->show(ShowMode::Modeless, frmMDI.get());
}

void picSSA_DblClick(int i) {
  turnSettingSwitch(frmHard->picSSA(i));
  explainStb(i);
}

void picSSB_DblClick(int i) {
  turnSettingSwitch(frmHard->picSSB(i));
  explainStb(i);
}

void setPin(PictureBox& pin, char kind) {
  // A pin that the mode does not have is only hidden: its Tag stays as it was.
  pin.Visible = kind != '*';
  if (kind == '*') return;
  const bool input = kind == 'I';
  pin.Picture = input ? frmHard->ilsDIP1.image(kInputOff) : frmHard->ilsLED_G.image(1);
  pin.Left = input ? 240 : 352;
  pin.Width = input ? kSwitchWidth : kLedWidth;
  pin.Tag = input ? "I0" : "O0";
  pin.ToolTipText = input ? kInputTip : kOutputTip;
}

void setPinPattern(std::string_view pattern, bool pwm) {
  for (int i = 0; i < kIoPins; ++i)
    setPin(frmHard->picPI(kFirstIoPin + i), pattern[static_cast<std::size_t>(15 - i)]);
  boardDi[8] = 0;
  boardDi[9] = 0;
  for (int i = 0; i < 4; ++i) {
    frmHard->lblPWMTitle(i).Visible = pwm;
    frmHard->picCW(i).Visible = pwm;
  }
  if (pwm && ioBoardMode == 6) {
    frmHard->timMotor.Enabled = false;
    frmHard->imgBelt.Picture = frmHard->ilsMotor.image(4);
    frmHard->picTriangle.Visible = false;
  } else if (pwm) {
    frmHard->timMotor.Enabled = true;
    frmHard->timMotor.Interval = 100;
    frmHard->imgBelt.Picture = frmHard->ilsMotor.image(1);
    frmHard->picTriangle.Visible = true;
    mirrorIoCounter();
  } else {
    frmHard->timMotor.Enabled = false;
  }
  frmHard->picBoard(6).Visible = pwm;
  frmHard->picPWMBridge.Visible = pwm;
  frmHard->fraCounter(4).Visible = pwm && ioBoardMode == 7;
  // The PWM pins use these terminals.
  frmHard->picSSA(4).Visible = !pwm;
  frmHard->picSSB(4).Visible = !pwm;
  frmHard->lblPWMSSA(0).Visible = !pwm;
  frmHard->lblPWMSSA(1).Visible = !pwm;
  frmHard->picSTB(9).Visible = !pwm;
  frmHard->lblSTB2.Visible = !pwm;
  drivePwm();
}

void timSE_Timer() {
  for (PictureBox& line : frmHard->picSerialInt) {
    int seconds = std::atoi(line.Tag.get().c_str());
    if (seconds > 0) {
      --seconds;
      if (seconds == 0) {
        line.Visible = false;
        frmHard->picSE(line.index()).Picture = frmHard->ilsLED_G.image(2);
      }
    }
    line.Tag = std::to_string(seconds);
  }
  frmHard->picSerialInt(serialEditBoard).Visible = false;
  frmHard->timSE.Enabled = false;
}

}  // namespace

void setIOMode() {
  const bool known = ioBoardMode >= 0 && ioBoardMode < static_cast<int>(kIoModes.size());
  frmHard->picIOS.Picture = frmHard->ilsDIP3.image(ioBoardMode + 1);
  if (ioBoardMode == 7) frmHard->fraCounter(4).Visible = true;
  const IoMode& mode = kIoModes[known ? static_cast<std::size_t>(ioBoardMode) : 0];
  setPinPattern(mode.pattern, mode.pwm);
  frmHard->setFormWidth();
}

void attachPins(FrmHard& panel) {
  const auto show = [](auto& pictures, const ImageList& list, int image) {
    for (auto& picture : pictures)
      picture.Picture = list.image(image);
  };
  show(panel.picCounter, panel.ilsCount, kCounterUp);
  show(panel.picCLR, panel.ilsCount, kClrUp);
  show(panel.picReset, panel.ilsRESET, kResetUp);
  show(panel.picSSA, panel.ilsDIP1, kSettingLow);
  show(panel.picSSB, panel.ilsDIP1, kSettingLow);
  show(panel.picPO, panel.ilsLED_G, 1);
  show(panel.picSE, panel.ilsLED_G, 1);
  show(panel.picPower, panel.ilsLED_G, 1);
  show(panel.picChkLED, panel.ilsLED_R, 1);
  show(panel.picB1_LED, panel.ilsLED_R, 1);
  panel.picScanLed.Picture = panel.ilsLED_G.image(1);
  panel.picBPSS.Picture = panel.ilsDIP1.image(kSettingLow);

  panel.picPI.on(&Control::onClick, picPI_Click);
  panel.picCounter.on(&Control::onMouseDown, picCounter_MouseDown);
  panel.picCounter.on(&Control::onMouseUp, picCounter_MouseUp);
  panel.picCLR.on(&Control::onDblClick, picCLR_DblClick);
  panel.picCLR.on(&Control::onMouseUp, picCLR_MouseUp);
  panel.picReset.on(&Control::onDblClick, picReset_DblClick);
  panel.picReset.on(&Control::onMouseUp, picReset_MouseUp);
  panel.picSSA.on(&Control::onDblClick, picSSA_DblClick);
  panel.picSSB.on(&Control::onDblClick, picSSB_DblClick);
  panel.picSTB.on(&Control::onDblClick, [](int i) { explainStb(i / 2); });
  panel.picQVT.on(&Control::onDblClick, [](int i) { frmKAIROZU->setKAIROZU(i); });
  panel.picPWM.onDblClick = [] { frmKAIROZU->setKAIROZU(5); };
  panel.picSDI.on(&Control::onDblClick, picSDI_DblClick);
  panel.timMotor.onTimer = turnBelt;
  panel.timSE.onTimer = timSE_Timer;
  panel.timSE.Enabled = false;
  panel.timSE.Interval = 1000;

  for (const int slave : {2, 4, 6})
    panel.picBoard(slave).Visible = false;
  for (PictureBox& bridge : panel.picBridge)
    bridge.Visible = false;
  for (PictureBox& line : panel.picSerialInt)
    line.Visible = false;
  for (PictureBox& resistor : panel.picTermR)
    resistor.Visible = false;
  for (Label& label : panel.lblRt)
    label.Visible = false;
  panel.picPWMBridge.Visible = false;
  panel.picInt.Visible = false;
}

void initIntPicture() {
  frmHard->picInt.Picture = frmHard->ilsInt.image(1);
}

void initSwitches() {
  for (PictureBox& pin : frmHard->picPI) {
    pin.Tag = "I0";
    pin.Picture = frmHard->ilsDIP1.image(kInputOff);
  }
  // No Tag is set: a switch that nobody has touched is told from one that is low.
  for (int i = 0; i < 4; ++i) {
    frmHard->picSSA(i).Picture = frmHard->ilsDIP1.image(kSettingLow);
    frmHard->picSSB(i).Picture = frmHard->ilsDIP1.image(kSettingLow);
  }
}

}  // namespace zelvs
