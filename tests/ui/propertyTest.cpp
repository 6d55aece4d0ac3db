// What an assignment tells the view, and how controls are found by name and index.

#include <functional>
#include <vector>

#include "support/program.h"
#include "ui/view.h"

namespace zelvs {

std::size_t allocationsSoFar();

namespace {

class FrmSample final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmSample() : Form("frmSample", kKind, Border::Fixed) {}

  ImageList ilsLamp{"ilsLamp", 2};
  Label lblText{this, "lblText"};
  PictureBox picLamp{this, "picLamp"};
  ControlArray<Label> lblRow{this, "lblRow", {0, 1, 5}};
  ControlArray<PictureBox> picPin{this, "picPin", 1, 64};
};
FormRef<FrmSample> frmSample{"frmSample"};

/// Counts how often the view is told.
class CountingPlatform final : public ScriptedPlatform, public View {
 public:
  Screen screen() override { return {1920, 1080}; }
  void controlsChanged(Form&) override { ++controlsChanges; }
  void formChanged(Form&) override { ++formChanges; }

  int controlsChanges = 0;
  int formChanges = 0;
};

class PropertyTest : public ProgramTest {
 protected:
  PropertyTest() {
    setPlatform(&counting);
    setView(&counting);
    frmSample.load();
    frmSample->takeChanged();
    counting.controlsChanges = 0;
    counting.formChanges = 0;
  }
  ~PropertyTest() override {
    desk().clear();
    setPlatform(&platform);
    setView(nullptr);
  }

