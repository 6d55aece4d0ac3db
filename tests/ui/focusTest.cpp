// Who has the focus, and in which order the controls learn of it.

#include <string>
#include <utility>
#include <vector>

#include "support/program.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

using Lines = std::vector<std::string>;
Lines theFocusLog;

Lines takeLog() {
  return std::exchange(theFocusLog, {});
}

template <class T>
void record(T& control) {
  const std::string name = control.name();
  control.onGotFocus = [name] { theFocusLog.push_back(name + " got"); };
  control.onLostFocus = [name] { theFocusLog.push_back(name + " lost"); };
}

class FrmFields final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmFields() : Form("frmFields", kKind, Border::Fixed) {
    txtInner.placeIn(fraGroup);
    for (TextBox* text : {&txtFirst, &txtSecond, &txtInner})
      record(*text);
    record(lblText);
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
  void activated() override { theFocusLog.emplace_back("frmFields activated"); }
  void deactivated() override { theFocusLog.emplace_back("frmFields deactivated"); }
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

class FocusTest : public ProgramTest {
 protected:
  FocusTest() {
    frmFields->show();
    takeLog();
  }
};

TEST_F(FocusTest, TheOldControlLosesTheFocusBeforeTheNewOneGetsIt) {
  gesture::focus(frmFields->txtFirst);
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(takeLog(), (Lines{"txtFirst got", "txtFirst lost", "txtSecond got"}));
  EXPECT_EQ(desk().focused(), &frmFields->txtSecond);
  gesture::focus(frmFields->txtSecond);
  EXPECT_EQ(takeLog(), Lines{}) << "it has the focus already";
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
    takeLog();
    frmFields->txtFirst.*property = false;
    EXPECT_EQ(takeLog(), Lines{"txtFirst lost"});
    EXPECT_EQ(desk().focused(), nullptr);
    EXPECT_EQ(frmFields->activeControl(), nullptr);
    frmFields->txtFirst.*property = true;
    EXPECT_EQ(desk().focused(), nullptr) << "it does not come back by itself";
  }
}

TEST_F(FocusTest, AControlInsideAHiddenOrDisabledGroupLosesTheFocus) {
  for (Property<bool> Control::*property : {&Control::Visible, &Control::Enabled}) {
    gesture::focus(frmFields->txtInner);
    takeLog();
    frmFields->fraGroup.*property = false;
    EXPECT_EQ(takeLog(), Lines{"txtInner lost"});
    const std::string why = property == &Control::Visible ? "visible" : "enabled";
    EXPECT_EQ(gesture::focus(frmFields->txtInner), "frmFields.txtInner is not " + why);
    frmFields->fraGroup.*property = true;
  }
}

TEST_F(FocusTest, HidingAnotherControlLeavesTheFocus) {
  gesture::focus(frmFields->txtFirst);
  takeLog();
  frmFields->txtSecond.Visible = false;
  frmFields->fraGroup.Enabled = false;
  EXPECT_EQ(takeLog(), Lines{});
}

TEST_F(FocusTest, AFormThatComesBackGivesTheFocusToTheControlThatHadIt) {
  gesture::focus(frmFields->txtSecond);
  takeLog();
  frmOther->show();
  EXPECT_EQ(takeLog(), (Lines{"txtSecond lost", "frmFields deactivated"}));
  EXPECT_EQ(desk().focused(), nullptr);
  gesture::activate(*frmFields);
  EXPECT_EQ(takeLog(), (Lines{"frmFields activated", "txtSecond got"}));
}

TEST_F(FocusTest, AFormThatComesBackGivesNoFocusToAControlThatWasHiddenMeanwhile) {
  gesture::focus(frmFields->txtSecond);
  frmOther->show();
  frmFields->txtSecond.Visible = false;
  takeLog();
  gesture::activate(*frmFields);
  EXPECT_EQ(takeLog(), Lines{"frmFields activated"});
  EXPECT_EQ(desk().focused(), nullptr);
}

TEST_F(FocusTest, HidingTheFormTakesTheFocus) {
  gesture::focus(frmFields->txtFirst);
  takeLog();
  frmFields->hide();
  EXPECT_EQ(takeLog(), (Lines{"txtFirst lost", "frmFields deactivated"}));
}

TEST_F(FocusTest, AGestureOnAnotherFormActivatesItBeforeTheControlLearnsOfIt) {
  frmOther->show();
  takeLog();
  frmFields->cmdPush.onMouseDown = [] { theFocusLog.emplace_back("cmdPush down"); };
  gesture::press(*frmFields, &frmFields->cmdPush);
  EXPECT_EQ(takeLog(), (Lines{"frmFields activated", "cmdPush down"}));
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
