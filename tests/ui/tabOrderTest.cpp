// Where the Tab key stops: as the controls stand, not as they were made.

#include <string>
#include <vector>

#include "support/program.h"
#include "ui/tabOrder.h"

namespace zelvs {
namespace {

class FrmSheet final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmSheet() : Form("frmSheet", kKind, Border::Fixed) {
    for (Control* control : std::vector<Control*>{&chkGrouped, &optGrouped, &fraInner})
      control->placeIn(fraGroup);
    txtInnermost.placeIn(fraInner);
    cmdLast.move(0, 3000, 100, 100);
    txtRight.move(2000, 100, 100, 100);
    // The group stands left of the field on its right, and reaches further down.
    fraGroup.move(0, 100, 1000, 2000);
    optGrouped.move(500, 0, 100, 100);
    chkGrouped.move(0, 500, 100, 100);
    fraInner.move(0, 200, 400, 200);
    lblTitle.move(0, 0, 100, 100);
    picFace.move(0, 50, 100, 100);
    txtInnermost.move(0, 0, 100, 100);
  }
  CommandButton cmdLast{this, "cmdLast"};
  TextBox txtRight{this, "txtRight"};
  Frame fraGroup{this, "fraGroup"};
  CheckBox chkGrouped{this, "chkGrouped"};
  OptionButton optGrouped{this, "optGrouped"};
  Frame fraInner{this, "fraInner"};
  TextBox txtInnermost{this, "txtInnermost"};
  Label lblTitle{this, "lblTitle"};
  PictureBox picFace{this, "picFace"};
};
FormRef<FrmSheet> frmSheet{"frmSheet"};

class FrmBare final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmBare() : Form("frmBare", kKind, Border::Fixed) {}
  Label lblTitle{this, "lblTitle"};
};
FormRef<FrmBare> frmBare{"frmBare"};

class TabOrderTest : public ProgramTest {
 protected:
  using Controls = std::vector<Control*>;
  FrmSheet& form() { return *frmSheet; }
  Control* behind(const Control* from) { return nextInTabOrder(form(), from, false); }
  Control* before(const Control* from) { return nextInTabOrder(form(), from, true); }
};

TEST_F(TabOrderTest, LineByLineAndThroughAGroupBeforeItGoesOnBesideIt) {
  EXPECT_EQ(tabOrder(form()), (Controls{&form().optGrouped, &form().txtInnermost, &form().chkGrouped, &form().txtRight,
                                        &form().cmdLast}));
}

TEST_F(TabOrderTest, WhatStandsAtOnePlaceGoesInTheOrderOfItsMaking) {
  form().txtRight.move(0, 3000, 100, 100);
  EXPECT_EQ(tabOrder(form()), (Controls{&form().optGrouped, &form().txtInnermost, &form().chkGrouped, &form().cmdLast,
                                        &form().txtRight}));
}

TEST_F(TabOrderTest, WhatCannotBeWorkedIsInTheOrderButPassedBy) {
  form().fraInner.Visible = false;
  form().chkGrouped.Enabled = false;
  EXPECT_EQ(tabOrder(form()).size(), 5u);
  EXPECT_EQ(behind(&form().optGrouped), &form().txtRight);
  EXPECT_EQ(before(&form().txtRight), &form().optGrouped);
  form().fraGroup.Enabled = false;
  EXPECT_EQ(behind(&form().cmdLast), &form().txtRight);
}

TEST_F(TabOrderTest, ItGoesRoundTheEndBothWays) {
  const Controls order = tabOrder(form());
  for (std::size_t at = 0; at < order.size(); ++at) {
    Control* next = order[(at + 1) % order.size()];
    EXPECT_EQ(behind(order[at]), next) << order[at]->name();
    EXPECT_EQ(before(next), order[at]) << next->name();
  }
}

TEST_F(TabOrderTest, FromNowhereItStartsAtAnEnd) {
  for (const Control* nowhere : {static_cast<const Control*>(nullptr), static_cast<const Control*>(&frmBare->lblTitle),
                                 static_cast<const Control*>(&form().picFace)}) {
    EXPECT_EQ(behind(nowhere), &form().optGrouped);
    EXPECT_EQ(before(nowhere), &form().cmdLast);
  }
}

TEST_F(TabOrderTest, FromOneThatHasGoneItGoesOnFromItsPlace) {
  form().chkGrouped.Visible = false;
  EXPECT_EQ(behind(&form().chkGrouped), &form().txtRight);
  EXPECT_EQ(before(&form().chkGrouped), &form().txtInnermost);
}

TEST_F(TabOrderTest, TheOnlyOneComesBackToItself) {
  form().fraGroup.Visible = false;
  form().cmdLast.Enabled = false;
  EXPECT_EQ(behind(&form().txtRight), &form().txtRight);
  EXPECT_EQ(before(&form().txtRight), &form().txtRight);
  form().txtRight.Enabled = false;
  EXPECT_EQ(behind(&form().txtRight), nullptr);
}

TEST_F(TabOrderTest, AFormWithoutFieldsHasNoOrder) {
  EXPECT_TRUE(tabOrder(*frmBare).empty());
  EXPECT_EQ(nextInTabOrder(*frmBare, nullptr, false), nullptr);
}

}  // namespace
}  // namespace zelvs
