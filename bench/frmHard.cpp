#include "bench/frmHard.h"

#include "bench/layout.h"

namespace zelvs {

namespace {

constexpr double kPanelHeight = 14700;
constexpr Colour kTable = 0xB8C4C8;

}  // namespace

FrmHard::FrmHard() : Form("frmHard", kKind, Border::Fixed) {
  Caption = "HardWare";
  BackColor = kTable;
  setUnit(kTwipsPerPixel);
  Width = kNarrowPanel;
  Height = kPanelHeight;
  layOutPanel(*this);
}

void FrmHard::load() {
  constexpr double kShadowOffset = 5;
  for (Shape& shadow : picShadow) {
    const PictureBox& board = picBoard(shadow.index());
    shadow.move(board.Left + kShadowOffset, board.Top + kShadowOffset, board.Width, board.Height);
    shadow.sendToBack();
  }
  if (onLoad) onLoad();
}

void FrmHard::activated() {
  showShadows();
  if (onActivate) onActivate();
}

void FrmHard::showShadows() {
  for (Shape& shadow : picShadow)
    shadow.Visible = picBoard(shadow.index()).Visible;
}

}  // namespace zelvs
