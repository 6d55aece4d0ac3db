// Loading, showing, hiding and unloading of forms, and what their own procedures learn of it.

#include <string>
#include <vector>

#include "shell/frmMDI.h"
#include "support/logFixture.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

bool theUnloadIsRefused = false;

class RecordingForm : public Form {
 public:
  using Form::Form;

 protected:
  void load() override { tell("load"); }
  void activated() override { tell("activated"); }
  void deactivated() override { tell("deactivated"); }
  void resized() override { tell("resized"); }
  bool queryUnload(bool byUser) override {
    tell(byUser ? "asked by the user" : "asked by the program");
    return !theUnloadIsRefused;
  }
  void unloading() override { tell("unloading"); }

 private:
  void tell(const std::string& what) { note(name() + " " + what); }
};

class FrmFirst final : public RecordingForm {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmFirst() : RecordingForm("frmFirst", kKind, Border::Fixed) {}
  CommandButton cmdClose{this, "cmdClose"};
  Timer timOnce{this, "timOnce"};
};
FormRef<FrmFirst> frmFirst{"frmFirst"};

class FrmSecond final : public RecordingForm {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmSecond() : RecordingForm("frmSecond", kKind, Border::None) {}
};
FormRef<FrmSecond> frmSecond{"frmSecond"};

class FrmInside final : public RecordingForm {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  FrmInside() : RecordingForm("frmInside", kKind, Border::Fixed) {}
};
FormRef<FrmInside> frmInside{"frmInside"};

class FormLifeTest : public NotingTest {
 protected:
  FormLifeTest() { theUnloadIsRefused = false; }
};

TEST_F(FormLifeTest, LoadsAtTheFirstTouchAndOnlyThen) {
  EXPECT_FALSE(frmFirst.loaded());
  EXPECT_FALSE(frmFirst.visible());
  frmFirst->Tag = "touched";
  EXPECT_TRUE(frmFirst.loaded());
  EXPECT_FALSE(frmFirst.visible());
  frmFirst.load();
  frmFirst->Tag = "again";
  EXPECT_EQ(takeNotes(), Lines{"frmFirst load"});
}

TEST_F(FormLifeTest, ShowingTurnsTheUserFromOneFormToTheOther) {
  frmFirst->show();
  EXPECT_EQ(takeNotes(), (Lines{"frmFirst load", "frmFirst activated"}));
  frmSecond->show();
  EXPECT_EQ(takeNotes(), (Lines{"frmSecond load", "frmFirst deactivated", "frmSecond activated"}));
  EXPECT_EQ(desk().active(), frmSecond.form());
  EXPECT_TRUE(frmFirst.visible());
}

TEST_F(FormLifeTest, ShowingTheActiveFormAgainActivatesNothing) {
  frmFirst->show();
  takeNotes();
  frmFirst->show();
  EXPECT_EQ(takeNotes(), Lines{});
}

TEST_F(FormLifeTest, HidingTheActiveFormActivatesTheFrontOne) {
  frmFirst->show();
  frmSecond->show();
  takeNotes();
  frmSecond->hide();
  EXPECT_EQ(takeNotes(), (Lines{"frmSecond deactivated", "frmFirst activated"}));
  EXPECT_TRUE(frmSecond.loaded()) << "a hidden form stays";
  frmSecond->hide();
  EXPECT_EQ(takeNotes(), Lines{}) << "hiding twice is hiding once";
}

TEST_F(FormLifeTest, HidingAFormBehindLeavesTheActiveOne) {
  frmFirst->show();
  frmSecond->show();
  takeNotes();
  frmFirst->hide();
  EXPECT_EQ(takeNotes(), Lines{});
  EXPECT_EQ(desk().active(), frmSecond.form());
}

TEST_F(FormLifeTest, UnloadingAsksThenUnloadsAndTheNextTouchMakesANewOne) {
  frmFirst->show();
  frmFirst->Tag = "old";
  takeNotes();
  frmFirst->unload();
  EXPECT_EQ(takeNotes(), (Lines{"frmFirst asked by the program", "frmFirst unloading", "frmFirst deactivated"}));
  EXPECT_FALSE(frmFirst.loaded());
  EXPECT_FALSE(frmFirst.visible());
  EXPECT_TRUE(desk().forms().empty());
  EXPECT_TRUE(frmFirst->Tag == "");
  EXPECT_EQ(takeNotes(), Lines{"frmFirst load"});
}

