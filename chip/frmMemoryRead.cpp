#include "chip/frmMemoryRead.h"

#include <string>

#include "bench/frmHard.h"
#include "dialogs/beep.h"
#include "dialogs/frmMessage.h"
#include "dialogs/messages.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/desk.h"
#include "ui/hexField.h"

namespace zelvs {

namespace {

constexpr int kAddressDigits = 3;
constexpr double kWidth = 4995;
constexpr double kHeight = 1905;

/// A "?" marks a digit that has still to be typed.
bool isAddress(const std::string& text) {
  return text.find('?') == std::string::npos && text.size() == kAddressDigits && hexValue(text) < kChipMemorySize;
}

}  // namespace

FrmMemoryRead::FrmMemoryRead() : Form("frmMemoryRead", kKind, Border::Fixed) {
  constexpr double kMargin = 180;
  constexpr double kFirstRow = 195;
  constexpr double kSecondRow = 735;
  constexpr double kLabelHeight = 255;
  Caption = "Memory Read";
  const auto place = [](Label& label, std::string_view text, double left, double top, double width) {
    label.Caption = text;
    label.FontSize = 10;
    label.move(left, top, width, kLabelHeight);
  };
  place(Label1(1), "Address", kMargin, kFirstRow, 900);
  txtAddress.FontSize = 12;
  txtAddress.move(kMargin + 900, 135, 780, 375);
  cmdAction(0).Caption = "Read";
  cmdAction(1).Caption = "Close";
  for (CommandButton& button : cmdAction) {
    constexpr double kButtonWidth = 1125;
    constexpr double kGap = 135;
    const double fromRight = kMargin + (2 - button.index()) * kButtonWidth + (1 - button.index()) * kGap;
    button.move(kWidth - fromRight, 135, kButtonWidth, 375);
  }
  cmdAction(0).Default = true;
  place(Label1(0), "Readed Address", kMargin, kSecondRow, 1500);
  place(lblAdr, "", 1680, kSecondRow - 30, 780);
  place(lblBitInd, "bit 7-0", 2730, kSecondRow, 900);
  place(lblData, "", 3690, kSecondRow - 30, 600);
  for (Label* shown : {&lblAdr, &lblData}) {
    shown->FontSize = 12;
    shown->FontBold = true;
    shown->Height = kLabelHeight + 45;
  }
  place(lblGuide, "", kMargin, 1215, kWidth - 2 * kMargin);
  lblGuide.FontSize = 9;

  attachHexField(txtAddress, {kAddressDigits, true, EnterKey::Ignored});
  cmdAction(0).onClick = [this] { read(); };
  cmdAction(1).onClick = [this] { finish(); };
}

void FrmMemoryRead::load() {
  initReadMemory();
}

void FrmMemoryRead::initReadMemory() {
  Width = kWidth;
  Height = kHeight;
  // Whether hazard protect is on is not told here: the only guide is that of the last read.
  lblGuide.Caption = "";
  lblAdr.Caption = "???H";
  lblData.Caption = "??";
  askForAddress();
}

void FrmMemoryRead::askForAddress() {
  txtAddress.Text = "???";
  txtAddress.SelStart = 0;
}

void FrmMemoryRead::read() {
  const std::string address = txtAddress.Text;
  if (!isAddress(address)) {
    playBeep();
    desk().focus(&txtAddress);
    return;
  }
  const ByteRead byte = readByte(static_cast<int>(hexValue(address)), buffer_);
  lblGuide.Caption = wordsOf(byte.source);
  lblData.Caption = hexText(byte.value, 2);
  lblAdr.Caption = address + "H";
  askForAddress();
}

void FrmMemoryRead::finish() {
  desk().focus(&txtAddress);
  hide();
}

bool FrmMemoryRead::queryUnload(bool byUser) {
  if (!byUser) return true;
  finish();
  return false;
}

void openMemoryRead() {
  if (wideBus()) {
    showMessage("８ビットバス選択時のみ機能します");
    return;
  }
  frmMemoryRead->move(frmHard->Left + 1800, frmHard->Top + 2500);
  frmMemoryRead->keepOnScreen();
  if (frmMessage.visible()) frmMessage->hide();
  frmMemoryRead->show(ShowMode::Modeless, desk().frame());
  desk().focus(&frmMemoryRead->txtAddress);
}

}  // namespace zelvs
