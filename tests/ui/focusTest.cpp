// Who has the focus, and in which order the controls learn of it.

#include <string>
#include <utility>
#include <vector>

#include "support/logFixture.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class FrmFields final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmFields() : Form("frmFields", kKind, Border::Fixed) {
    txtInner.placeIn(fraGroup);
    for (TextBox* text : {&txtFirst, &txtSecond, &txtInner})
      noteFocus(*text);
    noteFocus(lblText);
  }

  TextBox txtFirst{this, "txtFirst"};
  TextBox txtSecond{this, "txtSecond"};
  Frame fraGroup{this, "fraGroup"};
  TextBox txtInner{this, "txtInner"};
  Label lblText{this, "lblText"};
  PictureBox picFace{this, "picFace"};
  Image imgFace{this, "imgFace"};
  Shape shpFace{this, "shpFace"};
  CommandButton cmdPush{this, "cmdPush"};
  CheckBox chkMark{this, "chkMark"};
  OptionButton optMark{this, "optMark"};
  ComboBox cmbRows{this, "cmbRows"};
  ListBox lstRows{this, "lstRows"};
  TabStrip tabPages{this, "tabPages"};
  Timer timBeat{this, "timBeat"};
  Sound mmcSound{this, "mmcSound"};

 protected:
  void activated() override { note("frmFields activated"); }
  void deactivated() override { note("frmFields deactivated"); }
};
FormRef<FrmFields> frmFields{"frmFields"};

class FrmOther final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmOther() : Form("frmOther", kKind, Border::Fixed) {}

  TextBox txtOther{this, "txtOther"};
};
FormRef<FrmOther> frmOther{"frmOther"};

class FrmThird final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmThird() : Form("frmThird", kKind, Border::Fixed) {}
};
FormRef<FrmThird> frmThird{"frmThird"};

class FocusTest : public NotingTest {
 protected:
  FocusTest() {
    frmFields->show();
    takeNotes();
  }
};

TEST_F(FocusTest, TheOldControlLosesTheFocusBeforeTheNewOneGetsIt) {
  gesture::focus(frmFields->txtFirst);
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(takeNotes(), (Lines{"txtFirst got", "txtFirst lost", "txtSecond got"}));
  EXPECT_EQ(desk().focused(), &frmFields->txtSecond);
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(takeNotes(), Lines{}) << "it has the focus already";
}

TEST_F(FocusTest, OnlySomeKindsTakeTheFocus) {
  FrmFields& form = *frmFields;
  const std::vector<std::pair<Control*, bool>> table = {
      {&form.txtFirst, true}, {&form.picFace, true},  {&form.cmdPush, true},  {&form.chkMark, true},
      {&form.optMark, true},  {&form.cmbRows, true},  {&form.lstRows, true},  {&form.tabPages, true},
      {&form.lblText, false}, {&form.imgFace, false}, {&form.shpFace, false}, {&form.fraGroup, false},
  };
  for (const auto& [control, takes] : table) {
    SCOPED_TRACE(control->name());
    desk().focus(nullptr);
    EXPECT_EQ(gesture::focus(*control), takes ? "" : control->fullName() + " cannot have the focus");
    EXPECT_EQ(desk().focused(), takes ? control : nullptr);
  }
}

TEST_F(FocusTest, AClickOnALabelLeavesTheFocusWhereItIs) {
  gesture::focus(frmFields->txtFirst);
  gesture::click(*frmFields, &frmFields->lblText);
  EXPECT_EQ(desk().focused(), &frmFields->txtFirst);
  gesture::click(*frmFields, &frmFields->picFace);
  EXPECT_EQ(desk().focused(), &frmFields->picFace);
}

