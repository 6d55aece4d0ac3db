// Where windows may go: on the screen, in the frame's client area that scrolls, and in reach of a hand.

#include "shell/frmMDI.h"
#include "support/program.h"

namespace zelvs {
namespace {

constexpr double kScreenWidth = 1920 * kTwipsPerPixel;
constexpr double kScreenHeight = 1080 * kTwipsPerPixel;
constexpr double kGrip = 60 * kTwipsPerPixel;  // what of a caption bar stays in reach

class FrmAlone final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmAlone() : Form("frmAlone", kKind, Border::Sizable) {}
};
FormRef<FrmAlone> frmAlone{"frmAlone"};

class FrmLeaf : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  explicit FrmLeaf(const char* name = "frmLeaf") : Form(name, kKind, Border::Fixed) {
    Width = 3000;
    Height = 2000;
  }
};
FormRef<FrmLeaf> frmLeaf{"frmLeaf"};

class FrmTwig final : public FrmLeaf {
 public:
  FrmTwig() : FrmLeaf("frmTwig") {}
};
FormRef<FrmTwig> frmTwig{"frmTwig"};

class WindowPlaceTest : public ProgramTest {
 protected:
  /// A frame whose client area is 12000 by 9000 twips, with one child in it.
  WindowPlaceTest() {
    frmMDI->move(1000, 500);
    frmMDI->Width = 12000;
    frmMDI->Height = kCaptionHeight + frmMDI->barHeight() + 9000;
    leaf().show();
  }
  FrmLeaf& leaf() { return *frmLeaf; }
  static void expectAt(const Form& form, double left, double top) {
    EXPECT_EQ(form.Left, left) << form.name();
    EXPECT_EQ(form.Top, top) << form.name();
  }
  static void expectScrolled(double left, double top) {
    EXPECT_EQ(frmMDI->ScrollLeft, left);
    EXPECT_EQ(frmMDI->ScrollTop, top);
  }
  static double clientTop() { return 500 + kCaptionHeight + frmMDI->barHeight(); }
};

TEST_F(WindowPlaceTest, TheClientAreaIsTheInsideBelowTheToolBar) {
  EXPECT_EQ(frmMDI->clientArea(), (Area{1000, clientTop(), 12000, 9000}));
  EXPECT_EQ(frmMDI->clientAreaTop(), clientTop());
  leaf().move(12000 - 3000, 9000 - 2000);
  EXPECT_EQ(frmMDI->clientArea(), (Area{1000, clientTop(), 12000, 9000})) << "it just fits";
}

TEST_F(WindowPlaceTest, WhatDoesNotFitInBringsABar) {
  leaf().move(12000 - 3000 + 15, 0);
  EXPECT_EQ(frmMDI->clientArea(), (Area{1000, clientTop(), 12000, 9000 - kScrollBar}));
  leaf().move(0, 9000 - 2000 + 15);
  EXPECT_EQ(frmMDI->clientArea(), (Area{1000, clientTop(), 12000 - kScrollBar, 9000}));
  leaf().move(-15, 9000 - 2000);
  frmTwig->move(12000 - 3000, 0);
  frmTwig->show();
  EXPECT_EQ(frmMDI->clientArea(), (Area{1000, clientTop(), 12000 - kScrollBar, 9000 - kScrollBar}))
      << "from -15 to 12000 is too wide, and its bar is in the way below";
  frmTwig->hide();
  leaf().move(-15, 0);
  EXPECT_EQ(frmMDI->clientArea(), (Area{1000, clientTop(), 12000, 9000 - kScrollBar})) << "what hangs out at the left";
  EXPECT_EQ(frmMDI->scrollRange(), (Area{-15, 0, 12000 + 15, 9000 - kScrollBar}));
}

TEST_F(WindowPlaceTest, OneBarMayBeWhatTheOtherIsNeededFor) {
  const Area both{1000, clientTop(), 12000 - kScrollBar, 9000 - kScrollBar};
  leaf().move(12000 - 3000 + 15, 9000 - 2000 - kScrollBar + 15);
  EXPECT_EQ(frmMDI->clientArea(), both);
  leaf().move(12000 - 3000 - kScrollBar + 15, 9000 - 2000 + 15);
  EXPECT_EQ(frmMDI->clientArea(), both);
}

TEST_F(WindowPlaceTest, OnlyChildrenThatShowInTheAreaTakeSomeOfIt) {
  leaf().move(15000, 0);
  leaf().hide();
  EXPECT_EQ(frmMDI->clientArea().height, 9000);
  EXPECT_EQ(frmMDI->scrollRange(), (Area{0, 0, 12000, 9000}));
  leaf().show();
  EXPECT_EQ(frmMDI->clientArea().height, 9000 - kScrollBar);
  leaf().setFloating(true);
  EXPECT_EQ(frmMDI->clientArea().height, 9000);
  frmAlone->move(25000, 0);
  frmAlone->show();
  EXPECT_EQ(frmMDI->clientArea().height, 9000);
}

