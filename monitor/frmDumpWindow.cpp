#include "monitor/frmDumpWindow.h"

#include <string>

#include "bench/ilsMouse.h"
#include "chip/bus.h"
#include "dialogs/messages.h"
#include "monitor/frmDumpSel.h"
#include "monitor/frmHint.h"
#include "monitor/mduAPI.h"
#include "monitor/mduMemoryWindow.h"
#include "state/cellAddress.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/platform.h"
#include "ui/tagCountdown.h"

namespace zelvs {

namespace {

constexpr int kDRC = 2;

// Places in twips. The two columns of the layouts are set in mduMemoryWindow.
constexpr double kRowHeight = 225;
constexpr double kHexLeft = 300;
constexpr double kAreaTop = 600;
constexpr double kHeadingTop = 165;
constexpr double kFirstRow = 390;
constexpr double kBelowRows = 45;
constexpr double kBelowArea = 75;
constexpr double kCellWidth = 210;
constexpr double kLetterWidth = 105;
constexpr double kAsciiFirst = 150;
constexpr double kAsciiWidth = kAsciiFirst + kDumpColumns * kLetterWidth + 90;
constexpr double kCellFont = 10.5;  // two letters fill a cell
constexpr double kTextFont = 9;

constexpr Colour kPaper = 0xFCFFFF;
constexpr Colour kHeadingText = 0x7A5A3C;

constexpr std::string_view kPointingNoAddress = " Pointing Address = ---- ------ : --";
constexpr std::string_view kPointingNoSA = " Pointing SA = --- ----";

std::string lastOf(const std::string& text, std::size_t count) {
  return text.substr(text.size() - count);
}

void openEditorAt(FrmDump& form, const PictureBox& area, const Label& cell) {
  openMemoryEditor(form, form.lblAdr(0).Caption.get(), cell.index(), area.Left + cell.Left + form.Left);
}

int addressOf(const FrmDump& form, int cell) {
  return addressOfCell(form.lblAdr(0).Caption.get(), cell);
}

void lblData_DblClick(FrmDump& form, int cell) {
  const int index = indexOfAddress(addressOf(form, cell));
  if (const Answer answer = askWrite(index); answer != Answer::Ok) {
    showMessage(wordsOf(answer));
    return;
  }
  if (index < kDoArea) selectControlWordHint();
  openEditorAt(form, form.Picture1, form.lblData(cell));
}

void cmbBit_Click(FrmDump& form, int index) {
  form.piMode = static_cast<std::int16_t>(index);
  // The headings stay those of the CPU type's own layout.
  if (index == 0) {
    layoutBytes(form);
  } else {
    layoutWords(form);
  }
  refreshDumpWindow(form.window());
}

void pointNowhere(FrmDump& form) {
  form.lblPointAddress.Caption = kPointingNoAddress;
  form.lblPointSA.Caption = kPointingNoSA;
}

void timColor_Timer(FrmDump& form) {
  for (Label& cell : form.lblData) {
    if (!countDown(cell.Tag)) continue;
    cell.ForeColor = kBlack;
    form.lblASC(cell.index()).ForeColor = kBlack;  // whose own Tag counts nothing
  }
}

}  // namespace

FrmDump::FrmDump(int window)
    : Form(kDumpWindows[static_cast<std::size_t>(window)].form, FormKind::Child, Border::Fixed), window_(window) {
  addMember("piMode", &piMode);
  Caption = area().title;
  placeControls();
  for (int row = 0; row * kDumpColumns < area().count; ++row)
    placeRow(row);
  attachHandlers();
}

void FrmDump::placeControls() {
  const auto text = [](Label& label, std::string_view caption, double left, double top, double width) {
    label.Caption = caption;
    label.FontSize = kTextFont;
    label.move(left, top, width, kRowHeight);
  };
  const int rows = area().count / kDumpColumns;
  const double areaHeight = kFirstRow + rows * kRowHeight + kBelowRows;
  Height = kCaptionHeight + kAreaTop + areaHeight + kBelowArea;

  text(lblCPUType, "CPU Type", kHexLeft + 60, 60, 1650);
  lblCPUType.FontBold = true;
  for (PictureBox& button : cmbBit) {
    button.Picture = ilsBit.image(button.index() + 1);
    button.Transparent = true;
    button.move(2100 + button.index() * 645, 45, 600, 240);
  }
  cmbBit(0).ToolTipText = "Byte";
  cmbBit(1).ToolTipText = "Word";
  chkTopMost.Caption = "常に手前に表示";
  chkTopMost.FontSize = kTextFont;
  chkTopMost.move(5100, 45, 1860, 255);
  text(lblPointAddress, "", kHexLeft - 30, 330, 3300);
  text(lblPointSA, "", kHexLeft + 3300, 330, 2220);

  for (PictureBox* box : {&Picture1, &Picture2}) {
    box->BackColor = kPaper;
    box->Bordered = true;
  }
  Picture1.move(kHexLeft, kAreaTop, 0, areaHeight);
  Picture2.move(0, kAreaTop, kAsciiWidth, areaHeight);
  for (PictureBox& mark : picInd) {
    constexpr int kRegionRows = kRegionBytes / kDumpColumns;
    mark.Picture = ilsRegion.image(area().firstRegion + mark.index());
    mark.Transparent = true;
    mark.move(45, kAreaTop + kFirstRow + mark.index() * kRegionRows * kRowHeight, 240, kRegionRows * kRowHeight);
  }

  lblTitle.placeIn(Picture1);
  text(lblTitle, "adr.", 60, kHeadingTop, 420);
  Label1.placeIn(Picture2);
  text(Label1, "Ascii Dump", kAsciiFirst, 15, 1200);
  Label1.Height = 180;
  // Six lines over one another: the long ones in the middle, so that the wedge has its point there.
  constexpr std::array<int, 6> kLineAt = {5, 3, 1, 2, 4, 6};
  for (std::size_t at = 0; at < kLineAt.size(); ++at) {
    for (Line* line : {&linLow(kLineAt[at]), &linHigh(kLineAt[at])}) {
      line->placeIn(Picture1);
      line->ForeColor = kHeadingText;
      line->Y1 = line->Y2 = 52.5 + kTwipsPerPixel * static_cast<double>(at);
    }
  }
  for (Label& heading : lblOff) {
    const bool hex = heading.index() < kDumpColumns;
    const int column = heading.index() % kDumpColumns;
    heading.placeIn(hex ? Picture1 : Picture2);
    heading.FontSize = kCellFont;
    heading.ForeColor = kHeadingText;
    heading.Caption = hex || column == 0 ? "-" + hexText(static_cast<unsigned>(column), 1)
                      : column == 8      ? "8"
                      : column == 15     ? "F"
                                         : ".";
    // "-0" stands with its digit over the first column.
    const double room = !hex && column > 0 ? kLetterWidth : kCellWidth;
    heading.move(kAsciiFirst + column * kLetterWidth - (room - kLetterWidth), kHeadingTop, room, kRowHeight);
  }
  lblTitle.ForeColor = kHeadingText;
  Label1.ForeColor = kHeadingText;
}

void FrmDump::placeRow(int row) {
  const double top = kFirstRow + row * kRowHeight;
  Label& address = lblAdr(row);
  address.placeIn(Picture1);
  address.Caption = hexText(static_cast<unsigned>(area().base / kDumpColumns + row), 2) + "x";
  address.FontSize = kCellFont;
  address.ForeColor = kHeadingText;
  address.move(75, top, 3 * kLetterWidth, kRowHeight);
  for (int column = 0; column < kDumpColumns; ++column) {
    const int cell = row * kDumpColumns + column;
    lblData(cell).placeIn(Picture1);
    lblData(cell).Caption = "00";
    lblData(cell).FontSize = kCellFont;
    lblData(cell).move(0, top, kCellWidth, kRowHeight);
    lblASC(cell).placeIn(Picture2);
    lblASC(cell).Caption = ".";
    lblASC(cell).FontSize = kCellFont;
    lblASC(cell).move(kAsciiFirst + column * kLetterWidth, top, kLetterWidth, kRowHeight);
  }
}

void FrmDump::attachHandlers() {
  for (Label& cell : lblData) {
    cell.onMouseMove = [&cell] { static_cast<FrmDump&>(cell.form()).setPointing(cell.index()); };
    cell.onDblClick = [&cell] { lblData_DblClick(static_cast<FrmDump&>(cell.form()), cell.index()); };
  }
  for (Label& cell : lblASC) {
    cell.onMouseMove = lblData(cell.index()).onMouseMove;
    // Never refused, scanning or not.
    cell.onDblClick = [this, &cell] { openEditorAt(*this, Picture2, cell); };
  }
  const auto nowhere = [this] { pointNowhere(*this); };
  Picture1.onMouseMove = nowhere;
  Picture2.onMouseMove = nowhere;
  // The headings lie outside the cells too.
  for (Label* heading : {&lblTitle, &Label1})
    heading->onMouseMove = nowhere;
  for (ControlArray<Label>* headings : {&lblOff, &lblAdr}) {
    for (Label& heading : *headings)
      heading.onMouseMove = nowhere;
  }
  for (PictureBox& button : cmbBit)
    button.onClick = [this, &button] { cmbBit_Click(*this, button.index()); };
  chkTopMost.onClick = [this] { chkTopMost_Click(); };
  timColor.onTimer = [this] { timColor_Timer(*this); };
}

void FrmDump::load() {
  for (ControlArray<Label>* cells : {&lblData, &lblASC}) {
    for (Label& cell : *cells)
      setPointer(cell, kDoubleClickPointer);
  }
  lblPointAddress.Caption = "";
  lblPointSA.Caption = "";
  layoutWords(*this);
  timColor.Interval = 1000;
}

void FrmDump::activated() {
  hideDumpSel();
  if (window_ == kDRC && chkTopMost.Value == 1) bringToFront();
}

void FrmDump::setPointing(int cellIndex) {
  constexpr int kBlockMask = 127;  // every block of 128 bytes holds a word for each station
  const int address = addressOf(*this, cellIndex);
  const std::string value = lblData(cellIndex).Caption;
  lblPointAddress.Caption = " Pointing Address = " + hexText(static_cast<unsigned>(address), 3) + "H (" +
                            lastOf("   " + std::to_string(address), 4) + ") : " + lastOf("00" + value, 2);
  const int station = (address & kBlockMask) / 2;
  lblPointSA.Caption = " Pointing SA = " + hexText(static_cast<unsigned>(station), 2) + "H  (" +
                       lastOf("00 " + std::to_string(station), 2) + ")";
}

void FrmDump::chkTopMost_Click() {
  setWindowFloating(*this, chkTopMost.Value == 1);
}

}  // namespace zelvs