TEST_F(FocusTest, AControlThatIsHiddenOrDisabledLosesTheFocus) {
  for (Property<bool> Control::*property : {&Control::Visible, &Control::Enabled}) {
    gesture::focus(frmFields->txtFirst);
    takeNotes();
    frmFields->txtFirst.*property = false;
    EXPECT_EQ(takeNotes(), Lines{"txtFirst lost"});
    EXPECT_EQ(desk().focused(), nullptr);
    EXPECT_EQ(frmFields->activeControl(), nullptr);
    frmFields->txtFirst.*property = true;
    EXPECT_EQ(desk().focused(), nullptr) << "it does not come back by itself";
  }
}

TEST_F(FocusTest, AControlInsideAHiddenOrDisabledGroupLosesTheFocus) {
  for (Property<bool> Control::*property : {&Control::Visible, &Control::Enabled}) {
    gesture::focus(frmFields->txtInner);
    takeNotes();
    frmFields->fraGroup.*property = false;
    EXPECT_EQ(takeNotes(), Lines{"txtInner lost"});
    const std::string why = property == &Control::Visible ? "visible" : "enabled";
    EXPECT_EQ(gesture::focus(frmFields->txtInner), "frmFields.txtInner is not " + why);
    frmFields->fraGroup.*property = true;
  }
}

