// Which byte stands in which cell, what the cells say, and how they turn red and fade.

#include "bench/ilsMouse.h"
#include "panel/resets.h"
#include "shell/tick.h"
#include "state/cellAddress.h"
#include "support/dumpFixture.h"

namespace zelvs {
namespace {

class DumpCellsTest : public DumpTest {};

TEST_F(DumpCellsTest, EachWindowHasItsStretchOfMemory) {
  struct Row {
    int window;
    const char *name, *title;
    int cells, rows;
    const char *first, *last;
    int regions;
  };
  const Row table[] = {
      {0, "frmDumpCDIO", "Memory dump - Control + DI + DO", 384, 24, "00x", "17x", 3},
      {1, "frmDumpC17", "Memory dump - C1～C7", 896, 56, "18x", "4Fx", 7},
      {2, "frmDumpDRC", "Memory dump - DRC", 128, 8, "50x", "57x", 1},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    const FrmDump& dump = form(row.window);
    EXPECT_EQ(dump.name(), row.name);
    EXPECT_EQ(dump.Caption.get(), row.title);
    EXPECT_EQ(dump.kind(), FormKind::Child);
    EXPECT_TRUE(dump.lblData.has(row.cells - 1));
    EXPECT_FALSE(dump.lblData.has(row.cells));
    EXPECT_TRUE(dump.lblASC.has(row.cells - 1));
    EXPECT_FALSE(dump.lblASC.has(row.cells));
    EXPECT_FALSE(dump.lblAdr.has(row.rows));
    for (int r = 0; r < row.rows; ++r) {
      const int address = kDumpWindows[static_cast<std::size_t>(row.window)].base + 16 * r;
      EXPECT_EQ(dump.lblAdr(r).Caption.get(), hexText(static_cast<unsigned>(address / 16), 2) + "x");
    }
    EXPECT_EQ(dump.lblAdr(0).Caption.get(), row.first);
    EXPECT_EQ(dump.lblAdr(row.rows - 1).Caption.get(), row.last);
    EXPECT_TRUE(dump.picInd.has(row.regions - 1));
    EXPECT_FALSE(dump.picInd.has(row.regions));
  }
}

TEST_F(DumpCellsTest, AFreshWindowShowsZerosInBlackAndEmptyReadOuts) {
  desk().clear();
  clearState();
  frmDumpC17.load();
  for (const Label& cell : frmDumpC17->lblData) {
    EXPECT_EQ(cell.Caption.get(), "00");
    EXPECT_EQ(cell.ForeColor, kBlack);
    EXPECT_EQ(cell.MousePointer, kCustomPointer);
    EXPECT_TRUE(cell.MouseIcon == ilsMouse.image(2));
    EXPECT_TRUE(frmDumpC17->lblASC(cell.index()).MouseIcon == ilsMouse.image(2));
    EXPECT_EQ(frmDumpC17->lblASC(cell.index()).Caption.get(), ".");
  }
  EXPECT_EQ(frmDumpC17->lblTitle.Caption.get(), "adr.");
  EXPECT_EQ(frmDumpC17->Label1.Caption.get(), "Ascii Dump");
  EXPECT_EQ(frmDumpC17->lblCPUType.Caption.get(), "CPU Type");
  EXPECT_EQ(frmDumpC17->chkTopMost.Caption.get(), "常に手前に表示");
  EXPECT_EQ(frmDumpC17->lblPointAddress.Caption.get(), "");
  EXPECT_EQ(frmDumpC17->lblPointSA.Caption.get(), "");
  EXPECT_EQ(frmDumpC17->timColor.Interval, 1000);
  EXPECT_EQ(frmDumpC17->Width, 7110.0) << "the word layout";
  EXPECT_FALSE(frmDumpC17.visible());
}

TEST_F(DumpCellsTest, TheCellOfAnOffset) {
  const int little[] = {15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0};
  const int big[] = {1, 0, 3, 2, 5, 4, 7, 6, 9, 8, 11, 10, 13, 12, 15, 14};
  for (std::int16_t type = 0; type <= 3; ++type) {
    cpuType = type;
    for (int offset = 0; offset < 896; ++offset) {
      const int column = type >= 2 ? big[offset % 16] : little[offset % 16];
      ASSERT_EQ(cellOfOffset(offset), offset / 16 * 16 + column) << type;
    }
  }
}

TEST_F(DumpCellsTest, TheAddressOfACell) {
  for (std::int16_t type = 0; type <= 3; ++type) {
    cpuType = type;
    for (const auto& [caption, base] : {std::pair{"00x", 0}, {"18x", 0x180}, {"50x", 0x500}, {"4Fx", 0x4F0}}) {
      for (int cell = 0; cell < 128; ++cell) {
        const int column = type >= 2 ? cell % 16 : 15 - cell % 16;
        ASSERT_EQ(addressOfCell(caption, cell), base + cell / 16 * 16 + column) << type;
      }
    }
  }
}

TEST_F(DumpCellsTest, EveryByteStandsInItsCell) {
  for (int type = 0; type <= 3; ++type) {
    chooseCpu(type);
    for (int address = 0; address < 0x580; ++address)
      chipMemory[address] = static_cast<std::uint8_t>(address * 7 + type);
    refreshMemoryWindows();
    for (int window = 0; window < 3; ++window) {
      const DumpWindowRow& area = kDumpWindows[static_cast<std::size_t>(window)];
      for (int offset = 0; offset < area.count; ++offset) {
        const int byte = chipMemory[area.base + offset];
        const int cell = cellOfOffset(offset);
        ASSERT_EQ(form(window).lblData(cell).Caption.get(), hexText(static_cast<unsigned>(byte), 2));
        const std::string letter = byte >= 32 && byte < 127 ? std::string(1, static_cast<char>(byte)) : ".";
        ASSERT_EQ(form(window).lblASC(cell).Caption.get(), letter) << byte;
      }
    }
  }
}

TEST_F(DumpCellsTest, AsciiEndsAtItsEdges) {
  chooseCpu(kByteBig);
  const std::pair<int, const char*> rows[] = {{0, "."},   {31, "."},  {32, " "},  {33, "!"}, {65, "A"},
                                              {126, "~"}, {127, "."}, {128, "."}, {255, "."}};
  for (const auto& [byte, text] : rows) {
    chipMemory[0x181] = static_cast<std::uint8_t>(byte);
    refreshMemoryWindows();
    EXPECT_EQ(frmDumpC17->lblASC(0).Caption.get(), text) << byte;
  }
}

TEST_F(DumpCellsTest, NoteworthyCells) {
  chipMemory[0x000] = 0xA0;
  chipMemory[0x001] = 0xA1;
  chooseCpu(kWordLittle);
  EXPECT_EQ(frmDumpCDIO->lblData(15).Caption.get(), "A0") << "little: address 0 at the top right";
  EXPECT_EQ(frmDumpCDIO->lblData(14).Caption.get(), "A1");
  chooseCpu(kWordBig);
  EXPECT_EQ(frmDumpCDIO->lblData(0).Caption.get(), "A1");
  EXPECT_EQ(frmDumpCDIO->lblData(1).Caption.get(), "A0");
}

TEST_F(DumpCellsTest, OnlyAChangedByteTurnsRed) {
  for (int window = 0; window < 3; ++window)
    EXPECT_EQ(redCells(form(window)), 0) << "cleared memory is not news";
  chipMemory[0x185] = 0x41;
  refreshMemoryWindows();
  const int cell = cellOfOffset(5);
  EXPECT_EQ(redCells(*frmDumpC17), 1);
  EXPECT_TRUE(red(frmDumpC17->lblData(cell)));
  EXPECT_TRUE(red(frmDumpC17->lblASC(cell)));
  EXPECT_EQ(frmDumpC17->lblData(cell).Tag.get(), "5");
  EXPECT_EQ(frmDumpC17->lblASC(cell).Tag.get(), "5");
  EXPECT_EQ(chipMemoryShown[0x185], 0x41);
  EXPECT_EQ(redCells(*frmDumpCDIO), 0);
  EXPECT_EQ(redCells(*frmDumpDRC), 0);
  EXPECT_TRUE(frmDumpC17->Picture1.Enabled);
  EXPECT_TRUE(frmDumpC17->Picture2.Enabled);
}

TEST_F(DumpCellsTest, RedFadesFiveTimerTicksAfterTheLastChange) {
  // STOP: the fading does not hang on the run mode. The timer's phase is made known first.
  frmDumpDRC->timColor.Interval = 0;
  frmDumpDRC->timColor.Interval = 1000;
  const int cell = cellOfOffset(2);
  chipMemory[0x502] = 1;
  refreshMemoryWindows();
  for (const char* tag : {"4", "3"}) {
    platform.advance(1000);
    EXPECT_EQ(frmDumpDRC->lblData(cell).Tag.get(), tag);
    EXPECT_EQ(frmDumpDRC->lblASC(cell).Tag.get(), "5") << "written, never counted";
  }
  chipMemory[0x502] = 2;
  refreshMemoryWindows();
  EXPECT_EQ(frmDumpDRC->lblData(cell).Tag.get(), "5") << "a new change starts anew";
  platform.advance(4999);
  EXPECT_TRUE(red(frmDumpDRC->lblData(cell)));
  EXPECT_EQ(frmDumpDRC->lblData(cell).Tag.get(), "1");
  platform.advance(1);
  EXPECT_EQ(frmDumpDRC->lblData(cell).Tag.get(), "0");
  EXPECT_FALSE(red(frmDumpDRC->lblData(cell)));
  EXPECT_FALSE(red(frmDumpDRC->lblASC(cell)));
  platform.advance(3000);
  EXPECT_EQ(frmDumpDRC->lblData(cell).Tag.get(), "0");
}

TEST_F(DumpCellsTest, TheLastCellFadesTooAndAlsoWhileHidden) {
  for (int window = 0; window < 3; ++window) {
    const DumpWindowRow& area = kDumpWindows[static_cast<std::size_t>(window)];
    chipMemory[area.base + area.count - 16] = 9;
    chipMemory[area.base + area.count - 1] = 9;
  }
  refreshMemoryWindows();
  frmDumpC17->hide();
  for (int window = 0; window < 3; ++window)
    EXPECT_EQ(redCells(form(window)), 2);
  platform.advance(6000);
  for (int window = 0; window < 3; ++window)
    EXPECT_EQ(redCells(form(window)), 0);
}

TEST_F(DumpCellsTest, AChangeWhileHiddenIsRedAtTheOpening) {
  frmDumpC17->hide();
  chipMemory[0x181] = 0x77;
  refreshMemoryWindows();
  EXPECT_EQ(chipMemoryShown[0x181], 0);
  EXPECT_EQ(frmDumpC17->lblData(14).Caption.get(), "00");
  openDumpWindow(1);
  EXPECT_EQ(chipMemoryShown[0x181], 0x77);
  EXPECT_EQ(frmDumpC17->lblData(14).Caption.get(), "77");
  EXPECT_TRUE(red(frmDumpC17->lblData(14)));
}

TEST_F(DumpCellsTest, ClearingTheMemoryTurnsNothingRed) {
  chipMemory[0x10] = 0x55;
  refreshMemoryWindows();
  platform.advance(6000);
  ASSERT_EQ(redCells(*frmDumpCDIO), 0);
  clearChipMemory();
  EXPECT_EQ(frmDumpCDIO->lblData(31).Caption.get(), "00") << "the repaint is forced";
  EXPECT_EQ(redCells(*frmDumpCDIO), 0);
}

TEST_F(DumpCellsTest, AForcedRepaintWritesAllTextAndColoursOnlyWhatDiffers) {
  frmDumpDRC->lblData(3).Caption = "??";
  frmDumpDRC->lblASC(3).Caption = "?";
  chipMemory[0x50F] = 0x30;
  forceMemoryRepaint = kTrue;
  refreshDumpWindow(2);
  forceMemoryRepaint = kFalse;
  EXPECT_EQ(frmDumpDRC->lblData(3).Caption.get(), "00");
  EXPECT_EQ(frmDumpDRC->lblASC(3).Caption.get(), ".");
  EXPECT_EQ(redCells(*frmDumpDRC), 1);
  frmDumpDRC->lblData(3).Caption = "??";
  refreshDumpWindow(2);
  EXPECT_EQ(frmDumpDRC->lblData(3).Caption.get(), "??") << "an unchanged byte is not touched";
}

TEST_F(DumpCellsTest, ATickRefreshesTheWindows) {
  frmMDI->lblRunMode_Click(kRun);
  chipMemory[0x500] = 0x42;
  platform.advance(20);
  EXPECT_EQ(frmDumpDRC->lblData(15).Caption.get(), "42");
  frmMDI->lblRunMode_Click(kStop);
  chipMemory[0x500] = 0x43;
  platform.advance(500);
  EXPECT_EQ(frmDumpDRC->lblData(15).Caption.get(), "42");
  frmMDI->lblRunMode_Click(kOneTime);
  EXPECT_EQ(frmDumpDRC->lblData(15).Caption.get(), "43");
}

TEST_F(DumpCellsTest, RandomMemoryIsRedInTheWindowThatOpensAtTheStart) {
  startAnew({{"MEMORYCLEAR", "0"}});
  int wanted = 0;
  for (int address = 0; address < 0x180; ++address)
    wanted += chipMemory[address] != 0 ? 1 : 0;
  EXPECT_EQ(redCells(*frmDumpCDIO), wanted);
  EXPECT_GT(wanted, 300);
}

}  // namespace
}  // namespace zelvs
