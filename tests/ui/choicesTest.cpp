// Lists, check boxes, option buttons, tabs and the default button.

#include <string>

#include "support/program.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class FrmChoices final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmChoices() : Form("frmChoices", kKind, Border::Fixed) {
    optInner(0).placeIn(fraGroup);
    optInner(1).placeIn(fraGroup);
  }
  ComboBox cmbRows{this, "cmbRows"};
  ListBox lstRows{this, "lstRows"};
  CheckBox chkMark{this, "chkMark"};
  ControlArray<OptionButton> optOuter{this, "optOuter", 0, 1};
  Frame fraGroup{this, "fraGroup"};
  ControlArray<OptionButton> optInner{this, "optInner", 0, 1};
  TabStrip tabPages{this, "tabPages"};
  ControlArray<CommandButton> cmdAction{this, "cmdAction", 0, 1};
};
FormRef<FrmChoices> frmChoices{"frmChoices"};

class ChoicesTest : public ProgramTest {
 protected:
  ChoicesTest() {
    frmChoices->show();
    for (ListControl* list : lists()) {
      for (const char* row : {"zero", "one", "two"})
        list->addItem(row);
      list->onClick = [this] { ++clicks; };
    }
  }
  FrmChoices& form() { return *frmChoices; }
  std::array<ListControl*, 2> lists() { return {&form().cmbRows, &form().lstRows}; }

  int clicks = 0;
};

TEST_F(ChoicesTest, AListStartsWithoutASelection) {
  for (const ListControl* list : lists()) {
    EXPECT_EQ(list->ListCount(), 3);
    EXPECT_EQ(list->ListIndex, -1);
    EXPECT_EQ(list->Text(), "");
    EXPECT_EQ(list->List(2), "two");
  }
  EXPECT_EQ(clicks, 0);
}

TEST_F(ChoicesTest, SelectingByCodeClicksWhenTheRowChanges) {
  for (ListControl* list : lists()) {
    clicks = 0;
    list->ListIndex = 1;
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(list->Text(), "one");
    list->ListIndex = 1;
    EXPECT_EQ(clicks, 1) << "the same row by code";
    list->ListIndex = -1;
    EXPECT_EQ(clicks, 1) << "taking the selection away";
  }
}

TEST_F(ChoicesTest, ThePersonMayPickTheSameRowAgain) {
  for (ListControl* list : lists()) {
    clicks = 0;
    EXPECT_EQ(gesture::pick(*list, 2), "");
    EXPECT_EQ(gesture::pick(*list, 2), "");
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list->ListIndex, 2);
    EXPECT_EQ(desk().focused(), list);
  }
}

TEST_F(ChoicesTest, ArrowsStepThroughTheRowsAndStopAtTheEnds) {
  ListControl& list = form().lstRows;
  const std::pair<int, int> steps[] = {{key::kDown, 0}, {key::kDown, 1}, {key::kRight, 2}, {key::kDown, 2},
                                       {key::kUp, 1},   {key::kLeft, 0}, {key::kUp, 0}};
  for (const auto& [code, row] : steps) {
    gesture::keyDown(list, code);
    EXPECT_EQ(list.ListIndex, row);
  }
  EXPECT_EQ(clicks, 5);
}

TEST_F(ChoicesTest, ARowOutsideTheListEndsTheProgram) {
  for (const int row : {-2, 3, 63}) {
    const std::string told =
        "frmChoices\\.cmbRows has no row " + std::to_string(row) + ": it has 3 rows, counted from 0";
    EXPECT_EXIT(form().cmbRows.ListIndex = row, testing::ExitedWithCode(kRunTimeErrorStatus), told);
    EXPECT_EXIT(form().cmbRows.List(row), testing::ExitedWithCode(kRunTimeErrorStatus), told);
  }
}

