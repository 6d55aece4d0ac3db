// What lists and tabs have in common: rows, which of them is selected, and where a key leads.

#include <string>
#include <vector>

#include "support/program.h"
#include "ui/gesture.h"
#include "ui/listRows.h"
#include "ui/textExtent.h"

namespace zelvs {
namespace {

class FrmRows final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmRows() : Form("frmRows", kKind, Border::Fixed) {
    for (const char* row : {"alpha", "Beta", "  bravo", "3 and more", "あ"})
      lstRows.addItem(row);
    tabPages.Tabs = 3;
  }
  ListBox lstRows{this, "lstRows"};
  ComboBox cmbRows{this, "cmbRows"};
  TabStrip tabPages{this, "tabPages"};
  Label lblText{this, "lblText"};
};
FormRef<FrmRows> frmRows{"frmRows"};

class ListRowsTest : public ProgramTest {
 protected:
  FrmRows& form() { return *frmRows; }
  int byKey(int row, int code) { return rowByKey(form().lstRows, row, code, 0); }
  int byLetter(int row, char32_t character) { return rowByKey(form().lstRows, row, 0, character); }
};

TEST_F(ListRowsTest, ListsHaveRowsStripsHaveTabsAndTheRestHasNone) {
  EXPECT_EQ(rowCountOf(form().lstRows), 5);
  EXPECT_EQ(rowCountOf(form().cmbRows), 0);
  EXPECT_EQ(rowCountOf(form().tabPages), 3);
  EXPECT_EQ(rowCountOf(form().lblText), 0);
}

TEST_F(ListRowsTest, AListMayHaveNoSelectionAStripHasOneAlways) {
  EXPECT_EQ(selectedRowOf(form().lstRows), -1);
  EXPECT_EQ(selectedRowOf(form().tabPages), 0);
  form().lstRows.ListIndex = 4;
  form().tabPages.Tab = 2;
  EXPECT_EQ(selectedRowOf(form().lstRows), 4);
  EXPECT_EQ(selectedRowOf(form().tabPages), 2);
}

TEST_F(ListRowsTest, ARowIsPickedAgainATabIsNot) {
  int clicks = 0;
  form().lstRows.onClick = form().tabPages.onClick = [&clicks] { ++clicks; };
  pickRow(form().lstRows, 1);
  pickRow(form().lstRows, 1);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form().lstRows.ListIndex, 1);
  pickRow(form().tabPages, 1);
  pickRow(form().tabPages, 1);
  EXPECT_EQ(clicks, 3);
  EXPECT_EQ(form().tabPages.Tab, 1);
}

TEST_F(ListRowsTest, OnlyAnUnrolledListLiesOpen) {
  EXPECT_FALSE(isOpenList(&form().cmbRows));
  form().cmbRows.Unrolled = true;
  EXPECT_TRUE(isOpenList(&form().cmbRows));
  EXPECT_FALSE(isOpenList(&form().lstRows));
  EXPECT_FALSE(isOpenList(nullptr));
}

TEST_F(ListRowsTest, RowsAreWholePixelsHighAndHoldALine) {
  for (const double points : {8.0, 9.0, 9.6, 12.0, 20.0}) {
    form().lstRows.FontSize = points;
    const double height = rowHeightOf(form().lstRows);
    EXPECT_EQ(height, static_cast<int>(height / kTwipsPerPixel) * kTwipsPerPixel) << points;
    EXPECT_GE(height, lineHeight(points)) << points;
  }
}

TEST_F(ListRowsTest, OnlyWholeRowsCountAsShownButNeverNone) {
  const double row = rowHeightOf(form().lstRows);
  for (const auto& [height, rows] : {std::pair(0.0, 1), {row - 1, 1}, {3 * row - 1, 2}, {3 * row, 3}}) {
    form().lstRows.Height = height;
    EXPECT_EQ(visibleRowsOf(form().lstRows), rows) << height;
  }
}

TEST_F(ListRowsTest, KeysLeadFromRowToRowAndStopAtTheEnds) {
  form().lstRows.Height = 2 * rowHeightOf(form().lstRows);
  struct Row {
    int from, code, to;
  };
  const Row table[] = {{2, key::kUp, 1},       {0, key::kUp, 0},       {2, key::kLeft, 1},     {-1, key::kUp, 0},
                       {2, key::kDown, 3},     {4, key::kDown, 4},     {2, key::kRight, 3},    {-1, key::kDown, 0},
                       {3, key::kHome, 0},     {-1, key::kHome, 0},    {1, key::kEnd, 4},      {3, key::kPageUp, 1},
                       {1, key::kPageUp, 0},   {1, key::kPageDown, 3}, {3, key::kPageDown, 4}, {-1, key::kPageDown, 1},
                       {3, key::kEnter, 3},    {-1, key::kEnter, -1},  {2, key::kDelete, 2},   {2, key::kF1, 2},
                       {2, key::kBackspace, 2}};
  for (const Row& row : table) {
    EXPECT_EQ(byKey(row.from, row.code), row.to) << row.from << " by " << row.code;
  }
}

TEST_F(ListRowsTest, ALetterLeadsToTheNextRowThatBeginsWithIt) {
  EXPECT_EQ(byLetter(-1, U'b'), 1);
  EXPECT_EQ(byLetter(1, U'B'), 2) << "blanks before it and its case do not count";
  EXPECT_EQ(byLetter(2, U'b'), 1) << "round the end";
  EXPECT_EQ(byLetter(0, U'a'), 0) << "the only one";
  EXPECT_EQ(byLetter(0, U'3'), 3);
  EXPECT_EQ(byLetter(0, U'あ'), 4);
  EXPECT_EQ(byLetter(2, U'z'), 2);
  EXPECT_EQ(byLetter(-1, U'z'), -1);
  EXPECT_EQ(byLetter(2, U' '), 2);
}

TEST_F(ListRowsTest, TabsGoByKeysButNotByLetters) {
  form().tabPages.setTabCaption(2, "last");
  EXPECT_EQ(rowByKey(form().tabPages, 0, key::kRight, 0), 1);
  EXPECT_EQ(rowByKey(form().tabPages, 0, key::kEnd, 0), 2);
  EXPECT_EQ(rowByKey(form().tabPages, 0, 'L', U'l'), 0);
}

TEST_F(ListRowsTest, AnEmptyListLeadsNowhere) {
  for (const int code : {key::kUp, key::kDown, key::kHome, key::kEnd, key::kPageDown}) {
    EXPECT_EQ(rowByKey(form().cmbRows, -1, code, 0), -1);
  }
  EXPECT_EQ(rowByKey(form().cmbRows, -1, 'A', U'a'), -1);
}

}  // namespace
}  // namespace zelvs
