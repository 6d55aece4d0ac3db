// Front to back: topmost windows, windows, floating children, children, the frame. Modal windows hold the user.

#include <string>
#include <vector>

#include "shell/frmMDI.h"
#include "support/program.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

template <FormKind Kind>
class FrmPlain : public Form {
 public:
  static constexpr FormKind kKind = Kind;
  explicit FrmPlain(const char* name) : Form(name, Kind, Border::Fixed) {}
  CommandButton cmdPush{this, "cmdPush"};
};

#define PLAIN_FORM(Type, place, kind)        \
  class Type final : public FrmPlain<kind> { \
   public:                                   \
    Type() : FrmPlain<kind>(#place) {}       \
  };                                         \
  FormRef<Type> place{#place};

PLAIN_FORM(FrmChildA, frmChildA, FormKind::Child)
PLAIN_FORM(FrmChildB, frmChildB, FormKind::Child)
PLAIN_FORM(FrmWindowA, frmWindowA, FormKind::Window)
PLAIN_FORM(FrmWindowB, frmWindowB, FormKind::Window)
PLAIN_FORM(FrmWindowC, frmWindowC, FormKind::Window)
#undef PLAIN_FORM

using Names = std::vector<std::string>;

Names order() {
  Names names;
  for (const Form* form : desk().forms())
    names.push_back(form->name());
  return names;
}

class WindowOrderTest : public ProgramTest {};

TEST_F(WindowOrderTest, AFormNeverLeavesItsLayer) {
  frmWindowA->show();
  frmChildA->show();
  frmWindowB->show();
  frmChildB->show();
  EXPECT_EQ(order(), (Names{"frmWindowB", "frmWindowA", "frmChildB", "frmChildA", "frmMDI"}));
  frmChildA->bringToFront();
  EXPECT_EQ(order(), (Names{"frmWindowB", "frmWindowA", "frmChildA", "frmChildB", "frmMDI"}));
  frmMDI->bringToFront();
  EXPECT_EQ(order(), (Names{"frmWindowB", "frmWindowA", "frmChildA", "frmChildB", "frmMDI"}));
  frmWindowA->setTopmost();
  frmWindowB->show();
  EXPECT_EQ(order(), (Names{"frmWindowA", "frmWindowB", "frmChildA", "frmChildB", "frmMDI"}));
  frmChildB->setFloating(true);
  frmChildA->bringToFront();
  EXPECT_EQ(order(), (Names{"frmWindowA", "frmWindowB", "frmChildB", "frmChildA", "frmMDI"}));
  frmChildB->setFloating(false);
  frmChildA->bringToFront();
  EXPECT_EQ(order(), (Names{"frmWindowA", "frmWindowB", "frmChildA", "frmChildB", "frmMDI"}));
}

TEST_F(WindowOrderTest, AFormThatIsOnlyLoadedLiesAtTheBackOfItsLayer) {
  frmWindowA->show();
  frmWindowB.load();
  frmChildA->show();
  frmChildB.load();
  EXPECT_EQ(order(), (Names{"frmWindowA", "frmWindowB", "frmChildA", "frmChildB", "frmMDI"}));
}

TEST_F(WindowOrderTest, AnOwnedWindowStaysInFrontOfItsOwner) {
  frmWindowA->show();
  frmWindowB->show(ShowMode::Modeless, frmWindowA.get());
  frmWindowC->show(ShowMode::Modeless, frmWindowB.get());
  frmWindowA->bringToFront();
  EXPECT_EQ(order(), (Names{"frmWindowC", "frmWindowB", "frmWindowA"}));
  gesture::activate(*frmWindowA);
  EXPECT_EQ(order(), (Names{"frmWindowC", "frmWindowB", "frmWindowA"}));
  EXPECT_EQ(desk().active(), frmWindowA.form());
}

TEST_F(WindowOrderTest, AHiddenOwnedWindowIsLeftWhereItLies) {
  frmWindowA->show();
  frmWindowB->show(ShowMode::Modeless, frmWindowA.get());
  frmWindowB->hide();
  frmWindowA->bringToFront();
  EXPECT_EQ(order(), (Names{"frmWindowA", "frmWindowB"}));
}

TEST_F(WindowOrderTest, AnOwnerThatIsUnloadedOwnsNothing) {
  frmWindowA->show();
  frmWindowB->show(ShowMode::Modeless, frmWindowA.get());
  EXPECT_EQ(frmWindowB->owner(), frmWindowA.form());
  frmWindowA->unload();
  EXPECT_EQ(frmWindowB->owner(), nullptr);
  EXPECT_TRUE(frmWindowB.visible());
}

TEST_F(WindowOrderTest, AGestureBringsItsFormToTheFront) {
  frmWindowA->show();
  frmWindowB->show();
  EXPECT_EQ(gesture::click(*frmWindowA, &frmWindowA->cmdPush), "");
  EXPECT_EQ(order(), (Names{"frmWindowA", "frmWindowB"}));
}

TEST_F(WindowOrderTest, AModalWindowHoldsTheUserUntilItIsHidden) {
  frmWindowA->show();
  bool returned = false;
  platform.onModal = [&](Form& form) {
    EXPECT_EQ(&form, frmWindowB.form());
    EXPECT_TRUE(form.modal());
    EXPECT_EQ(desk().modal(), &form);
    EXPECT_EQ(desk().active(), &form);
    EXPECT_FALSE(returned);
    EXPECT_EQ(gesture::click(*frmWindowA, &frmWindowA->cmdPush), "frmWindowB is modal");
    EXPECT_EQ(gesture::press(*frmWindowA, nullptr), "frmWindowB is modal");
    EXPECT_EQ(gesture::move(*frmWindowA, nullptr), "frmWindowB is modal");
    EXPECT_EQ(gesture::activate(*frmWindowA), "frmWindowB is modal");
    EXPECT_EQ(gesture::close(*frmWindowA), "frmWindowB is modal");
    EXPECT_EQ(gesture::focus(frmWindowA->cmdPush), "frmWindowB is modal");
    EXPECT_EQ(desk().active(), &form) << "a refused gesture changes nothing";
    EXPECT_EQ(gesture::click(form, &frmWindowB->cmdPush), "");
    form.hide();
  };
  frmWindowB->show(ShowMode::Modal);
  returned = true;
  EXPECT_EQ(desk().modal(), nullptr);
  EXPECT_FALSE(frmWindowB->modal());
  EXPECT_EQ(desk().active(), frmWindowA.form());
  EXPECT_EQ(gesture::click(*frmWindowA, &frmWindowA->cmdPush), "");
}

TEST_F(WindowOrderTest, OfTwoModalWindowsTheInnerOneHoldsTheUser) {
  Names held;
  platform.onModal = [&](Form& form) {
    held.push_back(desk().modal()->name());
    if (&form == frmWindowA.form()) {
      frmWindowB->show(ShowMode::Modal);
      held.push_back(desk().modal()->name());
      EXPECT_EQ(desk().active(), frmWindowA.form());
    }
    form.hide();
  };
  frmWindowA->show(ShowMode::Modal);
  EXPECT_EQ(held, (Names{"frmWindowA", "frmWindowB", "frmWindowA"}));
  EXPECT_EQ(desk().modal(), nullptr);
}

TEST_F(WindowOrderTest, AModalWindowLiesInFrontOfTopmostOnesForAsLongAsItIsModal) {
  frmWindowA->setTopmost();
  frmWindowA->show();
  frmWindowC->show();
  platform.onModal = [](Form& form) {
    EXPECT_EQ(order(), (Names{"frmWindowB", "frmWindowA", "frmWindowC"}));
    form.hide();
  };
  frmWindowB->show(ShowMode::Modal);
  EXPECT_EQ(order(), (Names{"frmWindowA", "frmWindowC", "frmWindowB"})) << "the user is back at the third";
  frmWindowB->show();
  EXPECT_EQ(order(), (Names{"frmWindowA", "frmWindowB", "frmWindowC"})) << "not modal: one among its like";
}

TEST_F(WindowOrderTest, BehindTheEndNothingIsShown) {
  frmWindowA->show();
  desk().end();
  bool asked = false;
  platform.onModal = [&](Form& form) {
    asked = true;
    form.hide();
  };
  frmWindowB->show();
  frmWindowC->show(ShowMode::Modal);
  EXPECT_FALSE(frmWindowB.visible());
  EXPECT_FALSE(frmWindowC.visible());
  EXPECT_FALSE(asked);
}

TEST_F(WindowOrderTest, AModalWindowThatIsUnloadedLetsTheUserGo) {
  frmWindowA->show();
  platform.onModal = [](Form& form) { form.unload(); };
  frmWindowB->show(ShowMode::Modal);
  EXPECT_EQ(desk().modal(), nullptr);
  EXPECT_FALSE(frmWindowB.loaded());
}

TEST_F(WindowOrderTest, AHiddenFormTakesNoGesture) {
  frmWindowA.load();
  EXPECT_EQ(gesture::click(*frmWindowA, &frmWindowA->cmdPush), "frmWindowA is not visible");
  EXPECT_EQ(gesture::activate(*frmWindowA), "frmWindowA is not visible");
}

}  // namespace
}  // namespace zelvs
