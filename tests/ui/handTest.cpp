// The mouse as the model knows it: what a press belongs to, when it is over, and what takes it away.

#include <functional>
#include <string>

#include "support/logFixture.h"
#include "ui/gesture.h"
#include "ui/hand.h"

namespace zelvs {
namespace {

constexpr Spot kOnce{100, 100};    // on picOnce
constexpr Spot kTwice{1100, 100};  // on picTwice
constexpr Spot kBare{3000, 2000};
constexpr Spot kOutside{9000, 9000};
constexpr Spot kCaption{600, -150};

class FrmPlate final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmPlate() : Form("frmPlate", kKind, Border::Fixed) {
    move(1500, 1500);
    noteMouse(picOnce);
    noteMouse(picTwice, true);
    noteMouse(lstRows, true);
    noteMouse(cmdPush);
    picOnce.move(0, 0, 1000, 1000);
    picTwice.move(1000, 0, 1000, 1000);
    txtLeft.move(0, 2000, 1000, 300);
    cmdPush.move(0, 2400, 1000, 300);
    lstRows.move(0, 2800, 1000, 600);
  }
  PictureBox picOnce{this, "picOnce"};
  PictureBox picTwice{this, "picTwice"};
  TextBox txtLeft{this, "txtLeft"};
  CommandButton cmdPush{this, "cmdPush"};
  ListBox lstRows{this, "lstRows"};

  void click() override { note("frmPlate click"); }
};
FormRef<FrmPlate> frmPlate{"frmPlate"};

class FrmStretch final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmStretch() : Form("frmStretch", kKind, Border::Sizable) { move(3000, 3000); }
};
FormRef<FrmStretch> frmStretch{"frmStretch"};

class FrmBox final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmBox() : Form("frmBox", kKind, Border::Fixed) { noteMouse(cmdAnswer); }
  CommandButton cmdAnswer{this, "cmdAnswer"};
};
FormRef<FrmBox> frmBox{"frmBox"};

class HandTest : public NotingTest {
 protected:
  HandTest() {
    frmPlate->show();
    platform.onModal = [](Form& form) { form.hide(); };
  }
  FrmPlate& form() { return *frmPlate; }
  void down(const Spot& spot, bool second = false) { hand.down(form(), spot, second); }
  void up(const Spot& spot) { hand.up(spot); }
  Lines pressAndRelease(const Spot& spot, bool second = false) {
    down(spot, second);
    up(spot);
    return takeNotes();
  }

  Hand& hand = desk().hand;
};

TEST_F(HandTest, APressIsHeldUntilItsRelease) {
  EXPECT_FALSE(hand.holds());
  down(kOnce);
  EXPECT_EQ(takeNotes(), Lines{"picOnce down"});
  EXPECT_TRUE(hand.holds());
  EXPECT_EQ(hand.heldForm(), &form());
  EXPECT_EQ(hand.heldControl(), &form().picOnce);
  up(kOnce);
  EXPECT_EQ(takeNotes(), (Lines{"picOnce up", "picOnce click"}));
  EXPECT_FALSE(hand.holds());
  EXPECT_EQ(hand.heldControl(), nullptr);
  up(kOnce);
  EXPECT_EQ(takeNotes(), Lines{}) << "nothing is held";
}

TEST_F(HandTest, APressBesideTheControlsBelongsToTheForm) {
  down(kBare);
  EXPECT_EQ(hand.heldForm(), &form());
  EXPECT_EQ(hand.heldControl(), nullptr);
  up(kBare);
  EXPECT_EQ(takeNotes(), Lines{"frmPlate click"});
}

