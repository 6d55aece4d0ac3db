// The boards' setting switches SSA, SSB and BPSS, and the explanation of the strobes that SSA and SSB shape.

#include <algorithm>
#include <array>
#include <string_view>

#include "bench/frmHard.h"
#include "panel/besideBoard.h"
#include "panel/frmOsiro.h"
#include "panel/panelParts.h"
#include "state/state.h"
#include "ui/desk.h"

namespace zelvs {

namespace {

void turn(PictureBox& input) {
  const bool high = !isOn(input);
  input.Picture = frmHard->ilsDIP1.image(high ? kSettingHigh : kSettingLow);
  input.Tag = high ? "1" : "0";
}

/// Picks the explanation of what a board's two setting switches, 0 to 4, mean together. Untouched ones mean nothing.
void showStbPicture(int board) {
  const auto is = [board](std::string_view ssa, std::string_view ssb) {
    return frmHard->picSSA(board).Tag == ssa && frmHard->picSSB(board).Tag == ssb;
  };
  const int image = is("0", "0") ? 1 : is("1", "0") ? 2 : is("0", "1") ? 3 : is("1", "1") ? 4 : 0;
  frmOsiro->initPicture(image);
}

// Index: board, from 0; the last one serves all other boards.
constexpr std::array<BesideBoard, 5> kExplanationPlaces = {
    {{4000, 7900}, {4000, 13300}, {7100, 7900}, {7100, 13300}, {9000, 7900}}};

void explainStb(int board) {
  moveBesideBoard(*frmOsiro, kExplanationPlaces[static_cast<std::size_t>(std::min(board, 4))]);
  showStbPicture(board);
  if (!frmOsiro.visible()) frmOsiro->show(ShowMode::Modeless, desk().frame());
}

void picSSA_DblClick(int i) {
  turn(frmHard->picSSA(i));
  explainStb(i);
}

void picSSB_DblClick(int i) {
  turn(frmHard->picSSB(i));
  explainStb(i);
}

/// Board 5's clock input: high takes one step off the clock of its list.
void picBPSS_DblClick() {
  constexpr int kIoBoardClock = 3;
  turn(frmHard->picBPSS);
  const bool high = isOn(frmHard->picBPSS);
  frmHard->lblPBPSS.Caption = high ? "BPSS-H" : "BPSS-L";
  if (high) {
    ++clockSetting[kIoBoardClock];
  } else if (clockSetting[kIoBoardClock] != 0) {
    --clockSetting[kIoBoardClock];
  }
}

}  // namespace

void attachSwitches(FrmHard& panel) {
  panel.picSSA.on(&Control::onDblClick, picSSA_DblClick);
  panel.picSSB.on(&Control::onDblClick, picSSB_DblClick);
  panel.picSTB.on(&Control::onDblClick, [](int strobe) { explainStb(strobe / 2); });
  panel.picBPSS.onDblClick = picBPSS_DblClick;
}

void initSwitches() {
  for (PictureBox& pin : frmHard->picPI) {
    pin.Tag = "I0";
    pin.Picture = frmHard->ilsDIP1.image(kInputOff);
  }
  // No Tag is set: a switch that nobody has touched is told from one that is low.
  for (int board = 0; board < 4; ++board) {
    frmHard->picSSA(board).Picture = frmHard->ilsDIP1.image(kSettingLow);
    frmHard->picSSB(board).Picture = frmHard->ilsDIP1.image(kSettingLow);
  }
}

}  // namespace zelvs
