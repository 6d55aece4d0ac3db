// What a control receives of each gesture.

#include <functional>
#include <string>
#include <vector>

#include "support/logFixture.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class FrmHands final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmHands() : Form("frmHands", kKind, Border::Fixed) {
    noteMouse(picOnce);
    noteMouse(picTwice, true);
    noteMouse(cmdPush);
  }
  PictureBox picOnce{this, "picOnce"};
  PictureBox picTwice{this, "picTwice"};
  PictureBox picDeaf{this, "picDeaf"};
  CommandButton cmdPush{this, "cmdPush"};
  CheckBox chkMark{this, "chkMark"};
  TextBox txtField{this, "txtField"};
  ListBox lstRows{this, "lstRows"};

  void click() override { note("frmHands click"); }
};
FormRef<FrmHands> frmHands{"frmHands"};

class GestureTest : public NotingTest {
 protected:
  GestureTest() { frmHands->show(); }
  FrmHands& form() { return *frmHands; }
};

TEST_F(GestureTest, EachGestureReachesTheControlWithItsEvents) {
  struct Row {
    const char* gesture;
    std::function<std::string(Form&, Control*)> make;
    Lines once;   // on a control without a double-click action
    Lines twice;  // on one with it
  };
  const std::vector<Row> table = {
      {"click", gesture::click, {"down", "up", "click"}, {"down", "up", "click"}},
      {"dblclick",
       [](Form& f, Control* c) { return gesture::doubleClick(f, c); },
       {"down", "up", "click", "down", "up", "click"},
       {"down", "up", "click", "double", "up"}},
      {"dblpress",
       [](Form& f, Control* c) { return gesture::doubleClick(f, c, false); },
       {"down", "up", "click", "down"},
       {"down", "up", "click", "double"}},
      {"press", gesture::press, {"down"}, {"down"}},
      {"press, release",
       [](Form& f, Control* c) {
         gesture::press(f, c);
         return gesture::release(f, c);
       },
       {"down", "up", "click"},
       {"down", "up", "click"}},
      {"press, release outside",
       [](Form& f, Control* c) {
         gesture::press(f, c);
         return gesture::release(f, c, false);
       },
       {"down", "up"},
       {"down", "up"}},
      {"release alone", [](Form& f, Control* c) { return gesture::release(f, c); }, {"up"}, {"up"}},
      {"move", gesture::move, {"move"}, {"move"}},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.gesture);
    for (const bool twice : {false, true}) {
      PictureBox& control = twice ? form().picTwice : form().picOnce;
      Lines wanted;
      for (const std::string& event : twice ? row.twice : row.once)
        wanted.push_back(control.name() + " " + event);
      EXPECT_EQ(row.make(form(), &control), "");
      EXPECT_EQ(takeNotes(), wanted);
      gesture::release(form(), &form().picDeaf);  // the button is up again
    }
  }
}

TEST_F(GestureTest, AReleaseClicksOnlyTheControlThatWasPressed) {
  gesture::press(form(), &form().picOnce);
  gesture::release(form(), &form().picTwice);
  EXPECT_EQ(takeNotes(), (Lines{"picOnce down", "picTwice up"}));
  gesture::release(form(), &form().picOnce);
  EXPECT_EQ(takeNotes(), Lines{"picOnce up"}) << "the press is over";
}

TEST_F(GestureTest, TheReleaseAfterADoublePressIsNoClick) {
  gesture::doubleClick(form(), &form().picTwice, false);
  takeNotes();
  gesture::release(form(), &form().picTwice);
  EXPECT_EQ(takeNotes(), Lines{"picTwice up"});
}

TEST_F(GestureTest, TheReleaseAfterADoublePressWithoutDoubleClickActionIsAClick) {
  gesture::doubleClick(form(), &form().picOnce, false);
  takeNotes();
  gesture::release(form(), &form().picOnce);
  EXPECT_EQ(takeNotes(), (Lines{"picOnce up", "picOnce click"}));
}

TEST_F(GestureTest, BesideTheControlsTheFormItselfIsClicked) {
  EXPECT_EQ(gesture::click(form(), nullptr), "");
  EXPECT_EQ(takeNotes(), Lines{"frmHands click"});
  EXPECT_EQ(gesture::doubleClick(form(), nullptr), "");
  EXPECT_EQ(takeNotes(), (Lines{"frmHands click", "frmHands click"}));
}