TEST_F(HandTest, ReleasedElsewhereItIsNoClickOfAnybody) {
  for (const Spot& elsewhere : {kTwice, kBare, kOutside, kCaption}) {
    down(kOnce);
    takeNotes();
    up(elsewhere);
    EXPECT_EQ(takeNotes(), Lines{"picOnce up"}) << elsewhere.x << " " << elsewhere.y;
  }
  down(kBare);
  up(kOnce);
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(HandTest, APressThatIsRefusedIsNotHeld) {
  form().picOnce.Enabled = false;
  EXPECT_EQ(pressAndRelease(kOnce), Lines{});
  down(kOnce);
  EXPECT_FALSE(hand.holds());
  form().picOnce.Enabled = true;
  form().hide();
  down(kOnce);
  EXPECT_FALSE(hand.holds());
}

TEST_F(HandTest, ThePointerIsToldToWhatLiesUnderItAlsoWhileAPressIsHeld) {
  hand.move(&form(), kOnce);
  hand.move(&form(), kBare);
  hand.move(nullptr, kOnce);
  hand.move(&form(), kCaption);
  EXPECT_EQ(takeNotes(), Lines{"picOnce move"});
  down(kOnce);
  hand.move(&form(), kTwice);
  EXPECT_EQ(takeNotes(), (Lines{"picOnce down", "picTwice move"}));
  EXPECT_EQ(hand.heldControl(), &form().picOnce) << "the press is still its own";
}

TEST_F(HandTest, APressTurnsTheUserToItsWindowAndItsControl) {
  frmBox->show();
  hand.down(form(), kOnce, false);
  EXPECT_EQ(desk().active(), &form());
  EXPECT_EQ(desk().focused(), &form().picOnce);
}

TEST_F(HandTest, APressWhoseReleaseNobodyToldIsOverWithTheNext) {
  down(kOnce);
  down(kTwice);
  EXPECT_EQ(takeNotes(), (Lines{"picOnce down", "picOnce up", "picTwice down"}));
  EXPECT_EQ(hand.heldControl(), &form().picTwice);
}

TEST_F(HandTest, TheSecondPressIsADoubleClickOrOneMoreClick) {
  EXPECT_EQ(pressAndRelease(kTwice), (Lines{"picTwice down", "picTwice up", "picTwice click"}));
  EXPECT_EQ(pressAndRelease(kTwice, true), (Lines{"picTwice double", "picTwice up"}));
  const Lines click = {"picOnce down", "picOnce up", "picOnce click"};
  EXPECT_EQ(pressAndRelease(kOnce), click);
  EXPECT_EQ(pressAndRelease(kOnce, true), click);
  EXPECT_EQ(pressAndRelease(kOnce, true), click) << "as many as there are";
  EXPECT_EQ(pressAndRelease(kBare), Lines{"frmPlate click"});
  EXPECT_EQ(pressAndRelease(kBare, true), Lines{"frmPlate click"});
}

TEST_F(HandTest, ASecondPressElsewhereBelongsToNobody) {
  EXPECT_EQ(pressAndRelease(kTwice, true), Lines{}) << "there was no first one";
  pressAndRelease(kOnce);
  down(kTwice, true);
  EXPECT_FALSE(hand.holds());
  up(kTwice);
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_NE(desk().focused(), &form().picTwice) << "nor is anybody turned to it";
}

TEST_F(HandTest, ADoubleClickIsSpentWithItsSecondPress) {
  pressAndRelease(kTwice);
  pressAndRelease(kTwice, true);
  EXPECT_EQ(pressAndRelease(kTwice, true), Lines{});
}

TEST_F(HandTest, ASecondPressBehindAnotherWindowsIsNotItsOwn) {
  frmBox->show();
  frmBox->cmdAnswer.move(0, 0, 2000, 2000);
  pressAndRelease(kTwice);
  hand.down(*frmBox, kTwice, true);
  hand.up(kTwice);
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(HandTest, ALostPressEndsWithoutAClick) {
  down(kOnce);
  takeNotes();
  hand.lose();
  EXPECT_EQ(takeNotes(), Lines{"picOnce up"});
  EXPECT_FALSE(hand.holds());
  up(kOnce);
  hand.lose();
  EXPECT_EQ(takeNotes(), Lines{}) << "it is over";
  gesture::release(form(), &form().picOnce);
  EXPECT_EQ(takeNotes(), Lines{"picOnce up"}) << "nor does any other release click it";
}

TEST_F(HandTest, AWindowThatGoesLetsItsPressGo) {
  down(kOnce);
  takeNotes();
  form().hide();
  EXPECT_EQ(takeNotes(), Lines{"picOnce up"});
  form().show();
  up(kOnce);
  EXPECT_EQ(takeNotes(), Lines{});
  down(kOnce);
  takeNotes();
  form().unload();
  EXPECT_EQ(takeNotes(), Lines{"picOnce up"});
  EXPECT_FALSE(hand.holds());
}

TEST_F(HandTest, AnotherWindowThatGoesLeavesThePress) {
  frmBox->show();
  down(kOnce);
  frmBox->hide();
  EXPECT_TRUE(hand.holds());
  takeNotes();
  up(kOnce);
  EXPECT_EQ(takeNotes(), (Lines{"picOnce up", "picOnce click"}));
}

TEST_F(HandTest, AModalWindowTakesThePressAway) {
  down(kOnce);
  takeNotes();
  Lines inside;
  platform.onModal = [&](Form& box) {
    inside = takeNotes();
    EXPECT_FALSE(hand.holds());
    hand.down(form(), kOnce, false);
    EXPECT_FALSE(hand.holds()) << "the mouse is the modal window's";
    box.hide();
  };
  frmBox->show(ShowMode::Modal);
  EXPECT_EQ(inside, Lines{"picOnce up"});
  up(kOnce);
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(HandTest, AModalWindowThatTurningShowsTakesThePressBeforeItIsOne) {
  gesture::focus(form().txtLeft);
  form().txtLeft.onLostFocus = [] { frmBox->show(ShowMode::Modal); };
  EXPECT_EQ(pressAndRelease(kOnce), Lines{});
  EXPECT_FALSE(frmBox.visible());
  EXPECT_FALSE(hand.holds());
}

TEST_F(HandTest, AGestureByNameGoesOnBehindTheModalWindowWhateverIsDoneInIt) {
  gesture::focus(form().txtLeft);
  form().txtLeft.onLostFocus = [] { frmBox->show(ShowMode::Modal); };
  platform.onModal = [&](Form& box) {
    hand.lose();
    frmBox->cmdAnswer.move(0, 0, 2000, 2000);
    hand.down(box, kOnce, false, true);
    hand.up(kOnce);
    EXPECT_EQ(takeNotes(), (Lines{"cmdAnswer down", "cmdAnswer up", "cmdAnswer click"}));
    box.hide();
  };
  hand.down(form(), kTwice, false, true);
  EXPECT_EQ(takeNotes(), Lines{"picTwice down"});
  EXPECT_EQ(hand.heldControl(), &form().picTwice);
  hand.lose();
  EXPECT_TRUE(hand.holds()) << "nothing interrupts it";
  up(kTwice);
  EXPECT_EQ(takeNotes(), (Lines{"picTwice up", "picTwice click"}));
  hand.down(form(), kOnce, true, true);
  EXPECT_EQ(takeNotes(), Lines{"picOnce down"}) << "second or not: a name is enough";
}

TEST_F(HandTest, OnlyItsWindowEndsAGestureByName) {
  hand.down(form(), kOnce, false, true);
  takeNotes();
  form().hide();
  EXPECT_FALSE(hand.holds());
  up(kOnce);
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(HandTest, TurningMayHideTheWindowAndShowItAnew) {
  gesture::focus(form().txtLeft);
  form().txtLeft.onLostFocus = [] {
    frmPlate->hide();
    frmPlate->show();
  };
  EXPECT_EQ(pressAndRelease(kOnce), (Lines{"picOnce down", "picOnce up", "picOnce click"}));
}

TEST_F(HandTest, TurningThatHidesWhatWasPressedEndsThePress) {
  for (const std::function<void()>& hide : {std::function<void()>([] { frmPlate->picOnce.Visible = false; }),
                                            std::function<void()>([] { frmPlate->hide(); })}) {
    form().show();
    form().picOnce.Visible = true;
    gesture::focus(form().txtLeft);
    form().txtLeft.onLostFocus = hide;
    EXPECT_EQ(pressAndRelease(kOnce), Lines{});
    EXPECT_FALSE(hand.holds());
    form().txtLeft.onLostFocus = nullptr;
  }
}

TEST_F(HandTest, AHeldCaptionBarDragsItsWindowAlong) {
  down(kCaption);
  EXPECT_EQ(hand.heldForm(), &form());
  hand.move(&form(), {kCaption.x + 300, kCaption.y - 150});
  EXPECT_EQ(form().Left, 1800.0);
  EXPECT_EQ(form().Top, 1350.0);
  // The grip stays under the pointer: places count from the window, which has moved.
  hand.move(nullptr, {kCaption.x + 10, kCaption.y});
  EXPECT_EQ(form().Left, 1815.0) << "by whole pixels";
  up(kBare);
  hand.move(&form(), kOutside);
  EXPECT_EQ(form().Left, 1815.0);
  EXPECT_EQ(takeNotes(), Lines{}) << "the bar is no part of the inside";
}

TEST_F(HandTest, ALostCaptionBarIsDraggedNoFurther) {
  down(kCaption);
  hand.lose();
  hand.move(&form(), kBare);
  EXPECT_EQ(form().Left, 1500.0);
  EXPECT_FALSE(hand.holds());
}

TEST_F(HandTest, TheCloseBoxClosesWhereItIsAlsoReleased) {
  const Spot box{form().Width - 150, -150};
  down(box);
  up(kCaption);
  EXPECT_TRUE(frmPlate.loaded());
  down(kCaption);
  up(box);
  EXPECT_TRUE(frmPlate.loaded());
  down(box);
  EXPECT_TRUE(frmPlate.loaded());
  up(box);
  EXPECT_FALSE(frmPlate.loaded());
}

TEST_F(HandTest, AHeldEdgeMakesItsWindowWider) {
  FrmStretch& window = *frmStretch;
  window.show();
  hand.down(window, {6000 - 30, 500}, false);
  hand.move(&window, {6300 - 30, 900});
  EXPECT_EQ(window.Width, 6300.0);
  hand.move(&window, {4500 - 30, 900});
  EXPECT_EQ(window.Width, 4500.0) << "counted from where it was taken hold of";
  hand.up({4500 - 30, 900});
  hand.move(&window, {5000, 900});
  EXPECT_EQ(window.Width, 4500.0);
  hand.down(window, {30, 500}, false);
  hand.move(&window, {30 - 150, 500});
  EXPECT_EQ(window.Width, 4650.0) << "to the left is wider";
}

TEST_F(HandTest, AnEdgeIsFollowedOnTheScreenWhereverItsWindowGoes) {
  FrmStretch& window = *frmStretch;
  window.show();
  hand.down(window, {30, 500}, false);
  window.move(2700, 3000);  // it stays in its corner
  hand.move(&window, {30, 500});
  EXPECT_EQ(window.Width, 6300.0);
}

TEST_F(HandTest, AFieldTakesItsPressAndEndsItItself) {
  EXPECT_TRUE(hand.downOnField(form().cmdPush, -1, false));
  EXPECT_TRUE(hand.holds());
  EXPECT_EQ(hand.heldControl(), &form().cmdPush);
  EXPECT_EQ(desk().focused(), &form().cmdPush);
  hand.upFromField();
  EXPECT_FALSE(hand.holds());
  EXPECT_EQ(takeNotes(), Lines{}) << "what it does is the field's own affair";
}

TEST_F(HandTest, AFieldMustNotSeeAPressThatIsForNobody) {
  form().cmdPush.Enabled = false;
  EXPECT_FALSE(hand.downOnField(form().cmdPush, -1, false));
  form().cmdPush.Enabled = true;
  pressAndRelease(kOnce);
  EXPECT_FALSE(hand.downOnField(form().cmdPush, -1, true)) << "the first one was another's";
  gesture::focus(form().txtLeft);
  form().txtLeft.onLostFocus = [] { frmBox->show(ShowMode::Modal); };
  EXPECT_FALSE(hand.downOnField(form().cmdPush, -1, false)) << "a modal window took it";
  EXPECT_FALSE(hand.holds());
}

TEST_F(HandTest, ALostPressOfAFieldIsToldToNobody) {
  EXPECT_TRUE(hand.downOnField(form().cmdPush, -1, false));
  hand.lose();
  EXPECT_FALSE(hand.holds());
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(HandTest, AFieldsSecondPressIsItsOwnUnlessItActsOnDoubleClicks) {
  EXPECT_TRUE(hand.downOnField(form().cmdPush, -1, false));
  hand.upFromField();
  EXPECT_TRUE(hand.downOnField(form().cmdPush, -1, true));
  hand.upFromField();
  form().lstRows.addItem("row");
  EXPECT_TRUE(hand.downOnField(form().lstRows, 0, false));
  hand.upFromField();
  EXPECT_FALSE(hand.downOnField(form().lstRows, 0, true)) << "the double click is all of it";
  EXPECT_FALSE(hand.holds());
  EXPECT_EQ(takeNotes(), Lines{"lstRows double"});
}

TEST_F(HandTest, BesideItsRowsAListHasNoDoubleClickUnlessItIsNamed) {
  EXPECT_TRUE(hand.downOnField(form().lstRows, -1, false));
  hand.upFromField();
  EXPECT_TRUE(hand.downOnField(form().lstRows, -1, true)) << "it has no row at all";
  hand.upFromField();
  EXPECT_EQ(takeNotes(), Lines{});
  form().lstRows.addItem("row");
  EXPECT_TRUE(hand.downOnField(form().lstRows, -1, false));
  hand.upFromField();
  EXPECT_TRUE(hand.downOnField(form().lstRows, -1, true));
  hand.upFromField();
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_FALSE(hand.downOnField(form().lstRows, -1, true, true));
  EXPECT_EQ(takeNotes(), Lines{"lstRows double"});
}

TEST_F(HandTest, AKeyGoesToTheModalWindowOrElseToTheActiveOne) {
  form().cmdPush.Default = true;
  frmBox->cmdAnswer.Default = true;
  const Key enter{key::kEnter};
  EXPECT_TRUE(hand.key(enter));
  EXPECT_EQ(takeNotes(), Lines{"cmdPush click"});
  platform.onModal = [&](Form& box) {
    EXPECT_TRUE(hand.key(enter));
    box.hide();
  };
  frmBox->show(ShowMode::Modal);
  EXPECT_EQ(takeNotes(), Lines{"cmdAnswer click"});
  platform.onModal = [&](Form& box) {
    form().show();
    EXPECT_EQ(desk().active(), &form());
    EXPECT_TRUE(hand.key(enter)) << "the program showed another one over it";
    box.hide();
  };
  frmBox->show(ShowMode::Modal);
  EXPECT_EQ(takeNotes(), Lines{"cmdAnswer click"});
  form().hide();
  EXPECT_FALSE(hand.key(enter)) << "there is no window";
  EXPECT_EQ(takeNotes(), Lines{});
}

}  // namespace
}  // namespace zelvs
