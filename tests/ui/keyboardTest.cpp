// What a key does in a window that has the keyboard: in each kind of field, for the window's buttons, and Tab.

#include <string>
#include <utility>
#include <vector>

#include "shell/frmMDI.h"
#include "support/logFixture.h"
#include "ui/gesture.h"
#include "ui/keyboard.h"

namespace zelvs {
namespace {

/// Every kind of field, one below the other.
class FrmKeys final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmKeys() : Form("frmKeys", kKind, Border::Fixed) {
    const std::vector<Control*> column = {&txtField, &cmdPush,  &chkMark,    &optFirst, &optSecond, &cmbRows,
                                          &lstRows,  &tabPages, &cmdDefault, &picFace,  &cmdCancel};
    for (std::size_t at = 0; at < column.size(); ++at) {
      column[at]->move(0, 400.0 * static_cast<double>(at), 1000, 300);
      if (column[at] != &picFace) noteClick(*column[at]);
    }
    for (ListControl* list : {static_cast<ListControl*>(&cmbRows), static_cast<ListControl*>(&lstRows)}) {
      for (const char* row : {"alpha", "beta", "gamma"})
        list->addItem(row);
    }
    tabPages.Tabs = 3;
  }
  static void noteClick(Control& control) {
    control.onClick = [name = control.name()] { note(name + " click"); };
  }
  TextBox txtField{this, "txtField"};
  CommandButton cmdPush{this, "cmdPush"};
  CheckBox chkMark{this, "chkMark"};
  OptionButton optFirst{this, "optFirst"};
  OptionButton optSecond{this, "optSecond"};
  ComboBox cmbRows{this, "cmbRows"};
  ListBox lstRows{this, "lstRows"};
  TabStrip tabPages{this, "tabPages"};
  CommandButton cmdDefault{this, "cmdDefault"};
  PictureBox picFace{this, "picFace"};
  CommandButton cmdCancel{this, "cmdCancel"};
};
FormRef<FrmKeys> frmKeys{"frmKeys"};

/// As a message has it: nothing but a button or two, and no caption bar.
class FrmNotice final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmNotice() : Form("frmNotice", kKind, Border::None) {
    FrmKeys::noteClick(cmdFirst);
    FrmKeys::noteClick(cmdSecond);
    cmdSecond.Visible = false;
  }
  CommandButton cmdFirst{this, "cmdFirst"};
  CommandButton cmdSecond{this, "cmdSecond"};
};
FormRef<FrmNotice> frmNotice{"frmNotice"};

Key plain(int code) {
  return {code};
}
Key typed(char32_t character, int code = 0) {
  return {code, character};
}
Key withControl(int code) {
  Key key{code};
  key.control = true;
  return key;
}
Key withAlt(int code) {
  Key key{code};
  key.alt = true;
  return key;
}
Key withShift(int code) {
  Key key{code};
  key.shift = true;
  return key;
}

class KeyboardTest : public NotingTest {
 protected:
  KeyboardTest() { frmKeys->show(); }
  FrmKeys& form() { return *frmKeys; }
  /// To the control that has the focus; true when there was a use for the key.
  bool press(const Key& key) { return keyInForm(form(), key); }
  /// To this one.
  bool press(Control& control, const Key& key) {
    desk().focus(&control);
    return press(key);
  }
};

TEST_F(KeyboardTest, AFieldTypesEveryCharacterAsItIs) {
  for (const Key& key : {typed(U'a', 'A'), typed(U'B', 'B'), typed(U'+'), typed(U'あ'), typed(U' ', key::kSpace)}) {
    EXPECT_TRUE(press(form().txtField, key));
  }
  EXPECT_EQ(form().txtField.Text.get(), "aB+あ ");
  EXPECT_TRUE(press(plain(key::kBackspace)));
  EXPECT_TRUE(press(plain(key::kHome)));
  EXPECT_TRUE(press(plain(key::kDelete)));
  EXPECT_EQ(form().txtField.Text.get(), "B+あ");
  EXPECT_TRUE(press(plain(key::kF1))) << "it keeps also what it has no use for";
}