TEST_F(FocusTest, HidingAnotherControlLeavesTheFocus) {
  gesture::focus(frmFields->txtFirst);
  takeNotes();
  frmFields->txtSecond.Visible = false;
  frmFields->fraGroup.Enabled = false;
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(FocusTest, AFormThatComesBackGivesTheFocusToTheControlThatHadIt) {
  gesture::focus(frmFields->txtSecond);
  takeNotes();
  frmOther->show();
  EXPECT_EQ(takeNotes(), (Lines{"txtSecond lost", "frmFields deactivated"}));
  EXPECT_EQ(desk().focused(), nullptr);
  gesture::activate(*frmFields);
  EXPECT_EQ(takeNotes(), (Lines{"frmFields activated", "txtSecond got"}));
}

TEST_F(FocusTest, AFormThatComesBackGivesNoFocusToAControlThatWasHiddenMeanwhile) {
  gesture::focus(frmFields->txtSecond);
  frmOther->show();
  frmFields->txtSecond.Visible = false;
  takeNotes();
  gesture::activate(*frmFields);
  EXPECT_EQ(takeNotes(), Lines{"frmFields activated"});
  EXPECT_EQ(desk().focused(), nullptr);
}

TEST_F(FocusTest, HidingTheFormTakesTheFocus) {
  gesture::focus(frmFields->txtFirst);
  takeNotes();
  frmFields->hide();
  EXPECT_EQ(takeNotes(), (Lines{"txtFirst lost", "frmFields deactivated"}));
}

TEST_F(FocusTest, AGestureOnAnotherFormActivatesItBeforeTheControlLearnsOfIt) {
  frmOther->show();
  takeNotes();
  frmFields->cmdPush.onMouseDown = [] { note("cmdPush down"); };
  gesture::press(*frmFields, &frmFields->cmdPush);
  EXPECT_EQ(takeNotes(), (Lines{"frmFields activated", "cmdPush down"}));
}

TEST_F(FocusTest, AHandlerThatPassesTheFocusOnHasItsWay) {
  gesture::focus(frmFields->txtFirst);
  frmFields->txtFirst.onLostFocus = [] { desk().focus(&frmFields->txtInner); };
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(desk().focused(), &frmFields->txtInner);
}

TEST_F(FocusTest, AHandlerThatHidesTheNextControlLeavesNobodyWithTheFocus) {
  gesture::focus(frmFields->txtFirst);
  frmFields->txtFirst.onLostFocus = [] { frmFields->txtSecond.Visible = false; };
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(desk().focused(), nullptr);
}

TEST_F(FocusTest, AControlIsLeftOnceWhateverItsHandlerShowsMeanwhile) {
  gesture::focus(frmFields->txtFirst);
  takeNotes();
  int left = 0;
  frmFields->txtFirst.onLostFocus = [&left] {
    ++left;
    frmOther->show(ShowMode::Modal);
    EXPECT_EQ(desk().active(), frmFields.form());
    EXPECT_EQ(desk().focused(), nullptr) << "its window is back, the control that is being left is not";
  };
  platform.onModal = [](Form& form) { form.hide(); };
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(left, 1);
  EXPECT_EQ(desk().focused(), &frmFields->txtSecond);
  EXPECT_EQ(takeNotes(), (Lines{"frmFields deactivated", "frmFields activated", "txtSecond got"}));
}

TEST_F(FocusTest, AControlThatIsBeingLeftDoesNotTakeItselfBack) {
  gesture::focus(frmFields->txtFirst);
  frmFields->txtFirst.onLostFocus = [] { desk().focus(&frmFields->txtFirst); };
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(desk().focused(), &frmFields->txtSecond);
  gesture::focus(frmFields->txtFirst);
  EXPECT_EQ(desk().focused(), &frmFields->txtFirst) << "left, it takes the focus like any other";
}

TEST_F(FocusTest, OfNestedLeavingsEachHoldsItsOwn) {
  gesture::focus(frmFields->txtFirst);
  // The first one passes the focus on; the next gives it back to the first, which is still being left.
  frmFields->txtFirst.onLostFocus = [] {
    note("first left");
    desk().focus(&frmFields->txtInner);
    desk().focus(&frmFields->cmdPush);
    note("first done");
  };
  frmFields->txtInner.onLostFocus = [] {
    note("inner left");
    desk().focus(&frmFields->txtFirst);
    EXPECT_EQ(desk().focused(), nullptr);
    desk().focus(&frmFields->txtInner);
    EXPECT_EQ(desk().focused(), nullptr);
  };
  takeNotes();
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(takeNotes(), (Lines{"first left", "txtInner got", "inner left", "first done"}));
  EXPECT_EQ(desk().focused(), &frmFields->cmdPush);
  gesture::focus(frmFields->txtFirst);
  EXPECT_EQ(desk().focused(), &frmFields->txtFirst) << "all of them are over";
}

TEST_F(FocusTest, AHandlerThatTurnsTheUserToAnotherWindowKeepsTheFocusInside) {
  frmOther->show();
  gesture::focus(frmFields->txtFirst);
  frmFields->txtFirst.onLostFocus = [] { desk().activate(*frmOther); };
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(desk().active(), frmOther.get());
  EXPECT_EQ(desk().focused(), nullptr);
}

TEST_F(FocusTest, TheWindowThatTheUserTurnsToIsLeftNoFocusElsewhere) {
  frmThird->show();
  frmOther->show();
  gesture::focus(frmOther->txtOther);
  gesture::focus(frmFields->txtFirst);
  frmFields->txtFirst.onLostFocus = [] { desk().activate(*frmOther); };
  gesture::activate(*frmThird);
  EXPECT_EQ(desk().active(), frmThird.get());
  EXPECT_EQ(desk().focused(), nullptr);
}

TEST_F(FocusTest, TheWindowThatTheUserTurnsToIsInFrontWhateverTheLostFocusShows) {
  frmOther->show();
  frmThird->show();
  gesture::focus(frmOther->txtOther);
  frmOther->txtOther.onLostFocus = [] {
    frmOther->hide();
    frmOther->show();
  };
  gesture::activate(*frmThird);
  EXPECT_EQ(desk().active(), frmThird.get());
  EXPECT_EQ(desk().forms().front(), frmThird.get());
}

TEST_F(FocusTest, AControlThatIsGivenTheFocusBringsItsWindowAlong) {
  frmOther->show();
  frmFields->show();
  desk().focus(&frmOther->txtOther);
  EXPECT_EQ(desk().active(), frmOther.get());
  EXPECT_EQ(desk().focused(), &frmOther->txtOther);
}

TEST_F(FocusTest, WhatHasNoFaceTakesNoGesture) {
  for (Control* control : {static_cast<Control*>(&frmFields->timBeat), static_cast<Control*>(&frmFields->mmcSound)}) {
    EXPECT_EQ(gesture::click(*frmFields, control), control->fullName() + " has no face");
  }
}

}  // namespace
}  // namespace zelvs