TEST_F(ChoicesTest, ClearingEmptiesTheListWithoutAClick) {
  form().cmbRows.ListIndex = 2;
  clicks = 0;
  form().cmbRows.clear();
  EXPECT_EQ(form().cmbRows.ListCount(), 0);
  EXPECT_EQ(form().cmbRows.ListIndex, -1);
  EXPECT_EQ(form().cmbRows.Text(), "");
  EXPECT_EQ(clicks, 0);
}

TEST_F(ChoicesTest, ACheckBoxTogglesAndClicksAlsoByCode) {
  CheckBox& box = form().chkMark;
  box.onClick = [this] { ++clicks; };
  gesture::click(form(), &box);
  EXPECT_EQ(box.Value, 1);
  gesture::click(form(), &box);
  EXPECT_EQ(box.Value, 0);
  EXPECT_EQ(clicks, 2);
  box.Value = 1;
  box.Value = 1;
  EXPECT_EQ(clicks, 3);
}

TEST_F(ChoicesTest, OptionButtonsExcludeTheirNeighboursInTheSameContainer) {
  for (auto* options : {&form().optOuter, &form().optInner}) {
    for (OptionButton& option : *options)
      option.onClick = [this] { ++clicks; };
  }
  form().optInner(1).Value = true;
  EXPECT_EQ(clicks, 1);
  gesture::click(form(), &form().optOuter(0));
  EXPECT_TRUE(form().optOuter(0).Value);
  EXPECT_TRUE(form().optInner(1).Value) << "another container";
  gesture::click(form(), &form().optOuter(1));
  EXPECT_FALSE(form().optOuter(0).Value);
  EXPECT_TRUE(form().optOuter(1).Value);
  EXPECT_EQ(clicks, 3) << "the one that goes out is not clicked";
}

TEST_F(ChoicesTest, TabsTurnByHandAndByCode) {
  TabStrip& tabs = form().tabPages;
  tabs.onClick = [this] { ++clicks; };
  EXPECT_EQ(tabs.Tabs, 1);
  tabs.Tabs = 3;
  tabs.setTabCaption(2, "INT0R/INT1R");
  EXPECT_EQ(tabs.TabCaption(0), "Tab 0");
  EXPECT_EQ(tabs.TabCaption(1), "Tab 1");
  EXPECT_EQ(tabs.TabCaption(2), "INT0R/INT1R");
  EXPECT_EQ(clicks, 0);
  tabs.Tab = 1;
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(gesture::pick(tabs, 2), "");
  EXPECT_EQ(tabs.Tab, 2);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(gesture::pick(tabs, 3), "frmChoices.tabPages has no row 3");
  gesture::keyDown(tabs, key::kLeft);
  EXPECT_EQ(tabs.Tab, 1);
}

TEST_F(ChoicesTest, FewerTabsTurnBackToTheLastOneLeft) {
  TabStrip& tabs = form().tabPages;
  tabs.Tabs = 5;
  tabs.Tab = 4;
  tabs.Tabs = 2;
  EXPECT_EQ(tabs.Tab, 1);
}

TEST_F(ChoicesTest, ATabThatIsNotThereEndsTheProgram) {
  TabStrip& tabs = form().tabPages;
  tabs.Tabs = 2;
  const auto ends = testing::ExitedWithCode(kRunTimeErrorStatus);
  EXPECT_EXIT(tabs.Tab = 2, ends, "frmChoices\\.tabPages has no tab 2: it has 2 tabs");
  EXPECT_EXIT(tabs.Tab = -1, ends, "frmChoices\\.tabPages has no tab -1");
  EXPECT_EXIT(tabs.setTabCaption(2, "x"), ends, "frmChoices\\.tabPages has no tab 2");
  EXPECT_EXIT(tabs.Tabs = 0, ends, "frmChoices\\.tabPages cannot have 0 tabs");
}

TEST_F(ChoicesTest, AFormHasAtMostOneDefaultButton) {
  form().cmdAction(0).Default = true;
  form().cmdAction(1).Default = true;
  EXPECT_FALSE(form().cmdAction(0).Default);
  EXPECT_TRUE(form().cmdAction(1).Default);
}

}  // namespace
}  // namespace zelvs