TEST_F(WindowPlaceTest, AFrameLowerThanItsToolBarHasNoArea) {
  frmMDI->Height = kCaptionHeight + 100;
  leaf().hide();
  EXPECT_EQ(frmMDI->clientArea().height, 0);
}

TEST_F(WindowPlaceTest, TheRangeReachesFromTheFirstChildToTheLast) {
  EXPECT_EQ(frmMDI->scrollRange(), (Area{0, 0, 12000, 9000}));
  leaf().move(-600, -300);
  frmTwig->move(14000, 10000);
  frmTwig->show();
  EXPECT_EQ(frmMDI->scrollRange(), (Area{-600, -300, 14000 + 3000 + 600, 10000 + 2000 + 300}));
}

TEST_F(WindowPlaceTest, ItScrollsAsFarAsThereAreChildren) {
  frmMDI->scrollTo(500, 500);
  expectScrolled(0, 0);
  leaf().move(14000, 10000);
  frmMDI->scrollTo(600, 300);
  expectScrolled(600, 300);
  EXPECT_EQ(leaf().insideLeft(), 1000 + 14000 - 600);
  EXPECT_EQ(leaf().insideTop(), clientTop() + 10000 - 300 + kCaptionHeight);
  frmMDI->scrollTo(99000, 99000);
  expectScrolled(17000 - (12000 - kScrollBar), 12000 - (9000 - kScrollBar));
  frmMDI->scrollTo(-500, -500);
  expectScrolled(0, 0);
  leaf().move(-600, -300);
  frmTwig->move(11000, 8000);
  frmTwig->show();
  frmMDI->scrollTo(-5000, -5000);
  expectScrolled(-600, -300);
}

TEST_F(WindowPlaceTest, AChildThatGoesOrComesBackTakesTheScrollWithIt) {
  leaf().move(14000, 10000);
  frmMDI->scrollTo(5000, 3000);
  leaf().hide();
  expectScrolled(0, 0);
  leaf().show();
  frmMDI->scrollTo(5000, 3000);
  leaf().move(10000, 8000);
  expectScrolled(13000 - (12000 - kScrollBar), 10000 - (9000 - kScrollBar));
  leaf().move(14000, 10000);
  frmMDI->scrollTo(5000, 3000);
  frmMDI->Width = 20000;
  expectScrolled(0, 3000);
}

TEST_F(WindowPlaceTest, RevealingScrollsNoFurtherThanItMust) {
  leaf().move(14000, 10000);
  leaf().reveal();
  expectScrolled(17000 - (12000 - kScrollBar), 12000 - (9000 - kScrollBar));
  leaf().reveal();
  expectScrolled(17000 - (12000 - kScrollBar), 12000 - (9000 - kScrollBar));
  frmTwig->move(6000, 4000);
  frmTwig->show();
  frmTwig->reveal();
  expectScrolled(17000 - (12000 - kScrollBar), 12000 - (9000 - kScrollBar));
  frmTwig->move(3000, 3600);
  frmTwig->reveal();
  expectScrolled(3000, 12000 - (9000 - kScrollBar));
}

TEST_F(WindowPlaceTest, OfAChildLargerThanTheAreaTheCornerIsRevealed) {
  leaf().Width = 20000;
  leaf().Height = 15000;
  leaf().move(1000, 2000);
  frmMDI->scrollTo(99000, 99000);
  leaf().reveal();
  expectScrolled(1000, 2000);
}

TEST_F(WindowPlaceTest, OnlyAChildInTheAreaIsScrolledTo) {
  leaf().move(14000, 10000);
  frmTwig->show();
  frmTwig->move(14000, 10000);
  frmTwig->setFloating(true);
  frmTwig->reveal();
  expectScrolled(0, 0);
  frmAlone->move(20000, 12000);
  frmAlone->show();
  frmAlone->reveal();
  expectScrolled(0, 0);
}

TEST_F(WindowPlaceTest, AWindowIsShiftedUntilAllOfItLiesOnTheScreen) {
  frmAlone->Width = 6000;
  frmAlone->Height = 4000;
  struct Row {
    double left, top, wantedLeft, wantedTop;
  };
  for (const Row& row : {Row{100, 200, 100, 200},
                         {-10, -20, 0, 0},
                         {kScreenWidth, kScreenHeight, kScreenWidth - 6000, kScreenHeight - 4000},
                         {kScreenWidth - 6000, kScreenHeight - 4000, kScreenWidth - 6000, kScreenHeight - 4000}}) {
    frmAlone->move(row.left, row.top);
    frmAlone->keepOnScreen();
    expectAt(*frmAlone, row.wantedLeft, row.wantedTop);
  }
  frmAlone->Width = kScreenWidth + 100;
  frmAlone->move(500, 100);
  frmAlone->keepOnScreen();
  expectAt(*frmAlone, 0, 100);
}

