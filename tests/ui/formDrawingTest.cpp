// What a form's inside is drawn with, and how little of it where little is dirty.

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "support/program.h"
#include "ui/drawing.h"

namespace zelvs {
namespace {

using Lines = std::vector<std::string>;

template <class... Numbers>
std::string numbers(Numbers... each) {
  std::string text;
  for (const double number : {static_cast<double>(each)...}) {
    char digits[32];
    std::snprintf(digits, sizeof digits, " %.9g", number);
    text += digits;
  }
  return text;
}

/// Writes down what it is told to draw, a line each: "fill left top width height colour".
class WritingPainter final : public Painter {
 public:
  void fill(const Area& place, Colour colour) override { note("fill" + of(place) + numbers(colour)); }
  void line(double x1, double y1, double x2, double y2, Colour colour, double width, Stroke stroke) override {
    note((stroke == Stroke::Crisp ? "crisp" : "smooth") + numbers(x1, y1, x2, y2, colour, width));
  }
  void rectangle(const Area& place, Colour colour, double opacity, double corner) override {
    EXPECT_GT(opacity, 0);
    EXPECT_LT(opacity, 1);
    note("outline" + of(place) + numbers(colour, corner));
  }
  void text(double left, double baseline, std::string_view text, double points, bool bold, Colour colour) override {
    note("text" + numbers(left, baseline, points, colour) + (bold ? " bold " : " ") + std::string(text));
  }
  void image(const Picture& picture, const Area& place) override { note("image" + numbers(picture.image) + of(place)); }
  void pushClip(const Area& place) override { note("clip" + of(place)); }
  void popClip() override { note("back"); }

  Lines lines;

 private:
  static std::string of(const Area& place) { return numbers(place.left, place.top, place.width, place.height); }
  void note(const std::string& what) { lines.push_back(what); }
};

class FrmDrawn final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmDrawn() : Form("frmDrawn", kKind, Border::None) {
    Width = 3000;
    Height = 2000;
    BackColor = 7;
    for (Control* const control : topControls())
      control->Visible = false;
  }
  ImageList ilsPictures{"ilsPictures", 3};
  ControlArray<Label> lblText{this, "lblText", 0, 2};
  PictureBox picBox{this, "picBox"};
  Label lblInBox{this, "lblInBox"};
  Image imgPicture{this, "imgPicture"};
  Line linAcross{this, "linAcross"};
  Shape shpBoard{this, "shpBoard"};
  Frame fraGroup{this, "fraGroup"};
  TextBox txtField{this, "txtField"};
};
FormRef<FrmDrawn> frmDrawn{"frmDrawn"};

// 10 points: a line is 250 twips high, its letters stand 199 below its top, and an ASCII one is 100 wide.
constexpr double kPoints = 10;
constexpr Area kInside{0, 0, 3000, 2000};
const std::string kGround = "fill 0 0 3000 2000 7";

class FormDrawingTest : public ProgramTest {
 protected:
  static Lines drawn(const std::vector<Area>& dirty = {kInside}) {
    WritingPainter painter;
    drawForm(painter, *frmDrawn, dirty);
    return painter.lines;
  }
  /// Shows it there.
  template <class Shown>
  static Shown& put(Shown& control, const Area& place) {
    control.move(place.left, place.top, place.width, place.height);
    control.FontSize = kPoints;
    control.Visible = true;
    return control;
  }
  static Label& label(int index, const std::string& text, const Area& place) {
    Label& label = put(frmDrawn->lblText(index), place);
    label.Caption = text;
    return label;
  }
};

TEST_F(FormDrawingTest, NothingIsDrawnWhereNothingIsDirty) {
  label(0, "A", {0, 0, 500, 250});
  EXPECT_EQ(drawn({}), Lines{});
}

TEST_F(FormDrawingTest, OnlyWhatADirtyPlaceTouchesIsDrawn) {
  label(0, "A", {0, 0, 500, 250});
  label(1, "B", {1000, 1000, 500, 250});
  label(2, "C", {2000, 1500, 500, 250});
  EXPECT_EQ(drawn({{0, 0, 1, 1}}), (Lines{"fill 0 0 1 1 7", "text 0 199 10 0 A"}));
  // B lies between the two dirty places, but in neither.
  EXPECT_EQ(drawn({{2499, 1749, 1, 1}, {499, 249, 1, 1}}),
            (Lines{"fill 2499 1749 1 1 7", "fill 499 249 1 1 7", "text 0 199 10 0 A", "text 2000 1699 10 0 C"}));
  EXPECT_EQ(drawn({{500, 0, 1, 1}}), Lines{"fill 500 0 1 1 7"}) << "an edge is not shared";
  frmDrawn->lblText(0).Visible = false;
  EXPECT_EQ(drawn({{0, 0, 1, 1}}), Lines{"fill 0 0 1 1 7"});
}

TEST_F(FormDrawingTest, ATextStandsAtItsSideAndInTheMiddleOfItsHeight) {
  Label& text = label(0, "AB", {100, 100, 1000, 350});
  EXPECT_EQ(drawn(), (Lines{kGround, "text 100 349 10 0 AB"}));
  text.Align = Alignment::Right;
  EXPECT_EQ(drawn(), (Lines{kGround, "text 900 349 10 0 AB"}));
  text.Align = Alignment::Center;
  text.FontBold = true;
  text.ForeColor = 255;
  EXPECT_EQ(drawn(), (Lines{kGround, "text 500 349 10 255 bold AB"}));
}

TEST_F(FormDrawingTest, ALabelThatSizesItselfBeginsAtItsTop) {
  Label& text = label(0, "AB", {100, 100, 1000, 350});
  text.AutoSize = true;
  text.Height = 350;
  EXPECT_EQ(drawn(), (Lines{kGround, "text 100 299 10 0 AB"}));
}

TEST_F(FormDrawingTest, LinesOfATextStandBelowEachOtherAndAreClipped) {
  Label& text = label(0, "A\r\nBC\n\nD", {0, 0, 1000, 1000});
  text.Align = Alignment::Center;
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 1000 1000", "text 450 199 10 0 A", "text 400 449 10 0 BC",
                            "text 450 949 10 0 D", "back"}));
}

