// What a person can rely on when looking at the panel: nothing lies outside its board, nothing that can be worked is
// covered, every text can be read, and boards of one kind look alike.

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "support/program.h"
#include "ui/gesture.h"
#include "ui/textExtent.h"

namespace zelvs {
namespace {

// Places are sums of pixels in twips, sizes of text are not whole: this much is no difference.
constexpr double kTolerance = 0.01;

bool drawn(const Control& control) {
  return control.kind() != ControlKind::Timer && control.kind() != ControlKind::Sound;
}

bool operable(const Control& control) {
  return control.onClick || control.onDblClick || control.onMouseDown || control.onMouseUp;
}

bool isList(const Control& control) {
  return control.kind() == ControlKind::ComboBox;
}

bool inside(const Area& inner, const Area& outer) {
  return inner.left >= outer.left - kTolerance && inner.top >= outer.top - kTolerance &&
         inner.right() <= outer.right() + kTolerance && inner.bottom() <= outer.bottom() + kTolerance;
}

bool overlap(const Area& one, const Area& other) {
  const Area common = one.intersected(other);
  return common.width > kTolerance && common.height > kTolerance;
}

double middleOf(const Area& area) {
  return area.top + area.height / 2;
}

std::string told(const Control& control) {
  const Area area = control.area();
  const auto pixels = [](double twips) { return std::to_string(static_cast<int>(twips / kTwipsPerPixel)); };
  return control.fullName() + " at " + pixels(area.left) + ", " + pixels(area.top) + ", " + pixels(area.width) + " x " +
         pixels(area.height);
}

const Picture* pictureOf(const Control& control) {
  if (control.kind() == ControlKind::PictureBox) return &static_cast<const PictureBox&>(control).Picture.get();
  if (control.kind() == ControlKind::Image) return &static_cast<const Image&>(control).Picture.get();
  return nullptr;
}

/// Everything that a board holds, whatever holds it there.
void collect(const Control& holder, std::vector<const Control*>& found) {
  for (const Control* control : holder.children()) {
    found.push_back(control);
    collect(*control, found);
  }
}

std::vector<const Control*> everythingOn(int board) {
  std::vector<const Control*> found;
  collect(frmHard->picBoard(board), found);
  return found;
}

/// What makes two boards look alike: names, captions and places, counted from the boards' chips.
using Look = std::multiset<std::tuple<std::string, std::string, int, int, int, int>>;

Look lookOf(int board) {
  const Area chip = frmHard->picQVT(board).area();
  Look look;
  for (const Control* control : everythingOn(board)) {
    // The connector to the other board of a pair stands on the side of that board.
    if (control->name() == "picFConn") continue;
    const std::string caption = control->name() == "lblTitle" ? control->Caption.get() : std::string();
    const Area area = control->area();
    look.emplace(control->name(), caption, std::lround(area.left - chip.left), std::lround(area.top - chip.top),
                 std::lround(area.width), std::lround(area.height));
  }
  return look;
}

/// The panel in each state that shows or hides parts: board 5's modes, with and without slaves, full and half.
class LayoutTest : public ProgramTest, public testing::WithParamInterface<int> {
 protected:
  void startPanel() {
    const int mode = GetParam();
    const std::string slaves = mode % 2 == 0 ? "0" : "1";
    start({{"IOS-QVT50", std::to_string(mode)},
           {"CASCADE-QVT40-12", slaves},
           {"CASCADE-QVT40-34", slaves},
           {"TRANSFER", mode < 4 ? "0" : "1"}});
  }
};

class PanelLookTest : public ProgramTest {};

INSTANTIATE_TEST_SUITE_P(Modes, LayoutTest, testing::Range(0, 8));

TEST_P(LayoutTest, EveryControlLiesInsideWhatHoldsIt) {
  startPanel();
  const Area table{0, 0, 13330, frmHard->clientHeight()};
  for (const Control* control : frmHard->controls()) {
    if (!drawn(*control)) continue;
    EXPECT_GT(control->Width.get(), 0) << told(*control);
    EXPECT_GT(control->Height.get(), 0) << told(*control);
    const Area holder = control->container() != nullptr ? control->container()->area() : table;
    EXPECT_TRUE(inside(control->area(), holder)) << told(*control);
  }
}

TEST_P(LayoutTest, WhatIsShownLiesInTheWindow) {
  startPanel();
  const Area window{0, 0, frmHard->clientWidth(), frmHard->clientHeight()};
  for (const Control* control : frmHard->controls()) {
    if (!drawn(*control) || !control->shown()) continue;
    EXPECT_TRUE(inside(control->area(), window)) << told(*control);
  }
}

TEST_P(LayoutTest, EveryPictureExists) {
  startPanel();
  for (const Control* control : frmHard->controls()) {
    const Picture* picture = pictureOf(*control);
    if (picture == nullptr) continue;
    ASSERT_FALSE(picture->none()) << control->fullName();
    if (picture->list == nullptr) continue;
    EXPECT_GE(picture->image, 1) << control->fullName();
    EXPECT_LE(picture->image, picture->list->count()) << control->fullName();
  }
}

TEST_P(LayoutTest, NothingThatCanBeWorkedIsCovered) {
  startPanel();
  std::vector<const Control*> shown;
  for (const Control* control : frmHard->controls()) {
    if (drawn(*control) && control->shown() && !isList(*control)) shown.push_back(control);
  }
  for (const Control* control : shown) {
    if (!operable(*control)) continue;
    for (const Control* other : shown) {
      const bool covers = operable(*other) || other->kind() == ControlKind::Label;
      if (control == other || !covers) continue;
      EXPECT_FALSE(overlap(control->area(), other->area())) << told(*control) << "\n" << told(*other);
    }
    const Area area = control->area();
    EXPECT_EQ(frmHard->controlAt(area.left + area.width / 2, middleOf(area)), control) << told(*control);
  }
}

TEST_P(LayoutTest, EveryTextFitsItsPlace) {
  startPanel();
  const auto check = [] {
    for (const Control* control : frmHard->controls()) {
      if (control->kind() != ControlKind::Label) continue;
      const Area area = control->area();
      EXPECT_LE(textWidth(control->Caption.get(), control->FontSize), area.width + kTolerance)
          << control->Caption.get() << ": " << told(*control);
      EXPECT_LE(lineHeight(control->FontSize), area.height + kTolerance)
          << control->Caption.get() << ": " << told(*control);
    }
  };
  check();
  ASSERT_EQ(gesture::doubleClick(*frmHard, &frmHard->picBPSS), "");
  check();
}

TEST_P(LayoutTest, EveryPinHasItsNumberBesideIt) {
  startPanel();
  const auto numbered = [](const PictureBox& pin) {
    const std::string number = std::to_string(pin.index() % 16);
    const Area place = pin.area();
    constexpr double kBeside = 12 * kTwipsPerPixel;
    return std::any_of(frmHard->lblTitle.begin(), frmHard->lblTitle.end(), [&](const Label& label) {
      const Area area = label.area();
      const double gap = place.left - area.right();
      return label.container() == pin.container() && label.Caption == number && gap >= 0 && gap < kBeside &&
             std::abs(middleOf(area) - middleOf(place)) < kTolerance;
    });
  };
  for (const PictureBox& pin : frmHard->picPI)
    EXPECT_TRUE(numbered(pin)) << told(pin);
  for (const PictureBox& pin : frmHard->picPO)
    EXPECT_TRUE(numbered(pin)) << told(pin);
}

TEST_F(PanelLookTest, EveryTitleSaysSomething) {
  start();
  for (const Label& title : frmHard->lblTitle) {
    EXPECT_FALSE(title.Caption.get().empty()) << title.fullName();
    EXPECT_TRUE(title.Visible) << title.fullName();
  }
  EXPECT_EQ(frmHard->lblTitle(164).Caption, std::string_view("NOISE"));
  EXPECT_EQ(frmHard->lblTitle(164).container(), nullptr);
  const Area button = frmHard->picNoise.area();
  EXPECT_NEAR(frmHard->lblTitle(164).area().left + frmHard->lblTitle(164).area().width / 2,
              button.left + button.width / 2, kTolerance);
}

TEST_F(PanelLookTest, BoardsOfOneKindLookAlike) {
  start();
  const Look master = lookOf(1);
  const Look slave = lookOf(2);
  EXPECT_EQ(master, lookOf(3));
  EXPECT_EQ(slave, lookOf(4));
  // A slave is a master without what belongs to a cable of its own.
  EXPECT_TRUE(std::includes(master.begin(), master.end(), slave.begin(), slave.end()));
}

TEST_F(PanelLookTest, ListsShowAllTheirRowsBesideTheirPictures) {
  start();
  const auto check = [](const ComboBox& list, const PictureBox& picture, int rows) {
    constexpr double kRow = 18 * kTwipsPerPixel;
    constexpr double kFrame = 2 * kTwipsPerPixel;
    constexpr double kScrollBar = 16 * kTwipsPerPixel;
    const Area area = list.area();
    EXPECT_FALSE(list.Visible) << list.fullName();
    EXPECT_GE(area.height, rows * kRow + kFrame) << list.fullName();
    double widest = 0;
    for (int row = 0; row < list.ListCount(); ++row)
      widest = std::max(widest, textWidth(list.List(row), list.FontSize));
    EXPECT_GE(area.width, widest + kFrame + (rows < list.ListCount() ? kScrollBar : 0)) << list.fullName();
    // The picture stays free: clicking it again closes the list.
    EXPECT_FALSE(overlap(area, picture.area())) << told(list) << "\n" << told(picture);
  };
  constexpr int kStationRows = 10;
  for (const ComboBox& list : frmHard->cmbSA) {
    check(list, frmHard->picSA(2 * list.index()), kStationRows);
    check(list, frmHard->picSA(2 * list.index() + 1), kStationRows);
  }
  for (const ComboBox& list : frmHard->cmbClock)
    check(list, frmHard->picClock(list.index()), list.ListCount());
  check(frmHard->cmbCPUType, frmHard->picCPU, frmHard->cmbCPUType.ListCount());
  check(frmHard->cmbIOS, frmHard->picIOS, frmHard->cmbIOS.ListCount());
  check(frmHard->cmbMode, frmHard->picMode, frmHard->cmbMode.ListCount());
}

TEST_F(PanelLookTest, CableEndsMeetTheirConnectors) {
  start();
  const auto meets = [](const PictureBox& end, const PictureBox& jack) {
    EXPECT_NEAR(end.area().right(), jack.area().left, kTolerance) << told(end) << "\n" << told(jack);
    EXPECT_GE(middleOf(jack.area()), end.area().top) << told(end) << "\n" << told(jack);
    EXPECT_LE(middleOf(jack.area()), end.area().bottom()) << told(end) << "\n" << told(jack);
  };
  constexpr int kLastPort = 1;
  double aboveFirst = 0;
  for (int port = 0; port <= kLastPort; ++port) {
    if (port == kLastPort) {
      ASSERT_EQ(gesture::doubleClick(*frmHard, &frmHard->picBOARD1_RXD(port)), "");
    }
    meets(frmHard->picCableUp(0), frmHard->picBOARD1_RXD(port));
    const double above = middleOf(frmHard->picBOARD1_RXD(port).area()) - frmHard->picCableUp(0).area().top;
    if (port == 0) aboveFirst = above;
    EXPECT_NEAR(above, aboveFirst, kTolerance) << "the plug enters both ports alike";
    EXPECT_GE(frmHard->picCableUp(0).area().bottom(), frmHard->picCableRole(0).area().top - kTolerance);
  }
  meets(frmHard->picCableUp(1), frmHard->picBOARD2_RXD(1));
  meets(frmHard->picCableUp(2), frmHard->picBOARD2_RXD(3));
  for (int cable = 0; cable < 3; ++cable) {
    meets(frmHard->picCableDn(cable), frmHard->picBOARD2_RXD(2 * cable));
    EXPECT_LE(frmHard->picCableDn(cable).area().top, frmHard->picCableRole(cable).area().bottom() + kTolerance);
  }
}

}  // namespace
}  // namespace zelvs
