#include "panel/frmHard.h"

#include "kernel/state.h"
#include "panel/panelSetup.h"

namespace zelvs {

namespace {

/// The right column of boards exists only when it has something to show.
constexpr double kNarrow = 7890;
constexpr double kWide = 13330;
constexpr double kPanelHeight = 14700;
constexpr Colour kTable = 0xB8C4C8;

void showShadows(FrmHard& panel) {
  for (Shape& shadow : panel.picShadow)
    shadow.Visible = panel.picBoard(shadow.index()).Visible;
}

}  // namespace

FrmHard::FrmHard() : Form("frmHard", kKind, Border::Fixed) {
  Caption = "HardWare";
  BackColor = kTable;
  setUnit(kTwipsPerPixel);
  Width = kNarrow;
  Height = kPanelHeight;
  layOutPanel(*this);
  attachLists(*this);
  attachCabling(*this);
  attachPins(*this);
}

void FrmHard::load() {
  constexpr double kShadowOffset = 5;
  for (Shape& shadow : picShadow) {
    const PictureBox& board = picBoard(shadow.index());
    shadow.move(board.Left + kShadowOffset, board.Top + kShadowOffset, board.Width, board.Height);
    shadow.sendToBack();
  }
  initIntPicture();
  initSwitches();
  initSACombo();
  initCPUCombo();
  initIOSCombo();
  initModeCombo();
  initCombo();
  applyDefaults();
  initMousePointers();
  setFormWidth();
}

void FrmHard::activated() {
  showShadows(*this);
  printRXDLabels();
}

void FrmHard::setFormWidth() {
  showShadows(*this);
  hide();
  const bool rightColumn = picBoard(2).Tag == "1" || picBoard(4).Tag == "1" || ioBoardMode > 5;
  Width = rightColumn ? kWide : kNarrow;
  show();
  chkSADup();
}

}  // namespace zelvs
