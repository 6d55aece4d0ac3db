// Headings, wedges and layouts by CPU type.

#include "support/dumpFixture.h"

namespace zelvs {
namespace {

class DumpLayoutTest : public DumpTest {
 protected:
  static std::string headings(const FrmDump& form) {
    std::string text;
    for (int column = 0; column < 16; ++column)
      text += form.lblOff(column).Caption.get();
    return text;
  }
  static void expectLayout(const FrmDump& form, bool words) {
    EXPECT_EQ(form.Picture1.Width, words ? 4545.0 : 4785.0);
    EXPECT_EQ(form.Picture2.Left, words ? 4890.0 : 5160.0);
    EXPECT_EQ(form.Width, words ? 7110.0 : 7350.0);
    for (int column = 0; column < 16; ++column) {
      const int gap = column >= 8 ? 60 : 0;
      const int even = column - column % 2;
      const double left = words ? 510 + 240 * even + gap + (column % 2) * 210 : 510 + 255 * column + gap;
      EXPECT_EQ(form.lblOff(column).Left, left) << column;
      for (int cell = column; form.lblData.has(cell); cell += 16)
        ASSERT_EQ(form.lblData(cell).Left, left) << cell;
    }
  }
};

struct LayoutCase {
  int cpu;
  const char *text, *headings;
  int mode;
};
const LayoutCase kCases[] = {
    {0, "16bit-Bus Little", "-F,E-D,C-B,A-9,8-7,6-5,4-3,2-1,0", 1},
    {1, " 8bit-Bus Little", "-F-E-D-C-B-A-9-8-7-6-5-4-3-2-1-0", 0},
    {2, "16bit-Bus  Big  ", "-0,1-2,3-4,5-6,7-8,9-A,B-C,D-E,F", 1},
    {3, " 8bit-Bus  Big  ", "-0-1-2-3-4-5-6-7-8-9-A-B-C-D-E-F", 0},
};

TEST_F(DumpLayoutTest, EveryWindowFollowsTheCpuType) {
  for (const int type : {0, 1, 2, 3, 1, 0, 3, 2}) {
    const LayoutCase& row = kCases[type];
    SCOPED_TRACE(row.text);
    chooseCpu(type);
    for (int window = 0; window < 3; ++window) {
      const FrmDump& dump = form(window);
      EXPECT_EQ(dump.piMode, row.mode);
      EXPECT_EQ(dump.lblCPUType.Caption.get(), row.text);
      EXPECT_EQ(headings(dump), row.headings);
      expectLayout(dump, row.mode == 1);
      const bool big = type >= 2;
      for (int j = 1; j <= 6; ++j) {
        EXPECT_EQ(dump.linLow(j).X1, big ? 1980.0 : 540 + 60 * j);
        EXPECT_EQ(dump.linLow(j).X2, big ? 2340 - 60 * j : 960.0);
        EXPECT_EQ(dump.linHigh(j).X1, big ? 3960.0 : 2520 + 60 * j);
        EXPECT_EQ(dump.linHigh(j).X2, big ? 4320 - 60 * j : 2940.0);
      }
    }
  }
}

TEST_F(DumpLayoutTest, TheRulerOfTheAsciiAreaNeverChanges) {
  for (int type = 0; type <= 3; ++type) {
    chooseCpu(type);
    std::string text;
    for (int column = 16; column <= 31; ++column)
      text += frmDumpDRC->lblOff(column).Caption.get();
    EXPECT_EQ(text, "-0.......8......F");
  }
}

TEST_F(DumpLayoutTest, AllWindowsMayBeNamedBy0xFFFF) {
  for (const int all : {-1, 0xFFFF}) {
    for (int window = 0; window < 3; ++window)
      form(window).piMode = 7;
    resetDumpLayout(all);
    for (int window = 0; window < 3; ++window)
      EXPECT_EQ(form(window).piMode, 1);
  }
  form(0).piMode = form(1).piMode = form(2).piMode = 7;
  resetDumpLayout(1);
  EXPECT_EQ(form(0).piMode, 7);
  EXPECT_EQ(form(1).piMode, 1);
  EXPECT_EQ(form(2).piMode, 7);
  EXPECT_EQ(forceMemoryRepaint, kFalse);
}

TEST_F(DumpLayoutTest, AHiddenWindowKeepsItsHeadingsUntilItOpens) {
  frmDumpDRC->hide();
  chooseCpu(kByteBig);
  EXPECT_EQ(frmDumpDRC->piMode, 0) << "the mode is set all the same";
  EXPECT_EQ(headings(*frmDumpDRC), kCases[0].headings);
  expectLayout(*frmDumpDRC, true);
  openDumpWindow(2);
  EXPECT_EQ(headings(*frmDumpDRC), kCases[3].headings);
  expectLayout(*frmDumpDRC, false);
}

TEST_F(DumpLayoutTest, AWindowThatTheUserClosedIsLeftAlone) {
  EXPECT_EQ(gesture::close(*frmDumpDRC), "");
  ASSERT_FALSE(frmDumpDRC.loaded());
  chooseCpu(kByteLittle);
  refreshMemoryWindows();
  EXPECT_FALSE(frmDumpDRC.loaded());
  openDumpWindow(2);
  EXPECT_EQ(headings(*frmDumpDRC), kCases[1].headings);
  expectLayout(*frmDumpDRC, false);
}

TEST_F(DumpLayoutTest, TheTwoPicturesSpreadAndJoinTheCellsButLeaveTheHeadings) {
  click(frmDumpCDIO->cmbBit(0));
  EXPECT_EQ(frmDumpCDIO->piMode, 0);
  expectLayout(*frmDumpCDIO, false);
  EXPECT_EQ(headings(*frmDumpCDIO), kCases[0].headings);
  EXPECT_EQ(frmDumpC17->piMode, 1) << "one window only";
  expectLayout(*frmDumpC17, true);
  chipMemory[0x000] = 0x99;
  click(frmDumpCDIO->cmbBit(1));
  EXPECT_EQ(frmDumpCDIO->piMode, 1);
  expectLayout(*frmDumpCDIO, true);
  EXPECT_EQ(frmDumpCDIO->lblData(15).Caption.get(), "99") << "the click refreshes";
}

TEST_F(DumpLayoutTest, ThePicturesAreTwo) {
  EXPECT_TRUE(frmDumpCDIO->cmbBit(0).Picture.get() == frmDumpCDIO->ilsBit.image(1));
  EXPECT_TRUE(frmDumpCDIO->cmbBit(1).Picture.get() == frmDumpCDIO->ilsBit.image(2));
}

}  // namespace
}  // namespace zelvs