TEST_F(WindowPlaceTest, AModalWindowComesOntoTheScreen) {
  frmAlone->move(-5000, kScreenHeight);
  platform.onModal = [](Form& form) { form.hide(); };
  frmAlone->show(ShowMode::Modal);
  expectAt(*frmAlone, 0, kScreenHeight - frmAlone->Height);
}

TEST_F(WindowPlaceTest, ACornerIsCountedFromTheRightBottomOfTheScreen) {
  frmAlone->moveToCorner(150, 600);
  expectAt(*frmAlone, kScreenWidth - frmAlone->Width - 150, kScreenHeight - frmAlone->Height - 600);
}

TEST_F(WindowPlaceTest, AWindowIsDraggedByWholePixelsAndStaysInReach) {
  Form& form = *frmAlone;
  form.dragTo(1003, 2008);
  expectAt(form, 1005, 2010);
  form.dragTo(-99000, -99000);
  expectAt(form, kGrip - form.Width, 0);
  form.dragTo(99000, 99000);
  expectAt(form, kScreenWidth - kGrip, kScreenHeight - kCaptionHeight);
}

TEST_F(WindowPlaceTest, AChildIsDraggedAsFarAsTheAreaScrolls) {
  leaf().dragTo(-99000, -99000);
  expectAt(leaf(), kGrip - 3000, 0);
  leaf().move(0, 0);
  leaf().dragTo(99000, 99000);
  expectAt(leaf(), 12000 - kGrip, 9000 - kCaptionHeight);
  leaf().move(0, 0);
  frmTwig->move(14000, 10000);
  frmTwig->show();
  leaf().dragTo(99000, 99000);
  expectAt(leaf(), 17000 - kGrip, 12000 - kCaptionHeight);
}

TEST_F(WindowPlaceTest, AFloatingOneIsDraggedOverTheClientAreaWhereverThatIsScrolled) {
  frmTwig->move(14000, 10000);
  frmTwig->show();
  frmMDI->scrollTo(2000, 2000);
  leaf().setFloating(true);
  const double top = kClientEdge + frmMDI->barHeight();
  leaf().dragTo(-99000, -99000);
  expectAt(leaf(), kClientEdge + kGrip - 3000, top);
  leaf().dragTo(99000, 99000);
  expectAt(leaf(), kClientEdge + 12000 - kGrip, top + 9000 - kCaptionHeight);
}

TEST_F(WindowPlaceTest, AFloatingOneCountsFromTheFrameItself) {
  leaf().move(300, 600);
  leaf().setFloating(true);
  EXPECT_TRUE(leaf().floating());
  EXPECT_EQ(leaf().insideLeft(), 1000 + 300 - kClientEdge);
  EXPECT_EQ(leaf().insideTop(), 500 + kCaptionHeight + 600 - kClientEdge + kCaptionHeight);
  leaf().setFloating(false);
  EXPECT_EQ(leaf().insideLeft(), 1000 + 300);
  EXPECT_EQ(leaf().insideTop(), clientTop() + 600 + kCaptionHeight);
}

TEST_F(WindowPlaceTest, AFrameThatShrinksTakesItsFloatingChildrenAlong) {
  leaf().move(9000, 7000);
  leaf().setFloating(true);
  frmTwig->move(9000, 7000);
  frmTwig->show();
  frmMDI->Width = 6000;
  EXPECT_EQ(leaf().Left, kClientEdge + 6000 - kGrip);
  frmMDI->Height = kCaptionHeight + frmMDI->barHeight() + 3000;
  expectAt(leaf(), kClientEdge + 6000 - kGrip, kClientEdge + frmMDI->barHeight() + 3000 - kCaptionHeight);
  expectAt(*frmTwig, 9000, 7000);
  frmMDI->Width = 12000;
  EXPECT_EQ(leaf().Left, kClientEdge + 6000 - kGrip) << "it does not come back by itself";
}

TEST_F(WindowPlaceTest, KeptInReachItGoesNoFurtherThanItMust) {
  leaf().setFloating(true);
  leaf().move(301, 1003);
  leaf().keepInReach();
  expectAt(leaf(), 301, 1003);
  leaf().move(-99000, 1003);
  leaf().keepInReach();
  expectAt(leaf(), kClientEdge + kGrip - 3000, 1003);
  leaf().setFloating(false);
  leaf().hide();  // else the area would reach as far as it goes
  leaf().move(-99000, -99000);
  leaf().keepInReach();
  expectAt(leaf(), -99000, -99000);
}

TEST_F(WindowPlaceTest, AWindowIsDrawnBetweenALeastWidthAndTheScreens) {
  struct Row {
    double asked, got;
  };
  for (const Row& row : {Row{5000, 5000}, {3000, 3000}, {2999, 3000}, {-500, 3000}, {99000, kScreenWidth}}) {
    frmAlone->drawWider(row.asked);
    EXPECT_EQ(frmAlone->Width, row.got) << row.asked;
  }
}

}  // namespace
}  // namespace zelvs
