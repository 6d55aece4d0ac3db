#include "panel/frmEditSerial.h"

#include <array>
#include <string_view>

#include "bench/frmHard.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/desk.h"
#include "ui/hexField.h"

namespace zelvs {

namespace {

constexpr int kDigits = 4;

// The drawing, in its pixels. High lies above low.
constexpr double kDrawingWidth = 461;
constexpr double kDrawingHeight = 115;
constexpr double kBitWidth = 25;
constexpr double kHalfBit = kBitWidth / 2;
constexpr double kLabelTop = 2;

// Left edge of each bit's cell. Index: the bit; bit 15 stands at the left and leaves first.
constexpr std::array<double, 16> bitX = [] {
  std::array<double, 16> edges{};
  double x = 18;
  for (auto bit = edges.rbegin(); bit != edges.rend(); ++bit, x += kBitWidth)
    *bit = x;
  return edges;
}();

struct Trace {
  std::string_view name;
  double high;
  double low;
};
// Index: Label2.
constexpr std::array<Trace, 3> kTraces = {{{"SDI", 20, 45}, {"SCK", 50, 75}, {"SLD", 80, 105}}};
constexpr Trace kSdi = kTraces[0];
constexpr Trace kSck = kTraces[1];
constexpr Trace kSld = kTraces[2];

// The run: 15 pixels at a time, from where the drawing rests in the slit, in twips.
constexpr int kRunInterval = 100;
constexpr double kRunStep = 15 * kTwipsPerPixel;
constexpr double kRestingLeft = 120;

// What the form adds to the slit, caption bar included.
constexpr double kBesideSlit = 900;
constexpr double kAroundSlit = 1800;

constexpr Colour kPaper = 0xF4FDFF;
constexpr Colour kInstrument = 0x5A5048;
constexpr Colour kInstrumentRim = 0x3C342E;

/// Draws on from where the last line ended.
void lineTo(PictureBox& drawing, double x, double y) {
  drawing.line(drawing.CurrentX, drawing.CurrentY, x, y, kBlack);
}

void lineFromLeftEdge(PictureBox& drawing, double x, double y) {
  drawing.line(0, y, x, y, kBlack);
}

void lineToRightEdge(PictureBox& drawing, double y) {
  lineTo(drawing, kDrawingWidth, y);
}

void drawBitNames(PictureBox& drawing) {
  for (int bit = 15; bit >= 0; --bit) {
    drawing.CurrentX = bitX[static_cast<std::size_t>(bit)];
    drawing.CurrentY = kLabelTop;
    drawing.print("D" + std::to_string(bit));
  }
}

/// One clock a cell, low for its first half and high for the second.
void drawSck(PictureBox& drawing) {
  lineFromLeftEdge(drawing, bitX[15], kSck.low);
  for (int bit = 15; bit >= 0; --bit) {
    const double x = bitX[static_cast<std::size_t>(bit)];
    lineTo(drawing, x + kHalfBit, kSck.low);
    lineTo(drawing, x + kHalfBit, kSck.high);
    lineTo(drawing, x + kBitWidth, kSck.high);
    lineTo(drawing, x + kBitWidth, kSck.low);
  }
  lineToRightEdge(drawing, kSck.low);
}

/// One pulse, as wide as a cell, after the sixteenth clock.
void drawSld(PictureBox& drawing) {
  const double rise = bitX[0] + kBitWidth + kHalfBit;
  lineFromLeftEdge(drawing, rise, kSld.low);
  lineTo(drawing, rise, kSld.high);
  lineTo(drawing, rise + kBitWidth, kSld.high);
  lineTo(drawing, rise + kBitWidth, kSld.low);
  lineToRightEdge(drawing, kSld.low);
}

void drawSdi(PictureBox& drawing, unsigned value) {
  double level = kSdi.low;
  drawing.CurrentX = 0;
  drawing.CurrentY = level;
  for (int bit = 15; bit >= 0; --bit) {
    const double x = bitX[static_cast<std::size_t>(bit)];
    const double before = level;
    level = (value >> bit & 1) != 0 ? kSdi.high : kSdi.low;
    // A word that begins high has no lead-in: the line starts with its first edge.
    if (level != before) drawing.line(x, before, x, level, kBlack);
    lineTo(drawing, x + kBitWidth, level);
  }
  if (level == kSdi.high) lineTo(drawing, bitX[0] + kBitWidth, kSdi.low);
  lineToRightEdge(drawing, kSdi.low);
}

}  // namespace

FrmEditSerial::FrmEditSerial() : Form("frmEditSerial", kKind, Border::Fixed) {
  Caption = "Serial Data Generator";
  addMember("cancelled", &cancelled);
  addMember("enteredValue", &enteredValue);

  Label1.Caption = "Sattelite No";
  Label1.FontSize = 10;
  lblAdr.FontSize = 12;
  lblAdr.FontBold = true;
  txtWriteData.FontSize = 14;
  txtWriteData.Text = "0000";
  attachHexField(txtWriteData, {kDigits, false, EnterKey::PassedOn});

  picDREQ_Cover.BackColor = kInstrument;  // where the paper has not come yet, or has gone
  picDREQ_Data.placeIn(picDREQ_Cover);
  picDREQ_Data.setUnit(kTwipsPerPixel);
  picDREQ_Data.BackColor = kPaper;
  picDREQ_Data.FontSize = 8;
  shpBezel.BackColor = kInstrument;
  shpBezel.ForeColor = kInstrumentRim;
  for (Label& label : Label2) {
    label.Caption = kTraces[static_cast<std::size_t>(label.index())].name;
    label.Align = Alignment::Right;
  }

  lblSECaution.Caption = "☆ボードが接続されていません☆ 入力されたデータは格納されません。";
  lblSECaution.FontSize = 7;
  lblSECaution.ForeColor = kRed;
  lblSECaution.Visible = false;

  cmdAction(0).Caption = "Set";
  cmdAction(1).Caption = "Cancel";
  cmdAction(2).Caption = "Start";
  cmdAction(0).Default = true;
  cmdAction(1).Cancel = true;
  cmdAction(0).onClick = [this] { set(); };
  cmdAction(1).onClick = [this] { cancel(); };
  cmdAction(2).onClick = [this] { start(); };
  timEnter.Enabled = false;
  timEnter.onTimer = [this] { moveDrawing(); };
}

void FrmEditSerial::load() {
  constexpr double kMargin = 180;
  constexpr double kButtonWidth = 1215;
  constexpr double kButtonHeight = 375;
  constexpr double kFieldHeight = 420;
  constexpr double kBezel = 75;
  constexpr double kSlitWidth = kDrawingWidth * kTwipsPerPixel;
  constexpr double kSlitHeight = kDrawingHeight * kTwipsPerPixel;
  constexpr double kSlitLeft = kBesideSlit - kMargin - kBezel;

  Width = kSlitWidth + kBesideSlit;
  Height = kSlitHeight + kAroundSlit;
  const double right = Width - kMargin;
  const double buttonTop = clientHeight() - kButtonHeight - 150;

  Label1.move(kMargin, kMargin, 1260, kFieldHeight);
  lblAdr.move(Label1.Left + Label1.Width, kMargin, 240, kFieldHeight);
  txtWriteData.move(1860, kMargin, 1020, kFieldHeight);
  cmdAction(0).move(3000, kMargin + (kFieldHeight - kButtonHeight) / 2, kButtonWidth, kButtonHeight);
  cmdAction(1).move(right - kButtonWidth, buttonTop, kButtonWidth, kButtonHeight);
  cmdAction(2).move(right - 2 * kButtonWidth - 120, buttonTop, kButtonWidth, kButtonHeight);
  lblSECaution.move(kMargin, buttonTop, cmdAction(2).Left - kMargin, kButtonHeight);

  constexpr double kSlitTop = kMargin + kFieldHeight + kMargin;
  picDREQ_Cover.move(kSlitLeft, kSlitTop, kSlitWidth, kSlitHeight);
  picDREQ_Data.move(kRestingLeft, 0, kSlitWidth, kSlitHeight);
  shpBezel.move(kSlitLeft - kBezel, kSlitTop - kBezel, kSlitWidth + 2 * kBezel, kSlitHeight + 2 * kBezel);
  for (Label& label : Label2) {
    constexpr double kLabelHeight = 240;
    const double low = kTraces[static_cast<std::size_t>(label.index())].low * kTwipsPerPixel;
    label.move(kMargin, kSlitTop + low - kLabelHeight / 2, kSlitLeft - kBezel - 60 - kMargin, kLabelHeight);
  }
}

void FrmEditSerial::activated() {
  cancelled = kFalse;
  desk().focus(&txtWriteData);
  picDREQ_Data.Left = kRestingLeft;
  cmdAction(0).Enabled = true;
  cmdAction(1).Enabled = true;
  cmdAction(2).Enabled = false;
}

void FrmEditSerial::set() {
  picDREQ_Data.cls();
  drawBitNames(picDREQ_Data);
  drawSck(picDREQ_Data);
  drawSld(picDREQ_Data);
  drawSdi(picDREQ_Data, hexValue(txtWriteData.Text));
  cmdAction(2).Enabled = true;
  cmdAction(2).Default = true;
}

void FrmEditSerial::start() {
  // The field may have been edited since "Set": its text goes out, not what is drawn.
  enteredValue = txtWriteData.Text;
  for (CommandButton& button : cmdAction)
    button.Enabled = false;
  timEnter.Interval = kRunInterval;
  timEnter.Enabled = true;
  frmHard->picSerialInt(serialEditBoard).Visible = true;
  cmdAction(0).Default = true;
}

void FrmEditSerial::cancel() {
  // The default button stays: where that is "Start", Enter rests until "Set" is pressed again.
  cancelled = kTrue;
  hide();
}

void FrmEditSerial::moveDrawing() {
  picDREQ_Data.Left = picDREQ_Data.Left - kRunStep;
  // 15 twips more than its width, not a whole step: the drawing is gone at the 32nd one.
  if (-picDREQ_Data.Width - 15 <= picDREQ_Data.Left) return;
  stopDrawing();
  hide();
}

void FrmEditSerial::stopDrawing() {
  timEnter.Enabled = false;
  timEnter.Interval = 0;
}

bool FrmEditSerial::queryUnload(bool byUser) {
  // The close box works during the run too, which must not end the next opening.
  stopDrawing();
  cmdAction(0).Default = true;
  cancel();
  return !byUser;
}

}  // namespace zelvs
