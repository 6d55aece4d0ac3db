// Which control lies under a point of a form.

#include <string>

#include "support/program.h"

namespace zelvs {
namespace {

class FrmTable final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmTable() : Form("frmTable", kKind, Border::Fixed) {
    picBack.move(0, 0, 1000, 1000);
    picFront.move(500, 500, 1000, 1000);
    picBoard.move(2000, 0, 1500, 1500);
    picBoard.setUnit(kTwipsPerPixel);
    lblPin.placeIn(picBoard);
    lblPin.move(10, 10, 20, 20);  // pixels: 150 to 450 twips inside the board
    lblWide.placeIn(picBoard);
    lblWide.move(90, 90, 100, 100);
    linCable.move(0, 0, 1000, 1000);
  }
  PictureBox picBack{this, "picBack"};
  PictureBox picFront{this, "picFront"};
  PictureBox picBoard{this, "picBoard"};
  Label lblPin{this, "lblPin"};
  Label lblWide{this, "lblWide"};
  Line linCable{this, "linCable"};
};
FormRef<FrmTable> frmTable{"frmTable"};

class HitTest : public ProgramTest {
 protected:
  std::string at(double x, double y) {
    const Control* control = frmTable->controlAt(x, y);
    return control == nullptr ? "none" : control->name();
  }
};

TEST_F(HitTest, TheControlInFrontIsHit) {
  EXPECT_EQ(at(100, 100), "picBack");
  EXPECT_EQ(at(750, 750), "picFront");
  frmTable->picBack.bringToFront();
  EXPECT_EQ(at(750, 750), "picBack");
  frmTable->picBack.sendToBack();
  EXPECT_EQ(at(750, 750), "picFront");
}

TEST_F(HitTest, EdgesBelongToTheLeftAndTheTop) {
  EXPECT_EQ(at(0, 0), "picBack");
  EXPECT_EQ(at(999.5, 0), "picBack");
  EXPECT_EQ(at(1000, 0), "none");
  EXPECT_EQ(at(-1, 0), "none");
  EXPECT_EQ(at(1500, 1500), "none");
}

TEST_F(HitTest, AControlInsideIsHitAtItsPlaceInTheContainersScale) {
  EXPECT_EQ(at(2000 + 150, 150), "lblPin");
  EXPECT_EQ(at(2000 + 149, 150), "picBoard");
  EXPECT_EQ(at(2000 + 449, 449), "lblPin");
  EXPECT_EQ(at(2000 + 450, 449), "picBoard");
}

TEST_F(HitTest, WhatHangsOutOfItsContainerIsCutOff) {
  EXPECT_EQ(at(2000 + 1400, 1400), "lblWide");
  EXPECT_EQ(at(2000 + 1600, 1400), "none");
}

TEST_F(HitTest, HiddenControlsAreLookedThrough) {
  frmTable->picFront.Visible = false;
  EXPECT_EQ(at(750, 750), "picBack");
  frmTable->lblPin.Visible = false;
  EXPECT_EQ(at(2000 + 200, 200), "picBoard");
  frmTable->picBoard.Visible = false;
  EXPECT_EQ(at(2000 + 1400, 1400), "none") << "what it holds is hidden with it";
}

TEST_F(HitTest, ADisabledControlStillStandsInTheWay) {
  frmTable->picFront.Enabled = false;
  EXPECT_EQ(at(750, 750), "picFront");
}

TEST_F(HitTest, LinesAreLookedThrough) {
  EXPECT_EQ(at(100, 100), "picBack");
}

TEST_F(HitTest, MovingIntoAContainerMovesTheControlThere) {
  frmTable->picFront.placeIn(frmTable->picBack);
  frmTable->picFront.move(100, 100, 100, 100);
  EXPECT_EQ(at(150, 150), "picFront");
  EXPECT_EQ(at(750, 750), "picBack");
  EXPECT_EQ(frmTable->picFront.container(), &frmTable->picBack);
  EXPECT_EQ(frmTable->picBack.children(), std::vector<Control*>{&frmTable->picFront});
}

TEST_F(HitTest, ShownAndUsableLookAtAllThatHolds) {
  Label& pin = frmTable->lblPin;
  EXPECT_TRUE(pin.shown());
  EXPECT_TRUE(pin.usable());
  frmTable->picBoard.Visible = false;
  frmTable->picBoard.Enabled = false;
  EXPECT_FALSE(pin.shown());
  EXPECT_FALSE(pin.usable());
  EXPECT_TRUE(pin.Visible);
  EXPECT_TRUE(pin.Enabled);
}

TEST(Area, ThePartThatTwoAreasShare) {
  const Area a{0, 0, 100, 100};
  const Area shared = a.intersected({50, 60, 100, 100});
  EXPECT_EQ(shared.left, 50);
  EXPECT_EQ(shared.top, 60);
  EXPECT_EQ(shared.right(), 100);
  EXPECT_EQ(shared.bottom(), 100);
  EXPECT_FALSE(shared.empty());
  EXPECT_TRUE(a.intersected({100, 0, 10, 10}).empty()) << "areas that touch share nothing";
}

}  // namespace
}  // namespace zelvs