TEST_F(KeyboardTest, WithControlAFieldTakesOnlyWhatMovesItsCaret) {
  form().txtField.Text = "abc";
  gesture::placeCaret(form().txtField, 1, 0);
  EXPECT_TRUE(press(form().txtField, withControl(key::kRight)));
  EXPECT_EQ(form().txtField.SelStart, 2);
  EXPECT_TRUE(press(withControl(key::kLeft)));
  EXPECT_EQ(form().txtField.SelStart, 1);
  EXPECT_TRUE(press(withControl(key::kEnd)));
  EXPECT_EQ(form().txtField.SelStart, 3);
  EXPECT_TRUE(press(withControl(key::kHome)));
  EXPECT_EQ(form().txtField.SelStart, 0);
  gesture::placeCaret(form().txtField, 2, 0);
  EXPECT_TRUE(press(withControl('A')));
  EXPECT_EQ(form().txtField.SelStart, 0);
  for (const Key& key :
       {withControl('B'), withControl(key::kDelete), withControl(key::kEnter), withAlt('A'), withAlt(key::kLeft)}) {
    EXPECT_FALSE(press(key)) << key.code;
  }
  EXPECT_EQ(form().txtField.Text.get(), "abc");
}

TEST_F(KeyboardTest, ListsAndTabsStepAndAreClicked) {
  for (Control* control : {static_cast<Control*>(&form().cmbRows), static_cast<Control*>(&form().lstRows)}) {
    const auto& list = static_cast<ListControl&>(*control);
    EXPECT_TRUE(press(*control, plain(key::kDown)));
    EXPECT_EQ(list.ListIndex, 0);
    EXPECT_TRUE(press(typed(U'g', 'G')));
    EXPECT_EQ(list.ListIndex, 2);
    EXPECT_EQ(takeNotes(), (Lines{control->name() + " click", control->name() + " click"}));
    EXPECT_TRUE(press(plain(key::kDown)));
    EXPECT_TRUE(press(plain(key::kF1)));
    EXPECT_EQ(takeNotes(), Lines{}) << "the row it stands on is not picked again";
  }
  EXPECT_TRUE(press(form().tabPages, plain(key::kEnd)));
  EXPECT_EQ(form().tabPages.Tab, 2);
  EXPECT_EQ(takeNotes(), Lines{"tabPages click"});
}

TEST_F(KeyboardTest, InAnOpenListKeysMoveTheMarkAndEnterPicksIt) {
  ComboBox& list = form().cmbRows;
  list.Unrolled = true;
  list.Marked = -1;
  EXPECT_TRUE(press(list, plain(key::kEnter)));
  EXPECT_EQ(takeNotes(), Lines{}) << "nothing is marked";
  EXPECT_TRUE(press(plain(key::kDown)));
  EXPECT_TRUE(press(typed(U'b', 'B')));
  EXPECT_EQ(list.Marked, 1);
  EXPECT_EQ(list.ListIndex, -1);
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_TRUE(press(plain(key::kEnter)));
  EXPECT_EQ(list.ListIndex, 1);
  EXPECT_EQ(takeNotes(), Lines{"cmbRows click"});
}

TEST_F(KeyboardTest, ButtonsArePushedBySpaceAndLeftByArrows) {
  for (Control* control : {static_cast<Control*>(&form().cmdPush), static_cast<Control*>(&form().chkMark),
                           static_cast<Control*>(&form().optFirst)}) {
    EXPECT_TRUE(press(*control, typed(U' ', key::kSpace)));
    EXPECT_EQ(takeNotes(), Lines{control->name() + " click"});
    for (const int code : {key::kDown, key::kRight}) {
      desk().focus(control);
      Control* next = control == &form().cmdPush   ? static_cast<Control*>(&form().chkMark)
                      : control == &form().chkMark ? static_cast<Control*>(&form().optFirst)
                                                   : &form().optSecond;
      EXPECT_TRUE(press(plain(code)));
      EXPECT_EQ(desk().focused(), next) << control->name();
      EXPECT_TRUE(press(plain(code == key::kDown ? key::kUp : key::kLeft)));
      EXPECT_EQ(desk().focused(), control);
    }
    EXPECT_TRUE(press(typed(U'x', 'X')));
  }
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_EQ(form().chkMark.Value, 1);
  EXPECT_TRUE(form().optFirst.Value);
  EXPECT_FALSE(form().optSecond.Value) << "an arrow only leads there";
}