TEST_F(FormLifeTest, ARefusedUnloadLeavesTheFormAsItWas) {
  frmFirst->show();
  takeNotes();
  theUnloadIsRefused = true;
  EXPECT_FALSE(frmFirst->close(false));
  EXPECT_EQ(takeNotes(), Lines{"frmFirst asked by the program"});
  EXPECT_EQ(gesture::close(*frmFirst), "") << "the form's own refusal counts as taken";
  EXPECT_EQ(takeNotes(), Lines{"frmFirst asked by the user"});
  EXPECT_TRUE(frmFirst.visible());
}

TEST_F(FormLifeTest, AFormWithoutACaptionBarHasNoCloseBox) {
  frmSecond->show();
  EXPECT_EQ(gesture::close(*frmSecond), "frmSecond has no close box");
  EXPECT_TRUE(frmSecond.visible());
}

TEST_F(FormLifeTest, AHandlerMayUnloadItsOwnForm) {
  frmFirst->show();
  std::string after;
  frmFirst->cmdClose.onClick = [&after] {
    CommandButton& button = frmFirst->cmdClose;
    frmFirst->unload();
    // What runs on still finds its control.
    button.Caption = "still here";
    after = button.Caption.get();
  };
  EXPECT_EQ(gesture::click(*frmFirst, &frmFirst->cmdClose), "");
  EXPECT_EQ(after, "still here");
  EXPECT_FALSE(frmFirst.loaded());
}

TEST_F(FormLifeTest, ATimerMayUnloadItsOwnForm) {
  frmFirst->show();
  int fired = 0;
  frmFirst->timOnce.onTimer = [&fired] {
    ++fired;
    frmFirst->unload();
  };
  frmFirst->timOnce.Interval = 10;
  platform.advance(100);
  EXPECT_EQ(fired, 1);
  EXPECT_FALSE(frmFirst.loaded());
  EXPECT_EQ(desk().timers.running(), 0u);
}

TEST_F(FormLifeTest, AChildBringsItsFrame) {
  frmInside.load();
  EXPECT_TRUE(frmMDI.loaded());
  EXPECT_FALSE(frmMDI.visible());
  frmInside->show();
  EXPECT_TRUE(frmMDI.visible());
  EXPECT_EQ(desk().active(), frmInside.form());
}

TEST_F(FormLifeTest, ShowingAVisibleFormModallyEndsTheProgram) {
  frmFirst->show();
  EXPECT_EXIT(frmFirst->show(ShowMode::Modal), testing::ExitedWithCode(kRunTimeErrorStatus),
              "frmFirst is visible and cannot be shown modally");
}

TEST_F(FormLifeTest, AChangeOfSizeIsToldToTheForm) {
  frmFirst.load();
  takeNotes();
  frmFirst->Width = 9000;
  frmFirst->Width = 9000;
  frmFirst->Height = 5000;
  frmFirst->Left = 90;
  EXPECT_EQ(takeNotes(), (Lines{"frmFirst resized", "frmFirst resized"}));
}

TEST_F(FormLifeTest, TheCaptionBarCountsInTheHeight) {
  frmFirst->Height = 3000;
  frmSecond->Height = 3000;
  EXPECT_EQ(frmFirst->clientHeight(), 2700);
  EXPECT_EQ(frmSecond->clientHeight(), 3000);
}

TEST_F(FormLifeTest, AChildLiesBelowTheFramesToolBar) {
  frmInside->move(150, 450);
  frmMDI->move(1000, 2000);
  EXPECT_EQ(frmInside->insideLeft(), 1000 + 150);
  EXPECT_EQ(frmInside->insideTop(), 2000 + 300 + 225 + 450 + 300);
}

TEST_F(FormLifeTest, TheEndDropsEveryFormWithoutAsking) {
  frmFirst->show();
  frmSecond->show();
  frmInside.load();
  takeNotes();
  theUnloadIsRefused = true;
  desk().end();
  EXPECT_TRUE(desk().ended());
  EXPECT_TRUE(desk().forms().empty());
  EXPECT_EQ(takeNotes(),
            (Lines{"frmSecond unloading", "frmSecond deactivated", "frmFirst unloading", "frmInside unloading"}));
  for (const FormPlace* place : FormPlace::all())
    EXPECT_FALSE(place->loaded()) << place->name();
}

TEST_F(FormLifeTest, AFormIsFoundByItsExactName) {
  EXPECT_EQ(FormPlace::named("frmFirst"), &frmFirst);
  EXPECT_EQ(FormPlace::named("frmfirst"), nullptr);
}

}  // namespace
}  // namespace zelvs