  CountingPlatform counting;
};

struct Assignment {
  const char* name;
  std::function<void(Control&)> assign;
  bool marks;
};

const std::vector<Assignment>& assignments() {
  static const std::vector<Assignment> table = {
      {"Visible", [](Control& c) { c.Visible = false; }, true},
      {"Enabled", [](Control& c) { c.Enabled = false; }, true},
      {"Left", [](Control& c) { c.Left = 15; }, true},
      {"Top", [](Control& c) { c.Top = 15.5; }, true},
      {"Width", [](Control& c) { c.Width = 15; }, true},
      {"Height", [](Control& c) { c.Height = 15; }, true},
      {"Caption", [](Control& c) { c.Caption = "text"; }, true},
      {"ForeColor", [](Control& c) { c.ForeColor = kRed; }, true},
      {"BackColor", [](Control& c) { c.BackColor = kRed; }, true},
      {"FontSize", [](Control& c) { c.FontSize = 20; }, true},
      {"FontBold", [](Control& c) { c.FontBold = true; }, true},
      {"ToolTipText", [](Control& c) { c.ToolTipText = "text"; }, true},
      {"MousePointer", [](Control& c) { c.MousePointer = kCustomPointer; }, true},
      {"MouseIcon", [](Control& c) { c.MouseIcon = frmSample->ilsLamp.image(2); }, true},
      // A Tag has no look.
      {"Tag", [](Control& c) { c.Tag = "1"; }, false},
  };
  return table;
}

TEST_F(PropertyTest, AChangeMarksItsControlOnceAndTheSameValueMarksNothing) {
  for (const Assignment& row : assignments()) {
    SCOPED_TRACE(row.name);
    row.assign(frmSample->lblText);
    const std::vector<Control*> changed = frmSample->takeChanged();
    if (row.marks) {
      ASSERT_EQ(changed.size(), 1u);
      EXPECT_EQ(changed[0], &frmSample->lblText);
    } else {
      EXPECT_TRUE(changed.empty());
    }
    row.assign(frmSample->lblText);
    EXPECT_TRUE(frmSample->takeChanged().empty()) << "the same value again";
  }
}

TEST_F(PropertyTest, AnAssignmentOfAPropertyToItselfOrToItsLikeMarksNothing) {
  Label& text = frmSample->lblText;
  Label& row = frmSample->lblRow(5);
  text.Caption = "a";
  row.Caption = "a";
  frmSample->takeChanged();
  const Label& same = text;
  text.Caption = same.Caption;
  text.Caption = row.Caption;
  EXPECT_TRUE(frmSample->takeChanged().empty());
  row.Caption = "b";
  frmSample->takeChanged();
  text.Caption = row.Caption;
  EXPECT_EQ(frmSample->takeChanged(), std::vector<Control*>{&text});
  EXPECT_EQ(text.Caption, std::string_view("b"));
}

TEST_F(PropertyTest, SeveralChangesOfOneControlAreOneMark) {
  frmSample->lblText.Caption = "a";
  frmSample->lblText.Caption = "b";
  frmSample->lblText.Left = 15;
  frmSample->picLamp.Left = 15;
  EXPECT_EQ(frmSample->takeChanged().size(), 2u);
}

TEST_F(PropertyTest, TheViewIsToldOnceUntilItHasLooked) {
  frmSample->lblText.Caption = "a";
  frmSample->picLamp.Left = 15;
  frmSample->lblRow(5).Caption = "b";
  EXPECT_EQ(counting.controlsChanges, 1);
  frmSample->takeChanged();
  frmSample->lblText.Caption = "a";
  EXPECT_EQ(counting.controlsChanges, 1);
  frmSample->lblText.Caption = "c";
  EXPECT_EQ(counting.controlsChanges, 2);
}

TEST_F(PropertyTest, AFormTellsItsOwnChangesButNotItsTag) {
  frmSample->Tag = "2";
  EXPECT_EQ(counting.formChanges, 0);
  frmSample->Caption = "title";
  frmSample->Caption = "title";
  EXPECT_EQ(counting.formChanges, 1);
  frmSample->BackColor = kRed;
  EXPECT_EQ(counting.formChanges, 2);
}

TEST_F(PropertyTest, WritingPinsAllocatesNothing) {
  FrmSample& form = *frmSample;
  const Picture lit = form.ilsLamp.image(2);
  const std::size_t before = allocationsSoFar();
  for (PictureBox& pin : form.picPin) {
    pin.Tag = "1";
    pin.Picture = lit;
    pin.Visible = false;
    pin.Left = 30;
    pin.BackColor = kRed;
  }
  const std::size_t after = allocationsSoFar();
  EXPECT_EQ(after, before);
  EXPECT_EQ(form.takeChanged().size(), 64u);
  EXPECT_GT(allocationsSoFar(), after) << "the counter counts";
}

TEST_F(PropertyTest, APropertyReadsAndComparesAsItsValue) {
  Label& label = frmSample->lblText;
  label.Tag = "4";
  label.Left = 10;
  frmSample->lblRow(0).Tag = label.Tag;
  EXPECT_TRUE(label.Tag == "4");
  EXPECT_FALSE(label.Tag == "");
  EXPECT_EQ(label.Left + 5, 15);
  EXPECT_TRUE(frmSample->lblRow(0).Tag == "4");
}

TEST_F(PropertyTest, AnArrayKnowsItsIndexesOnly) {
  const auto& rows = frmSample->lblRow;
  for (const int index : {0, 1, 5}) {
    EXPECT_TRUE(rows.has(index)) << index;
    EXPECT_EQ(rows(index).index(), index);
    EXPECT_EQ(rows(index).fullName(), "frmSample.lblRow(" + std::to_string(index) + ")");
  }
  EXPECT_EQ(frmSample->lblText.fullName(), "frmSample.lblText");
  EXPECT_EQ(frmSample->lblText.index(), -1);
  for (const int index : {-1, 2, 4, 6, 1000}) {
    EXPECT_FALSE(rows.has(index)) << index;
  }
}

TEST_F(PropertyTest, AMissingIndexEndsTheProgramWithArrayAndIndex) {
  for (const int index : {-1, 2, 6, 100000}) {
    EXPECT_EXIT(frmSample->lblRow(index).Caption = "x", testing::ExitedWithCode(kRunTimeErrorStatus),
                "frmSample\\.lblRow has no member " + std::to_string(index) + "\n");
  }
}

int theHandledIndex = -1;

TEST_F(PropertyTest, TheHandlerOfAnArrayLearnsTheIndex) {
  frmSample->lblRow.on(&Control::onClick, [](int index) { theHandledIndex = index; });
  for (const int index : {5, 0, 1}) {
    frmSample->lblRow(index).onClick();
    EXPECT_EQ(theHandledIndex, index);
  }
}

TEST_F(PropertyTest, ControlsAreFoundByNameAndIndex) {
  EXPECT_EQ(frmSample->find("lblText", -1), &frmSample->lblText);
  EXPECT_EQ(frmSample->find("lblRow", 5), &frmSample->lblRow(5));
  EXPECT_EQ(frmSample->find("lblRow", -1), nullptr);
  EXPECT_EQ(frmSample->find("lblRow", 2), nullptr);
  EXPECT_EQ(frmSample->find("lbltext", -1), nullptr) << "names are case-sensitive";
  EXPECT_TRUE(frmSample->hasArray("lblRow"));
  EXPECT_FALSE(frmSample->hasArray("lblText"));
}

}  // namespace
}  // namespace zelvs
