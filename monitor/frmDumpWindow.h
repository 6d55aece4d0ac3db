#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/timer.h"

namespace zelvs {

/// What tells the three memory windows apart. Each region of 128 bytes takes eight rows and has a mark beside them.
struct DumpWindowRow {
  std::string_view form;
  std::string_view title;
  int base;          ///< address of its first byte in chipMemory
  int count;         ///< bytes
  double top, left;  ///< where it opens, in twips
  int firstRegion;   ///< image of ilsRegion, from 1
};

inline constexpr int kDumpColumns = 16;
inline constexpr int kRegionBytes = 128;

/// Index: window number 0 to 2.
inline constexpr std::array<DumpWindowRow, 3> kDumpWindows = {{
    {"frmDumpCDIO", "Memory dump - Control + DI + DO", 0x000, 384, 0, 12000, 1},
    {"frmDumpC17", "Memory dump - C1～C7", 0x180, 896, 1300, 10500, 4},
    {"frmDumpDRC", "Memory dump - DRC", 0x500, 128, 10000, 7600, 11},
}};

/// A stretch of the chip's memory, live, as hex and ASCII. Cells count from 0, row by row from the left top.
class FrmDump : public Form {
 public:
  /// window: number 0 to 2.
  explicit FrmDump(int window);

  /// 0 byte layout, 1 word layout.
  std::int16_t piMode = 0;

  ImageList ilsRegion{"ilsRegion", 11};  // control, DO, DI, C1 to C7, DRC
  ImageList ilsBit{"ilsBit", 2};         // byte layout, word layout

 private:
  int window_;

 public:
  Label lblCPUType{this, "lblCPUType"};
  ControlArray<PictureBox> cmbBit{this, "cmbBit", 0, 1};  // index: piMode
  CheckBox chkTopMost{this, "chkTopMost"};
  Label lblPointAddress{this, "lblPointAddress"};
  Label lblPointSA{this, "lblPointSA"};
  ControlArray<PictureBox> picInd{this, "picInd", 0, area().count / kRegionBytes - 1};
  PictureBox Picture1{this, "Picture1"};
  PictureBox Picture2{this, "Picture2"};
  Label lblTitle{this, "lblTitle"};
  Label Label1{this, "Label1"};
  ControlArray<Line> linLow{this, "linLow", 1, 6};
  ControlArray<Line> linHigh{this, "linHigh", 1, 6};
  ControlArray<Label> lblOff{this, "lblOff", 0, 2 * kDumpColumns - 1};  // 0 to 15 hex area, 16 to 31 ASCII area
  ControlArray<Label> lblAdr{this, "lblAdr", 0, area().count / kDumpColumns - 1};
  ControlArray<Label> lblData{this, "lblData", 0, area().count - 1};  // Tag: seconds that it stays red
  ControlArray<Label> lblASC{this, "lblASC", 0, area().count - 1};
  Timer timColor{this, "timColor"};

  /// Number 0 to 2.
  int window() const { return window_; }
  const DumpWindowRow& area() const { return kDumpWindows[static_cast<std::size_t>(window_)]; }

  /// Writes address, value and station of a cell into the read-outs.
  void setPointing(int cellIndex);
  /// Takes the window in front of the others, or back among them.
  void chkTopMost_Click();

 protected:
  void load() override;
  void activated() override;

 private:
  void placeControls();
  void placeRow(int row);
  void attachHandlers();
};

}  // namespace zelvs
