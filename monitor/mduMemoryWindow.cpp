// The memory windows: which byte stands in which cell, and the painting of what has changed.

#include "monitor/mduMemoryWindow.h"

#include <cstring>
#include <string>

#include "bench/frmHard.h"
#include "chip/frmEditMemory.h"
#include "dialogs/frmMessage.h"
#include "monitor/frmDumpC17.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/mduAPI.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/desk.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

constexpr int kColumnMask = kDumpColumns - 1;
constexpr std::string_view kRedSeconds = "5";

FormPlace& placeOf(int window) {
  static constexpr std::array<FormPlace*, 3> kPlaces = {&frmDumpCDIO, &frmDumpC17, &frmDumpDRC};
  return *kPlaces[static_cast<std::size_t>(window)];
}

std::string_view asciiText(std::uint8_t byte, char& room) {
  room = byte < 32 || byte >= 127 ? '.' : static_cast<char>(byte);
  return {&room, 1};
}

void showByte(FrmDump& form, int offset, std::uint8_t byte) {
  const int cell = cellOfOffset(offset);
  char room = 0;
  form.lblData(cell).Caption = hexText(byte, 2);
  form.lblASC(cell).Caption = asciiText(byte, room);
}

void turnRed(FrmDump& form, int offset) {
  const int cell = cellOfOffset(offset);
  for (Label* label : {&form.lblData(cell), &form.lblASC(cell)}) {
    label->Tag = kRedSeconds;
    label->ForeColor = kRed;
  }
}

/// Ends of the wedge lines, in twips; line j (1 to 6) is j steps off.
struct Wedge {
  double lowFrom, lowTo, highFrom, highTo;
  double stepFrom, stepTo;
};
constexpr Wedge kBigWedge = {1980, 2340, 3960, 4320, 0, -60};
constexpr Wedge kLittleWedge = {540, 960, 2520, 2940, 60, 0};

void setHeader(FrmDump& form, const Wedge& wedge, bool rising) {
  if (!form.visible()) return;
  form.lblCPUType.Caption = frmHard->cmbCPUType.Text();
  for (int j = 1; j <= 6; ++j) {
    form.linLow(j).X1 = wedge.lowFrom + j * wedge.stepFrom;
    form.linLow(j).X2 = wedge.lowTo + j * wedge.stepTo;
    form.linHigh(j).X1 = wedge.highFrom + j * wedge.stepFrom;
    form.linHigh(j).X2 = wedge.highTo + j * wedge.stepTo;
  }
  const bool words = form.piMode == 1;
  for (int column = 0; column < kDumpColumns; ++column) {
    const char* mark = words && column % 2 == 1 ? "," : "-";
    const int low = rising ? column : kColumnMask - column;
    form.lblOff(column).Caption = mark + hexText(static_cast<unsigned>(low), 1);
  }
  if (words) {
    layoutWords(form);
  } else {
    layoutBytes(form);
  }
}

/// Places of one layout, in twips.
struct Layout {
  double hexWidth, asciiLeft, formWidth;
  double pitch;  // of the columns
  bool pairs;    // the odd column touches the even one
};
constexpr Layout kByteLayout = {4785, 5160, 7350, 255, false};
constexpr Layout kWordLayout = {4545, 4890, 7110, 240, true};

double columnLeft(const Layout& layout, int column) {
  constexpr double kFirstColumn = 510;
  constexpr double kMiddleGap = 60;
  constexpr double kCellWidth = 210;
  if (layout.pairs && column % 2 == 1) return columnLeft(layout, column - 1) + kCellWidth;
  return kFirstColumn + layout.pitch * column + (column >= kDumpColumns / 2 ? kMiddleGap : 0);
}

void apply(FrmDump& form, const Layout& layout) {
  form.Picture1.Width = layout.hexWidth;
  form.Picture2.Left = layout.asciiLeft;
  form.Width = layout.formWidth;
  std::array<double, kDumpColumns> lefts{};
  for (int column = 0; column < kDumpColumns; ++column) {
    lefts[static_cast<std::size_t>(column)] = columnLeft(layout, column);
    form.lblOff(column).Left = columnLeft(layout, column);
  }
  for (Label& cell : form.lblData)
    cell.Left = lefts[static_cast<std::size_t>(cell.index() & kColumnMask)];
}

}  // namespace

FrmDump& dumpWindow(int window) {
  FormPlace& place = placeOf(window);
  place.load();
  return static_cast<FrmDump&>(*place.form());
}

