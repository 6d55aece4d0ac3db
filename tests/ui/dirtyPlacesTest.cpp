// Which places of a window are drawn anew when its controls have changed.

#include <vector>

#include "support/program.h"
#include "ui/dirtyPlaces.h"

namespace zelvs {
namespace {

/// Letters and lines may stand out of their place by so much.
constexpr double kMargin = 2 * kTwipsPerPixel;

class FrmCanvas final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmCanvas() : Form("frmCanvas", kKind, Border::Fixed) {
    lblText.move(1000, 2000, 600, 300);
    picPixels.setUnit(kTwipsPerPixel);
    picPixels.move(3000, 0, 1500, 1500);
    lblInside.placeIn(picPixels);
    lblInside.move(10, 20, 30, 40);
    linInside.placeIn(picPixels);
  }
  Label lblText{this, "lblText"};
  PictureBox picPixels{this, "picPixels"};
  Label lblInside{this, "lblInside"};
  Line linInside{this, "linInside"};
  Line linAcross{this, "linAcross"};
  TextBox txtField{this, "txtField"};
  ControlArray<Label> lblMany{this, "lblMany", 0, 100};
};
FormRef<FrmCanvas> frmCanvas{"frmCanvas"};

class DirtyPlacesTest : public ProgramTest {
 protected:
  using Places = std::vector<Area>;
  static Area withMargin(double left, double top, double width, double height) {
    return Area{left, top, width, height}.shrunk(-kMargin);
  }
  FrmCanvas& form() { return *frmCanvas; }
  Places placesOf(Control& control) {
    const DirtyPlaces::Dirty dirty = places.of({&control});
    EXPECT_FALSE(dirty.whole);
    return dirty.places;
  }

  DirtyPlaces places;
  const Area text = withMargin(1000, 2000, 600, 300);
};

TEST_F(DirtyPlacesTest, NothingChangedIsNothingToDraw) {
  const DirtyPlaces::Dirty dirty = places.of({});
  EXPECT_FALSE(dirty.whole);
  EXPECT_EQ(dirty.places, Places{});
}

TEST_F(DirtyPlacesTest, AControlThatStaysIsDrawnWhereItIs) {
  EXPECT_EQ(placesOf(form().lblText), Places{text});
  EXPECT_EQ(placesOf(form().lblText), Places{text});
}

TEST_F(DirtyPlacesTest, AControlThatMovesIsDrawnWhereItWasAndWhereItIs) {
  placesOf(form().lblText);
  form().lblText.Left = 1300;
  const Area next = withMargin(1300, 2000, 600, 300);
  EXPECT_EQ(placesOf(form().lblText), (Places{text, next}));
  EXPECT_EQ(placesOf(form().lblText), Places{next});
}

TEST_F(DirtyPlacesTest, AHiddenControlIsClearedOnceAndComesBack) {
  EXPECT_EQ(placesOf(form().lblText), Places{text});
  form().lblText.Visible = false;
  EXPECT_EQ(placesOf(form().lblText), Places{text});
  EXPECT_EQ(placesOf(form().lblText), Places{});
  form().lblText.Visible = true;
  EXPECT_EQ(placesOf(form().lblText), Places{text});
}

TEST_F(DirtyPlacesTest, WhatAHiddenOneHoldsIsHiddenWithIt) {
  form().picPixels.Visible = false;
  EXPECT_EQ(placesOf(form().lblInside), Places{});
}

TEST_F(DirtyPlacesTest, APlaceCountsFromTheInsideOfTheWindowInTwips) {
  EXPECT_EQ(placesOf(form().lblInside), Places{withMargin(3000 + 150, 300, 450, 600)});
}

TEST_F(DirtyPlacesTest, ALineTakesWhatItRunsThroughWhicheverWay) {
  const auto draw = [](Line& line, double x1, double y1, double x2, double y2) {
    line.X1 = x1;
    line.Y1 = y1;
    line.X2 = x2;
    line.Y2 = y2;
  };
  const Area wanted = Area{500, 700, 1000, 200}.shrunk(-3 * kTwipsPerPixel - kMargin);
  form().linAcross.BorderWidth = 3;
  draw(form().linAcross, 500, 700, 1500, 900);
  EXPECT_EQ(placesOf(form().linAcross), Places{wanted});
  draw(form().linAcross, 1500, 700, 500, 900);
  EXPECT_EQ(placesOf(form().linAcross), Places{wanted});
  draw(form().linAcross, 1500, 900, 500, 700);
  EXPECT_EQ(placesOf(form().linAcross), Places{wanted});
  draw(form().linInside, 10, 30, 10, 20);
  EXPECT_EQ(placesOf(form().linInside), Places{(Area{3150, 300, 0, 150}.shrunk(-kTwipsPerPixel - kMargin))});
}

TEST_F(DirtyPlacesTest, FieldsAreNotDrawnByTheirWindow) {
  form().txtField.move(0, 0, 500, 300);
  EXPECT_EQ(placesOf(form().txtField), Places{});
}

TEST_F(DirtyPlacesTest, MoreThanAHundredAreOneWholeWindow) {
  std::vector<Control*> changed;
  for (Label& label : form().lblMany) {
    label.move(10.0 * label.index(), 0, 10, 10);
    changed.push_back(&label);
  }
  const DirtyPlaces::Dirty all = places.of(changed);
  EXPECT_TRUE(all.whole);
  EXPECT_EQ(all.places, Places{});
  // Where they stood is known all the same.
  form().lblMany(7).Top = 500;
  EXPECT_EQ(placesOf(form().lblMany(7)), (Places{withMargin(70, 0, 10, 10), withMargin(70, 500, 10, 10)}));
  changed.pop_back();
  const DirtyPlaces::Dirty hundred = places.of(changed);
  EXPECT_FALSE(hundred.whole);
  EXPECT_EQ(hundred.places.size(), 100u);
}

TEST_F(DirtyPlacesTest, AFormThatIsMadeAnewHasBeenDrawnNowhere) {
  placesOf(form().lblText);
  places.forget();
  form().lblText.Left = 1300;
  EXPECT_EQ(placesOf(form().lblText), Places{withMargin(1300, 2000, 600, 300)});
}

}  // namespace
}  // namespace zelvs