TEST_F(FormDrawingTest, OnlyATextThatIsTooWideIsClipped) {
  label(0, "ABCD", {0, 0, 400, 250});
  EXPECT_EQ(drawn(), (Lines{kGround, "text 0 199 10 0 ABCD"}));
  frmDrawn->lblText(0).Width = 399;
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 399 250", "text 0 199 10 0 ABCD", "back"}));
}

TEST_F(FormDrawingTest, ALabelHasAGroundOrABorderOfItsOwn) {
  Label& text = label(0, "", {0, 0, 400, 250});
  EXPECT_EQ(drawn(), Lines{kGround});
  text.Transparent = false;
  text.BackColor = 9;
  text.Bordered = true;
  EXPECT_EQ(drawn(), (Lines{kGround, "fill 0 0 400 250 9", "outline 0 0 400 250 0 0"}));
}

TEST_F(FormDrawingTest, APictureBoxShowsItsPictureThenItsDrawingThenItsBorder) {
  PictureBox& box = put(frmDrawn->picBox, {100, 200, 600, 300});
  box.BackColor = 9;
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 100 200 600 300", "fill 100 200 600 300 9", "back"}));
  box.Picture = frmDrawn->ilsPictures.image(2);
  box.Bordered = true;
  box.Transparent = true;
  box.setUnit(kTwipsPerPixel);
  box.line(1, 2, 3, 4, 255);
  box.CurrentX = 10;
  box.CurrentY = 20;
  box.FontSize = kPoints;
  box.FontBold = true;
  box.print("A");
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 100 200 600 300", "image 2 100 200 600 300", "crisp 115 230 145 260 255 1",
                            "text 250 699 10 0 bold A", "outline 100 200 600 300 0 0", "back"}));
}

TEST_F(FormDrawingTest, WhatAPictureBoxHoldsIsDrawnOnItInItsScale) {
  PictureBox& box = put(frmDrawn->picBox, {100, 200, 600, 300});
  box.Transparent = true;
  box.setUnit(kTwipsPerPixel);
  Label& inside = put(frmDrawn->lblInBox, {2, 4, 20, 10});
  inside.placeIn(box);
  inside.Caption = "A";
  inside.AutoSize = true;
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 100 200 600 300", "text 130 459 10 0 A", "back"}));
  EXPECT_EQ(drawn({{100, 200, 1, 1}}), (Lines{"fill 100 200 1 1 7", "clip 100 200 600 300", "back"}));
}

TEST_F(FormDrawingTest, AnImageFillsItsPlace) {
  Image& image = put(frmDrawn->imgPicture, {0, 0, 60, 30});
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 60 30", "back"}));
  image.Picture = frmDrawn->ilsPictures.image(3);
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 60 30", "image 3 0 0 60 30", "back"}));
}

TEST_F(FormDrawingTest, ALineIsDrawnWhereADirtyPlaceTouchesItsThickness) {
  Line& line = frmDrawn->linAcross;
  line.X1 = 100;
  line.Y1 = 100;
  line.X2 = 500;
  line.Y2 = 100;
  line.BorderWidth = 2;
  line.ForeColor = 255;
  line.Visible = true;
  EXPECT_EQ(drawn(), (Lines{kGround, "smooth 100 100 500 100 255 2"}));
  EXPECT_EQ(drawn({{200, 90, 1, 1}}), (Lines{"fill 200 90 1 1 7", "smooth 100 100 500 100 255 2"}));
  EXPECT_EQ(drawn({{200, 200, 1, 1}}), Lines{"fill 200 200 1 1 7"});
}

TEST_F(FormDrawingTest, AShapeIsAPlateInABorder) {
  Shape& shape = put(frmDrawn->shpBoard, {0, 0, 300, 150});
  shape.ForeColor = 255;
  shape.BackColor = 9;
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 300 150", "fill 0 0 300 150 255", "fill 15 15 270 120 9", "back"}));
  shape.ForeColor = 9;
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 300 150", "fill 0 0 300 150 9", "back"}));
}

TEST_F(FormDrawingTest, TheTitleOfAGroupInterruptsItsOutline) {
  Frame& group = put(frmDrawn->fraGroup, {0, 0, 1000, 500});
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 1000 500", "outline 0 0 1000 500 8421504 3", "back"}));
  group.Caption = "AB";
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 1000 500", "outline 0 125 1000 375 8421504 3", "fill 90 0 260 250 7",
                            "text 120 199 10 0 AB", "back"}));
  // On the ground of what holds it.
  PictureBox& box = put(frmDrawn->picBox, {0, 0, 3000, 2000});
  box.BackColor = 9;
  group.placeIn(box);
  EXPECT_EQ(drawn().at(4), "outline 0 125 1000 375 8421504 3");
  EXPECT_EQ(drawn().at(5), "fill 90 0 260 250 9");
}

TEST_F(FormDrawingTest, AFieldIsLeftToWhoeverHasIt) {
  put(frmDrawn->txtField, {0, 0, 600, 300}).Text = "A";
  EXPECT_EQ(drawn(), (Lines{kGround, "clip 0 0 600 300", "back"}));
}

}  // namespace
}  // namespace zelvs