TEST_F(KeyboardTest, APictureHearsItsKeysAndDoesNothingWithThem) {
  std::vector<int> heard;
  form().picFace.onKeyDown = [&heard](int& code) { heard.push_back(code); };
  EXPECT_TRUE(press(form().picFace, typed(U' ', key::kSpace)));
  EXPECT_TRUE(press(plain(key::kDown)));
  EXPECT_EQ(heard, (std::vector<int>{key::kSpace, key::kDown}));
  EXPECT_EQ(desk().focused(), &form().picFace);
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(KeyboardTest, BesideFieldsKeysWithControlOrAltAreForNobody) {
  for (Control* control : {static_cast<Control*>(&form().cmdPush), static_cast<Control*>(&form().lstRows),
                           static_cast<Control*>(&form().picFace)}) {
    for (const Key& key :
         {withControl(key::kDown), withAlt(key::kDown), withControl(key::kEnter), withAlt(key::kSpace)}) {
      EXPECT_FALSE(press(*control, key)) << control->name();
    }
  }
  desk().focus(nullptr);
  EXPECT_FALSE(press(withControl(key::kEscape)));
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_EQ(form().lstRows.ListIndex, -1);
}

TEST_F(KeyboardTest, EnterPushesTheFocusedButtonOrElseTheDefaultOne) {
  form().cmdDefault.Default = true;
  EXPECT_EQ(answersEnter(form()), &form().cmdDefault) << "nobody has the focus";
  const std::pair<Control*, CommandButton*> table[] = {
      {&form().cmdPush, &form().cmdPush},     {&form().chkMark, &form().cmdDefault},
      {&form().lstRows, &form().cmdDefault},  {&form().picFace, &form().cmdDefault},
      {&form().txtField, &form().cmdDefault}, {&form().cmdCancel, &form().cmdCancel},
  };
  for (const auto& [focused, button] : table) {
    desk().focus(focused);
    EXPECT_EQ(answersEnter(form()), button) << focused->name();
    EXPECT_TRUE(press(plain(key::kEnter)));
    EXPECT_EQ(takeNotes(), Lines{button->name() + " click"});
  }
}

TEST_F(KeyboardTest, AFieldMayKeepEnterForItself) {
  form().cmdDefault.Default = true;
  form().txtField.KeepsEnter = true;
  EXPECT_TRUE(press(form().txtField, plain(key::kEnter)));
  EXPECT_EQ(answersEnter(form()), nullptr);
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(KeyboardTest, AButtonThatCannotBeWorkedAnswersNoEnter) {
  form().cmdDefault.Default = true;
  for (Property<bool> Control::*property : {&Control::Visible, &Control::Enabled}) {
    form().cmdDefault.*property = false;
    desk().focus(nullptr);
    EXPECT_EQ(answersEnter(form()), nullptr);
    EXPECT_FALSE(press(plain(key::kEnter)));
    form().cmdDefault.*property = true;
  }
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(KeyboardTest, AWindowThatIsNotActiveAnswersFromWhereItsFocusWas) {
  form().cmdDefault.Default = true;
  desk().focus(&form().cmdPush);
  frmNotice->cmdFirst.Default = true;
  frmNotice->show();
  desk().focus(&frmNotice->cmdFirst);
  EXPECT_EQ(answersEnter(form()), &form().cmdPush);
  EXPECT_EQ(answersEnter(*frmNotice), &frmNotice->cmdFirst);
}

TEST_F(KeyboardTest, EscapePushesTheCancelButtonAndElseClosesTheWindow) {
  form().cmdCancel.Cancel = true;
  EXPECT_TRUE(press(form().lstRows, plain(key::kEscape)));
  EXPECT_EQ(takeNotes(), Lines{"cmdCancel click"});
  desk().focus(nullptr);
  EXPECT_TRUE(press(plain(key::kEscape)));
  EXPECT_EQ(takeNotes(), Lines{"cmdCancel click"});
  form().cmdCancel.Enabled = false;
  EXPECT_TRUE(press(plain(key::kEscape)));
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_FALSE(frmKeys.loaded());
}

TEST_F(KeyboardTest, AFieldsEscapeIsItsOwn) {
  form().cmdCancel.Cancel = true;
  std::vector<int> heard;
  form().txtField.onKeyDown = [&heard](int& code) { heard.push_back(code); };
  EXPECT_TRUE(press(form().txtField, plain(key::kEscape)));
  EXPECT_EQ(heard, std::vector<int>{key::kEscape});
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_TRUE(frmKeys.visible());
}

TEST_F(KeyboardTest, WithoutACloseBoxEscapeIsTheOnlyButtons) {
  frmNotice->show();
  EXPECT_TRUE(leaveByEscape(*frmNotice));
  EXPECT_EQ(takeNotes(), Lines{"cmdFirst click"});
  frmNotice->cmdFirst.Enabled = false;
  EXPECT_FALSE(leaveByEscape(*frmNotice));
  frmNotice->cmdFirst.Enabled = true;
  frmNotice->cmdSecond.Visible = true;
  EXPECT_FALSE(leaveByEscape(*frmNotice)) << "which of the two?";
  EXPECT_FALSE(keyInForm(*frmNotice, plain(key::kEscape)));
  frmNotice->cmdSecond.Cancel = true;
  EXPECT_TRUE(leaveByEscape(*frmNotice));
  EXPECT_EQ(takeNotes(), Lines{"cmdSecond click"});
}

TEST_F(KeyboardTest, TheFrameIsNotLeftByEscape) {
  bool asked = false;
  platform.onMessageBox = [&asked](const std::string&, const std::string&, MessageButtons) { return asked = true; };
  frmMDI->show();
  EXPECT_FALSE(leaveByEscape(*frmMDI));
  EXPECT_FALSE(keyInForm(*frmMDI, plain(key::kEscape)));
  EXPECT_FALSE(asked);
  EXPECT_TRUE(frmMDI.visible());
}

TEST_F(KeyboardTest, AHandlerHearsTheKeyFirstAndMayKeepIt) {
  form().cmdDefault.Default = true;
  form().lstRows.onKeyDown = [](int& code) { code = code == key::kEnter ? 0 : code; };
  EXPECT_TRUE(press(form().lstRows, plain(key::kEnter)));
  EXPECT_EQ(takeNotes(), Lines{});
  form().lstRows.onKeyDown = [](int&) { frmKeys->hide(); };
  EXPECT_TRUE(press(form().lstRows, plain(key::kDown)));
  EXPECT_EQ(form().lstRows.ListIndex, -1) << "a window that has gone does nothing more";
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(KeyboardTest, TabGoesOnAndWithShiftBack) {
  EXPECT_TRUE(press(form().txtField, plain(key::kTab)));
  EXPECT_EQ(desk().focused(), &form().cmdPush);
  EXPECT_TRUE(press(withShift(key::kTab)));
  EXPECT_EQ(desk().focused(), &form().txtField);
  EXPECT_TRUE(press(withShift(key::kTab)));
  EXPECT_EQ(desk().focused(), &form().cmdCancel) << "round the end";
  EXPECT_FALSE(press(withControl(key::kTab)));
  EXPECT_FALSE(press(withAlt(key::kTab)));
  EXPECT_EQ(desk().focused(), &form().cmdCancel);
}

TEST_F(KeyboardTest, WithoutAFocusTabStartsWhereItWasLastOrAtTheTop) {
  EXPECT_TRUE(press(plain(key::kTab)));
  EXPECT_EQ(desk().focused(), &form().txtField);
  desk().focus(&form().chkMark);
  desk().focus(nullptr);
  EXPECT_TRUE(press(plain(key::kTab)));
  EXPECT_EQ(desk().focused(), &form().optFirst);
}

TEST_F(KeyboardTest, BehindAModalWindowOrHiddenThereIsNoUseForAKey) {
  desk().focus(&form().lstRows);
  platform.onModal = [this](Form& notice) {
    EXPECT_FALSE(press(plain(key::kDown)));
    EXPECT_FALSE(press(plain(key::kTab)));
    EXPECT_EQ(desk().modal(), &notice);
    notice.hide();
  };
  frmNotice->show(ShowMode::Modal);
  EXPECT_EQ(form().lstRows.ListIndex, -1);
  form().hide();
  EXPECT_FALSE(press(plain(key::kTab)));
}

TEST_F(KeyboardTest, AKeyByItsNameTypesWhatItTypesWithoutShift) {
  for (const int code : {int{'A'}, int{'Z'}, int{'7'}, key::kSpace, key::kLeft}) {
    EXPECT_EQ(gesture::keyDown(form().txtField, code), "");
  }
  EXPECT_EQ(form().txtField.Text.get(), "az7 ");
  EXPECT_EQ(form().txtField.SelStart, 3);
  EXPECT_EQ(gesture::keyDown(form().lstRows, 'G'), "");
  EXPECT_EQ(form().lstRows.ListIndex, 2);
}

}  // namespace
}  // namespace zelvs
