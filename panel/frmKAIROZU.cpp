#include "panel/frmKAIROZU.h"

#include <set>

#include "bench/frmHard.h"
#include "bench/pinModes.h"
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

Schematic ofCenter(bool full, bool wide) {
  return {std::string("QVT60_") + (full ? "FULL_" : "HALF_") + (wide ? "16BIT.BMP" : "8BIT.BMP"), {}};
}

Schematic ofMaster(bool full, bool slave) {
  return {slave ? "QVT40_FULL_NEST.BMP" : "QVT40_FULL.BMP", full ? "" : "Qvt40_add_half.bmp"};
}

Schematic ofSlave() {
  return {"QVT40_NEST.BMP", {}};
}

Schematic ofIoBoard(bool full, int mode) {
  return {"QVT50_IOS_" + std::to_string(mode) + ".BMP", full ? "" : "Qvt50_add_half.bmp"};
}

Schematic schematicOf(int board) {
  const bool full = jumpersFullDuplex();
  switch (board) {
    case 0:
      return ofCenter(full, wideBus());
    case 1:
    case 3:
      return ofMaster(full, isOn(frmHard->picBoard(board + 1)));
    case 2:
    case 4:
      return ofSlave();
    case 5:
    case 6:
      return ofIoBoard(full, ioBoardMode);
    default:
      return {};
  }
}

Picture pictureNamed(const std::string& name) {
  return name.empty() ? Picture{} : loadPicture(schematicsFolder() + name);
}

}  // namespace

std::string schematicsFolder() {
  return programFolder + "/Kairozu/";
}

std::vector<std::string> schematicFiles() {
  std::vector<Schematic> all = {ofSlave()};
  for (const bool full : {false, true}) {
    for (const bool other : {false, true}) {
      all.push_back(ofCenter(full, other));
      all.push_back(ofMaster(full, other));
    }
    for (int mode = 0; mode < static_cast<int>(kIoModes.size()); ++mode)
      all.push_back(ofIoBoard(full, mode));
  }
  std::set<std::string> names;
  for (const Schematic& schematic : all)
    names.insert({schematic.main, schematic.overlay});
  names.erase("");
  return {names.begin(), names.end()};
}

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
