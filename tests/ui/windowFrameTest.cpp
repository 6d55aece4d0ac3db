// The frame round a window's inside: which part of it lies where, how it is drawn, and which window is in front.

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "shell/frmMDI.h"
#include "support/program.h"
#include "ui/textExtent.h"
#include "ui/windowFrame.h"

namespace zelvs {
namespace {

template <FormKind Kind, Border Edge>
class FrmFramed : public Form {
 public:
  static constexpr FormKind kKind = Kind;
  explicit FrmFramed(const char* name) : Form(name, Kind, Edge) {
    Width = 3000;
    Height = 2300;
  }
};

#define FRAMED_FORM(Type, place, ...)                \
  class Type final : public FrmFramed<__VA_ARGS__> { \
   public:                                           \
    Type() : FrmFramed(#place) {}                    \
  };                                                 \
  FormRef<Type> place{#place};

FRAMED_FORM(FrmFixed, frmFixed, FormKind::Window, Border::Fixed)
FRAMED_FORM(FrmSizable, frmSizable, FormKind::Window, Border::Sizable)
FRAMED_FORM(FrmPlainBox, frmPlainBox, FormKind::Window, Border::None)
FRAMED_FORM(FrmChild, frmChild, FormKind::Child, Border::Sizable)
FRAMED_FORM(FrmFloat, frmFloat, FormKind::Child, Border::Fixed)
#undef FRAMED_FORM

/// Has a caption bar that nobody closes it by.
class FrmBoxless final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmBoxless() : Form("frmBoxless", kKind, Border::Fixed) { Width = 3000; }
  bool hasCloseBox() const override { return false; }
};
FormRef<FrmBoxless> frmBoxless{"frmBoxless"};

/// Keeps what it is told to draw.
class RecordingPainter final : public Painter {
 public:
  struct Fill {
    Area place;
    Colour colour;
  };
  struct Text {
    double left, baseline;
    std::string text;
    Area clip;
  };

  void fill(const Area& place, Colour colour) override { fills.push_back({place, colour}); }
  void line(double x1, double y1, double x2, double y2, Colour, double, Stroke) override {
    lines.push_back(Area{x1, std::min(y1, y2), x2 - x1, std::abs(y2 - y1)});
  }
  void rectangle(const Area& place, Colour, double opacity, double) override {
    rectangles.push_back(place);
    lastOpacity = opacity;
  }
  void text(double left, double baseline, std::string_view text, double, bool, Colour) override {
    texts.push_back({left, baseline, std::string(text), clips.empty() ? Area{} : clips.back()});
  }
  void image(const Picture&, const Area&) override { ADD_FAILURE() << "a frame has no picture"; }
  void pushClip(const Area& place) override { clips.push_back(place); }
  void popClip() override { clips.pop_back(); }

