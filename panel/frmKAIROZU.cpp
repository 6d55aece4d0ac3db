#include "panel/frmKAIROZU.h"

#include <string>

#include "bench/frmHard.h"
#include "monitor/frmDumpSel.h"
#include "state/state.h"
#include "ui/platform.h"
#include "ui/runTimeError.h"

namespace zelvs {

namespace {

/// File names in the folder of schematics; an empty overlay means none.
struct Schematic {
  std::string main;
  std::string overlay;
};

bool jumpersFullDuplex() {
  return boardFullHalf == kBcrFullDuplex;
}

Schematic ofCenter() {
  return {std::string("QVT60_") + (jumpersFullDuplex() ? "FULL_" : "HALF_") + (wideBus() ? "16BIT.BMP" : "8BIT.BMP"),
          {}};
}

Schematic ofMaster(int board) {
  const bool slave = isOn(frmHard->picBoard(board + 1));
  return {slave ? "QVT40_FULL_NEST.BMP" : "QVT40_FULL.BMP", jumpersFullDuplex() ? "" : "Qvt40_add_half.bmp"};
}

Schematic ofIoBoard() {
  return {"QVT50_IOS_" + std::to_string(ioBoardMode) + ".BMP", jumpersFullDuplex() ? "" : "Qvt50_add_half.bmp"};
}

Schematic schematicOf(int board) {
  switch (board) {
    case 0:
      return ofCenter();
    case 1:
    case 3:
      return ofMaster(board);
    case 2:
    case 4:
      return {"QVT40_NEST.BMP", {}};
    case 5:
    case 6:
      return ofIoBoard();
    default:
      return {};
  }
}

Picture pictureNamed(const std::string& name) {
  return name.empty() ? Picture{} : loadPicture(programFolder + "/Kairozu/" + name);
}

}  // namespace

FrmKAIROZU::FrmKAIROZU() : Form("frmKAIROZU", kKind, Border::Fixed) {
  Caption = "回路図";
  BackColor = kWhite;
  picKAIROZU.AutoSize = true;
  picHalf.AutoSize = true;
  picHalf.Visible = false;
  picKAIROZU.onResize = [this] {
    Width = picKAIROZU.Width.get();
    Height = picKAIROZU.Height + kCaptionHeight;
  };
}

void FrmKAIROZU::setKAIROZU(int index) {
  const Schematic schematic = schematicOf(index);
  const Deed deed("showing the schematic", schematic.main);
  picKAIROZU.Left = 0;
  picKAIROZU.Top = 0;
  picKAIROZU.Picture = pictureNamed(schematic.main);
  picHalf.Visible = !schematic.overlay.empty();
  if (picHalf.Visible) {
    picHalf.Picture = pictureNamed(schematic.overlay);
    picHalf.Left = 0;
    picHalf.Top = 0;
  }
  kairozuCurrent = static_cast<std::int16_t>(index);
  move(10050, 0);
  const bool opened = !visible();
  show();
  bringToFront();
  if (opened) reveal();
}

void FrmKAIROZU::activated() {
  hideDumpSel();
}

void changeKAIROZU(int index) {
  if (frmKAIROZU.visible() && kairozuCurrent == index) frmKAIROZU->setKAIROZU(index);
}

}  // namespace zelvs
