// Where a hand reaches what lies partly under other things.

#include <optional>

#include "support/program.h"
#include "ui/controls.h"
#include "ui/reach.h"

namespace zelvs {
namespace {

class FrmStack final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmStack() : Form("frmStack", kKind, Border::Fixed) {
    Width = 4000;
    Height = 4300;
    picUnder.move(1000, 1000, 1600, 800);
    picCover.Visible = false;
    picPixels.setUnit(kTwipsPerPixel);
    picPixels.move(0, 2000, 1500, 1500);
    lblInside.placeIn(picPixels);
    lblInside.move(10, 20, 40, 30);
  }
  PictureBox picUnder{this, "picUnder"};
  PictureBox picCover{this, "picCover"};
  PictureBox picPixels{this, "picPixels"};
  Label lblInside{this, "lblInside"};
  Line linAcross{this, "linAcross"};
};
FormRef<FrmStack> frmStack{"frmStack"};

class ReachTest : public ProgramTest {
 protected:
  FrmStack& form() { return *frmStack; }
  void cover(double left, double top, double width, double height) {
    form().picCover.move(left, top, width, height);
    form().picCover.Visible = true;
  }
  void expectPlace(const Control* control, double x, double y) {
    const std::optional<Spot> place = freePlace(form(), control);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->x, x);
    EXPECT_EQ(place->y, y);
    EXPECT_EQ(form().controlAt(place->x, place->y), control);
  }
};

TEST_F(ReachTest, TheMiddleIsTakenWhereItIsFree) {
  expectPlace(&form().picUnder, 1800, 1400);
  cover(1000, 1000, 700, 800);
  expectPlace(&form().picUnder, 1800, 1400);
}

TEST_F(ReachTest, APlaceBesideWhatCoversTheMiddleIsFound) {
  cover(1000, 1000, 1500, 800);
  const std::optional<Spot> none = freePlace(form(), &form().picUnder);
  EXPECT_FALSE(none) << "a strip narrower than an eighth is not looked for";
  cover(1000, 1000, 1400, 800);
  expectPlace(&form().picUnder, 2400, 1100);
  cover(1000, 1000, 1600, 700);
  expectPlace(&form().picUnder, 1200, 1700);
}

TEST_F(ReachTest, WhatIsCoveredEverywhereIsNotReached) {
  cover(900, 900, 2000, 2000);
  EXPECT_FALSE(freePlace(form(), &form().picUnder));
  form().picCover.Visible = false;
  expectPlace(&form().picUnder, 1800, 1400);
}

TEST_F(ReachTest, WhatIsHiddenOrHasNoAreaIsNotReached) {
  form().picUnder.Visible = false;
  EXPECT_FALSE(freePlace(form(), &form().picUnder));
  EXPECT_FALSE(freePlace(form(), &form().linAcross));
  form().picPixels.Visible = false;
  EXPECT_FALSE(freePlace(form(), &form().lblInside));
}

TEST_F(ReachTest, WhatItHoldsCoversIt) {
  expectPlace(&form().lblInside, 30 * 15, 2000 + 35 * 15);
  expectPlace(&form().picPixels, 750, 2750);
  form().lblInside.move(0, 0, 100, 80);
  expectPlace(&form().picPixels, 1500 / 8.0, 2000 + 1500 * 7 / 8.0);
}

TEST_F(ReachTest, WhatHangsOutOfItsHolderIsReachedInside) {
  form().lblInside.move(80, 0, 80, 80);
  expectPlace(&form().lblInside, 1200 + 1200 / 8.0, 2000 + 1200 / 8.0);
}

TEST_F(ReachTest, TheFormItselfIsReachedBesideItsControls) {
  expectPlace(nullptr, 2000, 2000);
  cover(0, 0, 4000, 3900);
  EXPECT_FALSE(freePlace(form(), nullptr));
  cover(500, 0, 3500, 4000);
  EXPECT_FALSE(freePlace(form(), nullptr)) << "the place on its edge is covered";
  cover(600, 0, 3400, 4000);
  expectPlace(nullptr, 500, 500);
}

}  // namespace
}  // namespace zelvs