  std::vector<Fill> fills;
  std::vector<Area> lines, rectangles, clips;
  std::vector<Text> texts;
  double lastOpacity = 0;
};

bool within(const Area& inner, const Area& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right() <= outer.right() &&
         inner.bottom() <= outer.bottom();
}

class WindowFrameTest : public ProgramTest {};

TEST_F(WindowFrameTest, TheCaptionBarLiesAboveTheInsideAndTheCloseBoxAtItsRightEnd) {
  const Area box = closeBoxOf(*frmFixed);
  EXPECT_TRUE(within(box, {3000 - kCaptionHeight, -kCaptionHeight, kCaptionHeight, kCaptionHeight}));
  struct Row {
    Spot spot;
    FramePart part;
  };
  for (const Row& row : {Row{{1500, 0}, FramePart::Inside},
                         {{0, 0}, FramePart::Inside},
                         {{2999, 1000}, FramePart::Inside},
                         {{1500, -1}, FramePart::Caption},
                         {{0, -300}, FramePart::Caption},
                         {{box.left, box.top}, FramePart::CloseBox},
                         {{box.right() - 1, box.bottom() - 1}, FramePart::CloseBox},
                         {{box.left - 1, box.top}, FramePart::Caption},
                         {{box.right(), box.top}, FramePart::Caption},
                         {{box.left, box.bottom()}, FramePart::Caption}}) {
    EXPECT_EQ(framePartAt(*frmFixed, row.spot), row.part) << row.spot.x << " " << row.spot.y;
  }
}

TEST_F(WindowFrameTest, OnlyAWindowWithACaptionBarHasACloseBox) {
  EXPECT_FALSE(closeBoxOf(*frmFixed).empty());
  EXPECT_TRUE(closeBoxOf(*frmPlainBox).empty());
  EXPECT_TRUE(closeBoxOf(*frmBoxless).empty());
  EXPECT_EQ(framePartAt(*frmBoxless, {3000 - 150, -150}), FramePart::Caption);
  frmFixed->Width = 4000;
  EXPECT_TRUE(closeBoxOf(*frmFixed).contains(4000 - 150, -150)) << "it goes with the right edge";
}

TEST_F(WindowFrameTest, OnlyASizableWindowOnItsOwnHasEdgesToDrawBy) {
  for (const double y : {-200.0, 0.0, 1500.0}) {
    EXPECT_EQ(framePartAt(*frmSizable, {0, y}), FramePart::LeftEdge) << y;
    EXPECT_EQ(framePartAt(*frmSizable, {74, y}), FramePart::LeftEdge) << y;
    EXPECT_EQ(framePartAt(*frmSizable, {3000 - 75, y}), FramePart::RightEdge) << y;
  }
  EXPECT_EQ(framePartAt(*frmSizable, {75, 0}), FramePart::Inside);
  EXPECT_EQ(framePartAt(*frmSizable, {3000 - 76, 0}), FramePart::Inside);
  EXPECT_EQ(framePartAt(*frmFixed, {0, 500}), FramePart::Inside);
  EXPECT_EQ(framePartAt(*frmChild, {0, 500}), FramePart::Inside);
  EXPECT_EQ(framePartAt(*frmChild, {2999, 500}), FramePart::Inside);
}

TEST_F(WindowFrameTest, TheBarIsDrawnAsTheUserIsThereOrNot) {
  frmFixed->Caption = "title";
  RecordingPainter active, resting;
  drawCaption(active, *frmFixed, true);
  drawCaption(resting, *frmFixed, false);
  const Area bar{0, 0, 3000, kCaptionHeight};
  ASSERT_FALSE(active.fills.empty());
  EXPECT_EQ(active.fills[0].place, bar);
  EXPECT_EQ(resting.fills[0].place, bar);
  EXPECT_NE(active.fills[0].colour, resting.fills[0].colour);
  ASSERT_EQ(active.texts.size(), 1u);
  EXPECT_EQ(active.texts[0].text, "title");
  EXPECT_TRUE(active.clips.empty()) << "each clip is taken off again";
}

TEST_F(WindowFrameTest, ATitleEndsBeforeTheCloseBox) {
  frmFixed->Caption = std::string(100, 'x');
  RecordingPainter drawn;
  drawCaption(drawn, *frmFixed, true);
  ASSERT_EQ(drawn.texts.size(), 1u);
  EXPECT_LT(drawn.texts[0].clip.right(), closeBoxOf(*frmFixed).left);
  EXPECT_GE(drawn.texts[0].left, drawn.texts[0].clip.left);
  EXPECT_GT(drawn.texts[0].baseline, 0);
  EXPECT_LT(drawn.texts[0].baseline, kCaptionHeight);
  RecordingPainter wider;
  drawCaption(wider, *frmBoxless, true);
  EXPECT_GT(wider.texts[0].clip.right(), drawn.texts[0].clip.right()) << "no box takes of its room";
}

TEST_F(WindowFrameTest, TheCrossLiesInItsBoxAndOnlyWhereThereIsOne) {
  RecordingPainter drawn;
  drawCaption(drawn, *frmFixed, true);
  Area box = closeBoxOf(*frmFixed);
  box.top += kCaptionHeight;  // the painter counts from the bar
  ASSERT_EQ(drawn.fills.size(), 2u);
  EXPECT_EQ(drawn.fills[1].place, box);
  EXPECT_EQ(drawn.lines.size(), 2u);
  for (const Area& line : drawn.lines)
    EXPECT_TRUE(within(line, box));
  RecordingPainter without;
  drawCaption(without, *frmBoxless, true);
  EXPECT_EQ(without.fills.size(), 1u);
  EXPECT_TRUE(without.lines.empty());
}

TEST_F(WindowFrameTest, AFineLineGoesRoundTheInsideButNotOfAWindowWithoutABorder) {
  RecordingPainter drawn;
  drawFrameEdge(drawn, *frmFixed);
  ASSERT_EQ(drawn.rectangles.size(), 1u);
  EXPECT_EQ(drawn.rectangles[0], (Area{0, -kTwipsPerPixel, 3000, 2000 + kTwipsPerPixel})) << "its top is the bar's";
  EXPECT_GT(drawn.lastOpacity, 0);
  EXPECT_LT(drawn.lastOpacity, 1);
  RecordingPainter none;
  drawFrameEdge(none, *frmPlainBox);
  EXPECT_TRUE(none.rectangles.empty());
}

TEST_F(WindowFrameTest, TheWindowInFrontIsSeenWithItsCaptionBar) {
  frmFixed->move(1000, 1000);
  frmSizable->move(2000, 2000);
  frmFixed->show();
  frmSizable->show();
  EXPECT_EQ(windowAt(1500, 1500).form, frmFixed.form());
  EXPECT_EQ(windowAt(2500, 2500).form, frmSizable.form());
  frmFixed->bringToFront();
  const Seen inside = windowAt(2500, 2500);
  EXPECT_EQ(inside.form, frmFixed.form());
  EXPECT_EQ(inside.spot.x, 1500);
  EXPECT_EQ(inside.spot.y, 1200);
  const Seen bar = windowAt(1000, 1000);
  EXPECT_EQ(bar.form, frmFixed.form());
  EXPECT_EQ(bar.spot.y, -300);
  EXPECT_EQ(windowAt(999, 1000).form, nullptr);
  EXPECT_EQ(windowAt(1000, 999).form, nullptr);
  EXPECT_EQ(windowAt(4000, 1000).form, nullptr);
  EXPECT_EQ(windowAt(1000, 3300).form, nullptr);
  EXPECT_EQ(windowAt(1000, 3299).form, frmFixed.form());
}

TEST_F(WindowFrameTest, AHiddenWindowIsLookedThrough) {
  frmFixed->move(1000, 1000);
  EXPECT_EQ(windowAt(1500, 1500).form, nullptr);
  frmFixed->show();
  EXPECT_EQ(windowAt(1500, 1500).form, frmFixed.form());
  frmFixed->hide();
  EXPECT_EQ(windowAt(1500, 1500).form, nullptr);
}

TEST_F(WindowFrameTest, AWindowWithoutABorderIsInsideToItsTop) {
  frmPlainBox->move(1000, 1000);
  frmPlainBox->show();
  const Seen seen = windowAt(1000, 1000);
  EXPECT_EQ(seen.form, frmPlainBox.form());
  EXPECT_EQ(seen.spot.y, 0);
}

TEST_F(WindowFrameTest, AChildShowsOnlyInTheClientAreaAFloatingOneAlsoOverTheToolBar) {
  frmMDI->move(1000, 1000);
  frmMDI->Width = 12000;
  frmMDI->Height = 9000;
  frmChild->move(0, -100);
  frmChild->show();
  const double clientTop = frmMDI->clientAreaTop();
  EXPECT_EQ(windowAt(1100, clientTop).form, frmChild.form());
  EXPECT_EQ(windowAt(1100, clientTop - 1).form, frmMDI.form()) << "the tool bar lies over it";
  frmChild->move(-500, 0);
  frmMDI->scrollTo(0, 0);
  EXPECT_EQ(windowAt(1000, clientTop).form, frmChild.form());
  EXPECT_EQ(windowAt(999, clientTop).form, nullptr);
  frmChild->move(12000 - frmChild->Width + 15, 0);
  const double areaBottom = frmMDI->insideTop() + frmMDI->clientHeight();
  frmChild->Height = 9000;
  EXPECT_EQ(windowAt(12000 - kScrollBar, areaBottom - kScrollBar - 1).form, frmChild.form());
  EXPECT_EQ(windowAt(12000 - kScrollBar, areaBottom - kScrollBar).form, frmMDI.form()) << "a scroll bar lies there";
  EXPECT_EQ(windowAt(1000 + 12000 - kScrollBar, clientTop).form, frmMDI.form()) << "and there";

  frmFloat->show();
  frmFloat->setFloating(true);
  frmFloat->move(6000, kClientEdge);
  EXPECT_EQ(windowAt(1000 + 6000, frmMDI->insideTop()).form, frmFloat.form());
  EXPECT_EQ(windowAt(1000 + 6000, frmMDI->insideTop() - 1).form, frmMDI.form()) << "the frame's own bar";
}

TEST_F(WindowFrameTest, APlaceOfTheScreenCountsFromTheInside) {
  frmFixed->move(1000, 2000);
  const Spot spot = insideOf(*frmFixed, 1000, 2000);
  EXPECT_EQ(spot.x, 0);
  EXPECT_EQ(spot.y, -kCaptionHeight);
  frmChild->move(100, 200);
  frmMDI->move(3000, 4000);
  const Spot child = insideOf(*frmChild, frmChild->insideLeft() + 7, frmChild->insideTop() + 9);
  EXPECT_EQ(child.x, 7);
  EXPECT_EQ(child.y, 9);
}

}  // namespace
}  // namespace zelvs
