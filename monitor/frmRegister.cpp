#include "monitor/frmRegister.h"

#include <array>
#include <string>
#include <string_view>

#include "bench/ilsMouse.h"
#include "chip/bus.h"
#include "chip/frmEditRegister.h"
#include "dialogs/frmMessage.h"
#include "dialogs/messages.h"
#include "monitor/frmHint.h"
#include "monitor/windowRefresh.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/desk.h"
#include "ui/platform.h"
#include "ui/tagCountdown.h"

namespace zelvs {

namespace {

/// Index: row. Row 0 is the heading, row 9 has no function.
constexpr std::array<std::string_view, 10> kNames = {"Reg.",  "SCR",  "SSR",  "HPR", "INT0R",
                                                     "INT1R", "C1CR", "C2CR", "BCR", "CC"};
constexpr int kSsrRow = 2;

std::string_view nameOfRow(int row) {
  return kNames[static_cast<std::size_t>(row)];
}

/// Even; row 1 to 8.
int addressOfRow(int row) {
  return kScrLow + 2 * (row - 1);
}

constexpr double kRowHeight = 270;
constexpr double kFirstRow = 360;
constexpr double kFormHeight = 2820;  // the caption bar and eight rows: the ninth stays out of sight
constexpr double kFormWidth = 4470;

constexpr double kValueHighLeft = 120;
constexpr double kValueLowLeft = 345;
constexpr double kNameLeft = 690;
constexpr double kBinaryHighLeft = 1410;
constexpr double kBinaryLowLeft = 2760;
constexpr double kValueWidth = 225;
constexpr double kNameWidth = 660;
constexpr double kBinaryHighWidth = 1320;
constexpr double kBinaryLowWidth = 1230;

constexpr std::string_view kRedSeconds = "4";

void showChanged(Label& value, Label& binary) {
  value.Tag = kRedSeconds;
  value.ForeColor = kRed;
  binary.ForeColor = kRed;
}

void fade(Label& value, Label& binary) {
  if (!countDown(value.Tag)) return;
  value.ForeColor = kBlack;
  binary.ForeColor = kBlack;
}

void timRegister_Timer() {
  for (int row = 1; row <= kRegisterRows; ++row) {
    fade(frmRegister->lblValH(row), frmRegister->lblBinH(row));
    fade(frmRegister->lblValL(row), frmRegister->lblBinL(row));
  }
}

}  // namespace

FrmRegister::FrmRegister() : Form("frmRegister", kKind, Border::Fixed) {
  Caption = "Register Window";
  Width = kFormWidth;
  Height = kFormHeight;
  BackColor = kWhite;
  const auto place = [](Label& label, std::string_view text, double left, double top, double width) {
    label.Caption = text;
    label.FontSize = 10;
    label.move(left, top, width, kRowHeight);
  };
  place(lblVal, "Val.", kValueHighLeft, 60, 2 * kValueWidth);
  place(lblReg(0), nameOfRow(0), kNameLeft, 60, kNameWidth);
  place(lblBin, "15---------7-------0", kBinaryHighLeft, 60, kBinaryHighWidth + kBinaryLowWidth);
  for (int row = 1; row <= 9; ++row) {
    const double top = kFirstRow + (row - 1) * kRowHeight;
    place(lblValH(row), "00", kValueHighLeft, top, kValueWidth);
    place(lblValL(row), "00", kValueLowLeft, top, kValueWidth);
    place(lblReg(row), nameOfRow(row), kNameLeft, top, kNameWidth);
    place(lblBinH(row), " 0000_0000", kBinaryHighLeft, top, kBinaryHighWidth);
    place(lblBinL(row), "0000_0000", kBinaryLowLeft, top, kBinaryLowWidth);
  }
  for (int row = 1; row <= kRegisterRows; ++row) {
    const auto opens = [this, row](int cell) {
      return [this, row, cell] { openRegisterEditor(*this, nameOfRow(row), row, cell); };
    };
    lblValH(row).onDblClick = lblBinH(row).onDblClick = opens(0);
    lblValL(row).onDblClick = lblBinL(row).onDblClick = opens(1);
  }
  timRegister.onTimer = timRegister_Timer;
}

void FrmRegister::load() {
  move(kRegisterPlace.left, kRegisterPlace.top);
  for (int row = 1; row <= 9; ++row) {
    for (Label* cell : {&lblValH(row), &lblValL(row), &lblBinH(row), &lblBinL(row)})
      setPointer(*cell, kDoubleClickPointer);
  }
  timRegister.Interval = 1000;
}

std::string regAddressText(std::string_view name) {
  for (int row = 1; row <= kRegisterRows; ++row) {
    if (nameOfRow(row) == name) return hexText(static_cast<unsigned>(addressOfRow(row)), 3);
  }
  return {};
}

void openRegisterWindow() {
  const bool back = !frmRegister.visible();
  frmRegister->show(ShowMode::Modeless, desk().frame());
  frmRegister->bringToFront();
  if (back) refreshRegisterWindow();
}

void openRegisterEditor(FrmRegister& form, std::string_view name, int row, int cell) {
  const int address = addressOfRow(row);
  if (const Answer answer = askWrite(address); answer != Answer::Ok) {
    showMessage(wordsOf(answer));
    return;
  }
  selectHintTab(name);
  FrmEditRegister& dialog = *frmEditRegister;
  const double cellBottom = form.lblValH(row).Top + 2 * form.lblValH(row).Height;
  // Counted as for a child of the frame, which this window once was: it opens that much below its row.
  dialog.move(form.Left, desk().frame()->clientAreaTop() + form.Top + kCaptionHeight + cellBottom);
  dialog.editRegisterName = name;
  dialog.editRegisterAddress = static_cast<std::int16_t>(address);
  dialog.editRow = static_cast<std::int16_t>(row);
  dialog.editLowByte = static_cast<std::int16_t>(cell);
  dialog.cells = {{&form.lblValH(row), &form.lblBinH(row)}, {&form.lblValL(row), &form.lblBinL(row)}};
  dialog.onWritten = refreshWindows;
  dialog.chooseAccess();
  if (frmMessage.visible()) frmMessage->hide();
  dialog.show(ShowMode::Modal, desk().frame());
}

void refreshRegisterWindow() {
  if (!frmRegister.visible()) return;
  for (int row = 1; row <= kRegisterRows; ++row) {
    const int address = addressOfRow(row);
    const std::uint8_t low = chipMemory[address];
    const std::uint8_t high = chipMemory[address + 1];
    frmRegister->lblValL(row).Caption = hexText(low, 2);
    frmRegister->lblValH(row).Caption = hexText(high, 2);
    frmRegister->lblBinL(row).Caption = binaryText(low);
    frmRegister->lblBinH(row).Caption = " " + binaryText(high);
    if (registerHighShown[row] != high) {
      showChanged(frmRegister->lblValH(row), frmRegister->lblBinH(row));
      registerHighShown[row] = high;
    }
    // SSR's low byte counts as the scan runs: it would never be black again.
    if (registerLowShown[row] != low && row != kSsrRow) {
      showChanged(frmRegister->lblValL(row), frmRegister->lblBinL(row));
      registerLowShown[row] = low;
    }
  }
}

}  // namespace zelvs
