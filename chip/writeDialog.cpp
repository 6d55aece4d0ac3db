#include "chip/writeDialog.h"

#include "dialogs/messages.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/desk.h"
#include "ui/hexField.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

constexpr int kWordDigits = 4;
constexpr int kByteDigits = 2;

}  // namespace

WriteDialog::WriteDialog(std::string_view name, FormKind kind, EnterKey enterKey) : Form(name, kind, Border::Fixed) {
  constexpr double kMargin = 240;
  constexpr double kWidth = 4470;
  constexpr double kInside = 2190;
  constexpr double kButtonHeight = 375;
  Width = kWidth;
  Height = kInside + kCaptionHeight;

  lblAdr.FontSize = 12;
  lblAdr.FontBold = true;
  lblAdr.move(kMargin, 210, kWidth - 2 * kMargin, 300);
  lblBitInd.FontSize = 10;
  lblBitInd.move(kMargin, 660, 1770, 255);
  txtWriteData.FontSize = 16;
  txtWriteData.Text = "0000";
  txtWriteData.move(kMargin, 930, 1620, 480);

  fraAccess.Caption = "Access";
  fraAccess.move(2100, 600, kWidth - kMargin - 2100, 810);
  opnAccess(0).Caption = "Word";
  opnAccess(1).Caption = "Byte";
  for (OptionButton& option : opnAccess) {
    option.placeIn(fraAccess);
    option.FontSize = 10;
    option.move(180 + option.index() * 960, 330, 900, 330);
  }
  opnAccess(0).Value = true;

  cmdAction(0).Caption = "Write";
  cmdAction(1).Caption = "Cancel";
  for (CommandButton& button : cmdAction) {
    constexpr double kButtonWidth = 1215;
    constexpr double kGap = 150;
    const double fromRight = kMargin + (2 - button.index()) * kButtonWidth + (1 - button.index()) * kGap;
    button.move(kWidth - fromRight, kInside - kButtonHeight - 180, kButtonWidth, kButtonHeight);
  }
  cmdAction(0).Default = true;
  cmdAction(1).Cancel = true;

  attachHexField(txtWriteData, {kWordDigits, true, enterKey});
  for (OptionButton& option : opnAccess) {
    // The opener chooses before it has told all the rest.
    option.onClick = [this] {
      if (visible()) refresh();
    };
  }
  cmdAction(0).onClick = [this] { write(); };
  cmdAction(1).onClick = [this] { cancel(); };
}

void WriteDialog::chooseAccess() {
  opnAccess(0).Enabled = wideBus();
  opnAccess(wideBus() ? 0 : 1).Value = true;
}

void WriteDialog::showValue(unsigned value) {
  const int digits = wordAccess() ? kWordDigits : kByteDigits;
  txtWriteData.MaxLength = digits;
  txtWriteData.Text = hexText(value, digits);
  txtWriteData.SelStart = 0;
}

std::uint16_t WriteDialog::enteredWord() const {
  return static_cast<std::uint16_t>(hexValue(txtWriteData.Text.get()));
}

std::uint8_t WriteDialog::enteredByte() const {
  return static_cast<std::uint8_t>(hexValue(txtWriteData.Text.get()));
}

void WriteDialog::tell(Answer answer) {
  const std::string_view words = wordsOf(answer);
  if (toldInBox(answer)) {
    askDialog(words, DialogMode::OneButton, kWarningTitle);
  } else if (!words.empty()) {
    showMessageBeside(*this, words);
  }
}

void WriteDialog::activated() {
  refresh();
  desk().focus(&txtWriteData);
}

bool WriteDialog::queryUnload(bool byUser) {
  if (!byUser) return true;
  cancel();
  return false;
}

void WriteDialog::cancel() {
  unmark();
  hide();
}

}  // namespace zelvs
