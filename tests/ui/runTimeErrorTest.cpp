// What a run-time error says of what was being done.

#include <algorithm>
#include <string>
#include <vector>

#include "support/logFixture.h"
#include "support/userFixture.h"
#include "text/utf8.h"
#include "ui/keyboard.h"
#include "ui/runTimeError.h"

namespace zelvs {
namespace {

using Words = std::vector<std::string>;

class FrmBusy final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmBusy() : Form("frmBusy", kKind, Border::Fixed) {
    lblRow(3).onMouseDown = look;
    lblRow(3).onMouseUp = look;
    lblRow(3).onClick = look;
    lblRow(3).onDblClick = look;
    lblRow(3).onMouseMove = look;
    lstRows.onClick = look;
    lstRows.onLostFocus = look;
    lstRows.addItem("row");
    timTick.onTimer = look;
    cmdGo.onClick = look;
    cmdGo.onKeyDown = [](int&) { look(); };
  }
  Label& row() { return lblRow(3); }

  ControlArray<Label> lblRow{this, "lblRow", 3, 4};
  ListBox lstRows{this, "lstRows"};
  CommandButton cmdGo{this, "cmdGo"};
  Timer timTick{this, "timTick"};

  static inline std::vector<Words> seen;

 protected:
  void load() override { look(); }
  void unloading() override { look(); }

 private:
  static void look() { seen.push_back(deedWords()); }
};
FormRef<FrmBusy> frmBusy{"frmBusy"};

class DeedTest : public NotingTest {
 protected:
  DeedTest() { FrmBusy::seen.clear(); }
  static std::vector<Words> take() { return std::exchange(FrmBusy::seen, {}); }
};

TEST_F(DeedTest, WhereNothingIsDoneThereIsNothingToTell) {
  EXPECT_EQ(deedWords(), Words{});
}

TEST_F(DeedTest, TheInnermostComesFirst) {
  const Deed outer("restarting");
  const std::string path = "/lessons/first.txt";
  {
    const Deed inner("opening the lesson", path);
    EXPECT_EQ(deedWords(), (Words{"while opening the lesson /lessons/first.txt", "while restarting"}));
  }
  EXPECT_EQ(deedWords(), Words{"while restarting"});
}

TEST_F(DeedTest, FewAndShortWordsAreTold) {
  const std::string path = "/" + std::string(5000, 'x') + "/first.txt";
  const Deed outermost("starting up");
  const Deed deeds[] = {Deed("1"), Deed("2"), Deed("3"), Deed("4"), Deed("5"), Deed("opening the lesson", path)};
  const Words words = deedWords();
  ASSERT_EQ(words.size(), 6U);
  EXPECT_EQ(words[1], "while 5");
  EXPECT_EQ(charactersOf(words[0]).size(), 200U);
  EXPECT_TRUE(words[0].starts_with("while opening the lesson /xxx"));
  EXPECT_TRUE(words[0].ends_with("xxx/first.txt"));
}

TEST_F(DeedTest, EachGestureIsADeedWithTheNameOfItsControl) {
  frmBusy->show();
  EXPECT_EQ(take(), std::vector<Words>{{"while loading the window frmBusy"}});
  const Words pressing = {"while pressing frmBusy.lblRow(3)"};
  const Words releasing = {"while releasing frmBusy.lblRow(3)"};
  const Words clicking = {"while clicking frmBusy.lblRow(3)"};

  click(frmBusy->row());
  EXPECT_EQ(take(), (std::vector<Words>{pressing, releasing, clicking}));
  doubleClick(frmBusy->row());
  EXPECT_EQ(take(), (std::vector<Words>{
                        pressing, releasing, clicking, {"while double-clicking frmBusy.lblRow(3)"}, releasing}));
  EXPECT_EQ(gesture::move(*frmBusy, &frmBusy->row()), "");
  EXPECT_EQ(take(), std::vector<Words>{{"while moving over frmBusy.lblRow(3)"}});
  EXPECT_EQ(gesture::pick(frmBusy->lstRows, 0), "");
  EXPECT_EQ(take(), std::vector<Words>{{"while picking a row of frmBusy.lstRows"}});
  EXPECT_EQ(gesture::focus(frmBusy->cmdGo), "");
  EXPECT_EQ(take(), std::vector<Words>{{"while leaving frmBusy.lstRows"}});
  EXPECT_EQ(gesture::keyDown(frmBusy->cmdGo, key::kSpace), "");
  const std::string key = "while taking a key in frmBusy.cmdGo";
  EXPECT_EQ(take(), (std::vector<Words>{{key}, {"while clicking frmBusy.cmdGo", key}}));
  frmBusy->timTick.Interval = 10;
  desk().clock.advance(10);
  EXPECT_EQ(take(), std::vector<Words>{{"while running the timer frmBusy.timTick"}});
  EXPECT_EQ(gesture::close(*frmBusy), "");
  EXPECT_EQ(take(), std::vector<Words>{{"while closing frmBusy"}});
  EXPECT_EQ(deedWords(), Words{});
}

TEST_F(DeedTest, APressThatIsLetGoOfIsNamedToo) {
  frmBusy->show();
  FrmBusy& form = *frmBusy;
  form.row().move(0, 0, 1000, 1000);
  desk().hand.down(form, {10, 10}, false);
  take();
  desk().hand.lose();
  EXPECT_EQ(take(), std::vector<Words>{{"while releasing frmBusy.lblRow(3)"}});
}

}  // namespace
}  // namespace zelvs