int cellOfOffset(int offset) {
  const int low = offset & kColumnMask;
  // A big-endian CPU has the high byte of a word, odd in the chip's memory, on the left.
  const int column = bigEndian() ? low ^ 1 : kColumnMask - low;
  return (offset & ~kColumnMask) + column;
}

void refreshDumpWindow(int window) {
  if (!placeOf(window).visible()) return;
  const auto [name, title, base, count, top, left, region] = kDumpWindows[static_cast<std::size_t>(window)];
  const bool all = forceMemoryRepaint != kFalse;
  const std::uint8_t* now = &chipMemory[base];
  std::uint8_t* shown = &chipMemoryShown[base];
  if (!all && std::memcmp(now, shown, static_cast<std::size_t>(count)) == 0) return;
  // The containers need not be disabled meanwhile: a window is painted when the handler has ended, never in between.
  FrmDump& form = dumpWindow(window);
  for (int offset = 0; offset < count; ++offset) {
    const bool changed = shown[offset] != now[offset];
    if (!changed && !all) continue;
    showByte(form, offset, now[offset]);
    if (!changed) continue;
    turnRed(form, offset);
    shown[offset] = now[offset];
  }
}

void refreshMemoryWindows() {
  for (int window = 0; window < 3; ++window)
    refreshDumpWindow(window);
}

void repaintMemoryWindows() {
  forceMemoryRepaint = kTrue;
  refreshMemoryWindows();
  forceMemoryRepaint = kFalse;
}

void refreshWindows() {
  refreshRegisterWindow();
  refreshMemoryWindows();
}

void resetDumpLayout(int window) {
  const bool all = (window & 0xFFFF) == 0xFFFF;
  for (int at = all ? 0 : window; at <= (all ? 2 : window); ++at) {
    // One that is not loaded takes its layout when it opens.
    if (!placeOf(at).loaded()) continue;
    FrmDump& form = dumpWindow(at);
    form.piMode = wideBus() ? 1 : 0;
    if (bigEndian()) {
      setHeaderBig(form);
    } else {
      setHeaderLittle(form);
    }
  }
  repaintMemoryWindows();
}

void setHeaderBig(FrmDump& form) {
  setHeader(form, kBigWedge, true);
}

void setHeaderLittle(FrmDump& form) {
  setHeader(form, kLittleWedge, false);
}

void layoutBytes(FrmDump& form) {
  apply(form, kByteLayout);
}

void layoutWords(FrmDump& form) {
  apply(form, kWordLayout);
}

void openDumpWindow(int window) {
  FrmDump& form = dumpWindow(window);
  if (form.visible()) {
    form.setFocus();
  } else {
    moveInClientArea(form, form.area().left, form.area().top);
    form.show();
    layoutWords(form);
    form.bringToFront();
    refreshDumpWindow(window);
  }
  resetDumpLayout(window);
  refreshDumpWindow(window);
  yieldToEvents();
}

void openDumpWindowsOfSettings() {
  if (openWindow[4] != 0) openDumpWindow(1);
  if (openWindow[5] != 0) openDumpWindow(2);
  if (openWindow[3] == 0) return;
  openDumpWindow(0);
  mdiClientHandle = kClientAreaHandle;
  // Events ran while the window opened: the user may have hit its box.
  if (frmDumpCDIO.visible() && frmDumpCDIO->chkTopMost.Value != 0) frmDumpCDIO->chkTopMost_Click();
}

double memoryEditorTop(const FrmDump& form, int cellIndex) {
  const Label& cell = form.lblData(cellIndex);
  return desk().frame()->clientAreaTop() + form.Top + kCaptionHeight + form.Picture1.Top + cell.Top + 2 * cell.Height;
}

void openMemoryEditor(FrmDump& form, std::string_view firstRowCaption, int cellIndex, double left) {
  FrmEditMemory& editor = *frmEditMemory;
  editor.move(left, memoryEditorTop(form, cellIndex));
  editor.cells = &form.lblData;
  editor.editCellIndex = static_cast<std::int16_t>(cellIndex);
  editor.editFirstRowCaption = firstRowCaption;
  editor.onWritten = refreshWindows;
  editor.chooseAccess();
  if (frmMessage.visible()) frmMessage->hide();
  editor.show(ShowMode::Modal, desk().frame());
}

}  // namespace zelvs