TEST_F(GestureTest, AHiddenOrDisabledControlRefusesEveryGesture) {
  const std::vector<std::function<std::string(Form&, Control*)>> gestures = {
      gesture::press,
      [](Form& f, Control* c) { return gesture::release(f, c); },
      gesture::click,
      [](Form& f, Control* c) { return gesture::doubleClick(f, c); },
      gesture::pressAgain,
      gesture::move,
      [](Form&, Control* c) { return gesture::focus(*c); },
      [](Form&, Control* c) { return gesture::type(*c, U'x'); },
      [](Form&, Control* c) { return gesture::keyDown(*c, key::kEnter); },
  };
  for (const auto& make : gestures) {
    form().picTwice.Visible = false;
    EXPECT_EQ(make(form(), &form().picTwice), "frmHands.picTwice is not visible");
    form().picTwice.Visible = true;
    form().picTwice.Enabled = false;
    EXPECT_EQ(make(form(), &form().picTwice), "frmHands.picTwice is not enabled");
    form().picTwice.Enabled = true;
  }
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_EQ(desk().focused(), nullptr);
}

TEST_F(GestureTest, APressThatHidesItsControlEndsTheGesture) {
  form().picOnce.onMouseDown = [] {
    note("down and away");
    frmHands->picOnce.Visible = false;
  };
  EXPECT_EQ(gesture::click(form(), &form().picOnce), "");
  EXPECT_EQ(takeNotes(), Lines{"down and away"});
  // The button went up somewhere else: a later release starts from nothing.
  form().picOnce.Visible = true;
  gesture::release(form(), &form().picOnce);
  EXPECT_EQ(takeNotes(), Lines{"picOnce up"});
}

TEST_F(GestureTest, AClickThatHidesItsControlEndsADoubleClick) {
  form().picTwice.onClick = [] {
    note("click and away");
    frmHands->picTwice.Visible = false;
  };
  EXPECT_EQ(gesture::doubleClick(form(), &form().picTwice), "");
  EXPECT_EQ(takeNotes(), (Lines{"picTwice down", "picTwice up", "click and away"}));
}

TEST_F(GestureTest, AClickThatUnloadsItsFormEndsADoubleClick) {
  form().picTwice.onClick = [] { frmHands->unload(); };
  EXPECT_EQ(gesture::doubleClick(form(), &form().picTwice), "");
  EXPECT_EQ(takeNotes(), (Lines{"picTwice down", "picTwice up"}));
  EXPECT_FALSE(frmHands.loaded());
}

TEST_F(GestureTest, EnterAndSpacePushAButton) {
  for (const int code : {key::kEnter, key::kSpace}) {
    EXPECT_EQ(gesture::keyDown(form().cmdPush, code), "");
    EXPECT_EQ(takeNotes(), Lines{"cmdPush click"}) << code;
  }
  gesture::keyDown(form().cmdPush, 'A');
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(GestureTest, EnterInAFieldPushesTheDefaultButton) {
  gesture::keyDown(form().txtField, key::kEnter);
  EXPECT_EQ(takeNotes(), Lines{}) << "no button is the default one";
  form().cmdPush.Default = true;
  gesture::keyDown(form().txtField, key::kEnter);
  EXPECT_EQ(takeNotes(), Lines{"cmdPush click"});
  form().cmdPush.Enabled = false;
  gesture::keyDown(form().txtField, key::kEnter);
  form().cmdPush.Enabled = true;
  form().cmdPush.Visible = false;
  gesture::keyDown(form().txtField, key::kEnter);
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(GestureTest, AKeyThatTheHandlerSwallowsDoesNothingMore) {
  form().cmdPush.onKeyDown = [](int& code) { code = 0; };
  gesture::keyDown(form().cmdPush, key::kEnter);
  EXPECT_EQ(takeNotes(), Lines{});
  form().cmdPush.onKeyDown = [](int& code) { code = key::kSpace; };
  gesture::keyDown(form().cmdPush, 'A');
  EXPECT_EQ(takeNotes(), Lines{"cmdPush click"}) << "a handler may put another key in its place";
}

TEST_F(GestureTest, SpaceTogglesACheckBox) {
  gesture::keyDown(form().chkMark, key::kSpace);
  EXPECT_EQ(form().chkMark.Value, 1);
  gesture::keyDown(form().chkMark, key::kSpace);
  EXPECT_EQ(form().chkMark.Value, 0);
}

TEST_F(GestureTest, TextGoesIntoFieldsOnly) {
  EXPECT_EQ(gesture::type(form().cmdPush, U'x'), "frmHands.cmdPush takes no text");
  EXPECT_EQ(gesture::type(form().txtField, U'x'), "");
  EXPECT_TRUE(form().txtField.Text == "x");
}

TEST_F(GestureTest, ARowThatIsNotThereIsRefusedAndChangesNothing) {
  form().lstRows.addItem("only");
  for (const int row : {-1, 1, 100}) {
    EXPECT_EQ(gesture::pick(form().lstRows, row), "frmHands.lstRows has no row " + std::to_string(row));
  }
  EXPECT_EQ(gesture::pick(form().cmdPush, 0), "frmHands.cmdPush has no row 0");
  EXPECT_EQ(form().lstRows.ListIndex, -1);
  EXPECT_EQ(desk().focused(), nullptr);
}

}  // namespace
}  // namespace zelvs
