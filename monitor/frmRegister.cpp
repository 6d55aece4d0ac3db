#include "monitor/frmRegister.h"

#include <array>
#include <cstdlib>
#include <string>
#include <string_view>

#include "kernel/hexText.h"
#include "kernel/state.h"
#include "kernel/windowRefresh.h"
#include "shell/frmMDI.h"

namespace zelvs {

namespace {

constexpr std::array<std::string_view, 10> kRowNames = {"Reg.",  "SCR",  "SSR",  "HPR", "INT0R",
                                                        "INT1R", "C1CR", "C2CR", "BCR", "CC"};

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
  int seconds = std::atoi(value.Tag.get().c_str());
  if (seconds <= 0) return;
  --seconds;
  if (seconds == 0) {
    value.ForeColor = kBlack;
    binary.ForeColor = kBlack;
  }
  value.Tag = std::to_string(seconds);
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
  place(lblReg(0), kRowNames[0], kNameLeft, 60, kNameWidth);
  place(lblBin, "15---------7-------0", kBinaryHighLeft, 60, kBinaryHighWidth + kBinaryLowWidth);
  for (int row = 1; row <= 9; ++row) {
    const double top = kFirstRow + (row - 1) * kRowHeight;
    place(lblValH(row), "00", kValueHighLeft, top, kValueWidth);
    place(lblValL(row), "00", kValueLowLeft, top, kValueWidth);
    place(lblReg(row), kRowNames[static_cast<std::size_t>(row)], kNameLeft, top, kNameWidth);
    place(lblBinH(row), " 0000_0000", kBinaryHighLeft, top, kBinaryHighWidth);
    place(lblBinL(row), "0000_0000", kBinaryLowLeft, top, kBinaryLowWidth);
  }
  timRegister.onTimer = timRegister_Timer;
}

void FrmRegister::load() {
  for (int row = 1; row <= 9; ++row) {
    for (Label* cell : {&lblValH(row), &lblValL(row), &lblBinH(row), &lblBinL(row)}) {
      cell->MousePointer = kCustomPointer;
      cell->MouseIcon = frmMDI->ilsMouse.image(2);
    }
  }
  timRegister.Interval = 1000;
}

void refreshRegisterWindow() {
  if (!frmRegister.visible()) return;
  for (int row = 1; row <= kRegisterRows; ++row) {
    const int address = kScrLow + 2 * (row - 1);
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
    constexpr int kSsrRow = 2;
    if (registerLowShown[row] != low && row != kSsrRow) {
      showChanged(frmRegister->lblValL(row), frmRegister->lblBinL(row));
      registerLowShown[row] = low;
    }
  }
}

}  // namespace zelvs
