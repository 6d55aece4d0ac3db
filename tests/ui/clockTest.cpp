// The model's clock: by how much it moves, what it owes behind a modal window, when it wants to be woken.

#include <algorithm>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "support/program.h"
#include "ui/clock.h"

namespace zelvs {
namespace {

using Lines = std::vector<std::string>;

class FrmAlarm final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmAlarm() : Form("frmAlarm", kKind, Border::Fixed) {}
  Timer timA{this, "timA"};
  Timer timB{this, "timB"};
};
FormRef<FrmAlarm> frmAlarm{"frmAlarm"};

class FrmInner final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmInner() : Form("frmInner", kKind, Border::Fixed) {}
};
FormRef<FrmInner> frmInner{"frmInner"};

struct Step {
  std::int64_t real;
  std::int64_t moved;
};

// A real clock may stand, jump and be put back.
constexpr Step kSteps[] = {{0, 0},      {1, 1},         {99, 99}, {100, 100}, {101, 100},
                           {1000, 100}, {1000000, 100}, {-1, 0},  {-100, 0},  {-1000000, 0}};

class ClockTest : public ProgramTest {
 protected:
  ClockTest() {
    for (Timer* timer : {&frmAlarm->timA, &frmAlarm->timB})
      timer->onTimer = [this, timer] { log(timer->name()); };
  }

  void log(const std::string& what) { lines.push_back(what + "@" + std::to_string(clock.now())); }
  Lines logged() { return std::exchange(lines, {}); }

  Clock& clock = desk().clock;
  Lines lines;
};

TEST_F(ClockTest, StartsAtZero) {
  EXPECT_EQ(clock.now(), 0);
  EXPECT_TRUE(clock.finish());
  EXPECT_EQ(clock.now(), 0);
}

TEST_F(ClockTest, AnAdvanceOfAnyLengthIsMadeInFull) {
  std::int64_t end = 0;
  for (const std::int64_t step : {0, 1, 99, 100, 101, 1000000}) {
    clock.advance(step);
    end += step;
    EXPECT_EQ(clock.now(), end);
    EXPECT_TRUE(clock.finish());
    EXPECT_EQ(clock.now(), end) << "nothing is owed";
  }
}

TEST_F(ClockTest, EachTimerFiresAtItsDueTimeHoweverFarTheClockMoves) {
  frmAlarm->timA.Interval = 250;
  frmAlarm->timB.Interval = 300;
  clock.advance(1000);
  EXPECT_EQ(logged(), (Lines{"timA@250", "timB@300", "timA@500", "timB@600", "timA@750", "timB@900", "timA@1000"}));
}

TEST_F(ClockTest, NoTimeFiresOnlyWhatIsDueAlready) {
  frmAlarm->timA.Interval = 10;
  clock.advance(0);
  EXPECT_EQ(logged(), Lines{});
  clock.advance(9);
  clock.advance(0);
  EXPECT_EQ(logged(), Lines{});
  clock.advance(1);
  clock.advance(0);
  EXPECT_EQ(logged(), Lines{"timA@10"});
}

TEST_F(ClockTest, TheFirstLookAtARealClockMovesNothing) {
  for (const std::int64_t real : {std::int64_t{0}, std::int64_t{1000000}, std::int64_t{-5}}) {
    Clock fresh;
    fresh.follow(real);
    EXPECT_EQ(fresh.now(), 0) << real;
    fresh.follow(real + 7);
    EXPECT_EQ(fresh.now(), 7) << real;
  }
}

TEST_F(ClockTest, ItFollowsARealClockByAHundredMillisecondsAtMostAndNeverBack) {
  std::int64_t real = 5000;
  clock.follow(real);
  for (const Step& step : kSteps) {
    const std::int64_t before = clock.now();
    real += step.real;
    clock.follow(real);
    EXPECT_EQ(clock.now() - before, step.moved) << step.real;
    // What was left out is not caught up, what went back not waited for.
    clock.follow(real + 3);
    real += 3;
    EXPECT_EQ(clock.now() - before, step.moved + 3) << step.real;
  }
}

TEST_F(ClockTest, ALongSleepFiresNoStorm) {
  frmAlarm->timA.Interval = 20;
  clock.follow(0);
  clock.follow(1000000);
  EXPECT_EQ(logged(), (Lines{"timA@20", "timA@40", "timA@60", "timA@80", "timA@100"}));
  clock.follow(1000019);
  EXPECT_EQ(logged(), Lines{});
  clock.follow(1000020);
  EXPECT_EQ(logged(), Lines{"timA@120"});
}

TEST_F(ClockTest, HoweverTheRealClockIsLookedAtTheSameTimersFireAtTheSameTime) {
  constexpr std::int64_t kEnd = 3000;
  frmAlarm->timA.Interval = 37;
  frmAlarm->timB.Interval = 20;
  clock.advance(kEnd);
  const Lines inOneGo = logged();
  ASSERT_EQ(inOneGo.size(), kEnd / 37u + kEnd / 20u);
  for (unsigned seed = 1; seed <= 20; ++seed) {
    desk().clear();
    for (Timer* timer : {&frmAlarm->timA, &frmAlarm->timB})
      timer->onTimer = [this, timer] { log(timer->name()); };
    frmAlarm->timA.Interval = 37;
    frmAlarm->timB.Interval = 20;
    std::mt19937 draw(seed);
    std::int64_t real = 0;
    for (clock.follow(real); real < kEnd; clock.follow(real))
      real = std::min<std::int64_t>(real + draw() % (Clock::kLongestStep + 1), kEnd);
    EXPECT_EQ(logged(), inOneGo) << seed;
  }
}

TEST_F(ClockTest, BehindAModalWindowThatATimerClosedTheRestIsFollowedLater) {
  frmAlarm->timA.onTimer = [this] {
    log("closes");
    frmAlarm->timA.Enabled = false;
    frmAlarm->hide();
  };
  frmAlarm->timA.Interval = 20;
  frmAlarm->timB.Interval = 30;
  clock.follow(1000);
  platform.onModal = [this](Form&) { clock.follow(1050); };
  frmAlarm->show(ShowMode::Modal);
  EXPECT_EQ(clock.now(), 20);
  EXPECT_EQ(logged(), Lines{"closes@20"}) << "what opened the window goes on before anything else fires";
  clock.follow(1060);
  EXPECT_EQ(clock.now(), 60);
  EXPECT_EQ(logged(), (Lines{"timB@30", "timB@60"}));
}

/// Timers close the inner of two modal windows at 20 and the outer one at 30, while the user waits from 0 to 50.
class NestedModalTest : public ClockTest {
 protected:
  void openBoth() {
    frmAlarm->timA.onTimer = [this] { close(*frmInner); };
    frmAlarm->timB.onTimer = [this] { close(*frmAlarm); };
    frmAlarm->timA.Interval = 20;
    frmAlarm->timB.Interval = 30;
    platform.onModal = [this](Form& form) {
      if (&form == frmInner.form()) {
        wait();
        return;
      }
      frmInner->show(ShowMode::Modal);
      log("inner has gone");
      goOn();
    };
    frmAlarm->show(ShowMode::Modal);
    log("outer has gone");
  }
  void close(Form& form) {
    if (!form.visible()) return;
    log(form.name());
    form.hide();
  }

  std::function<void()> wait = [this] { clock.advance(50); };
  std::function<void()> goOn;
};

TEST_F(NestedModalTest, TimeStandsOnceForEachWindow) {
  goOn = [this] { EXPECT_FALSE(clock.finish()); };
  openBoth();
  EXPECT_EQ(logged(), (Lines{"frmInner@20", "inner has gone@20", "frmAlarm@30", "outer has gone@30"}));
  EXPECT_TRUE(clock.finish());
  EXPECT_EQ(clock.now(), 50);
}

TEST_F(NestedModalTest, WhatARealClockGainsMeanwhileIsOwedToo) {
  clock.follow(0);
  wait = [this] { clock.follow(50); };
  goOn = [this] { clock.follow(57); };
  openBoth();
  EXPECT_EQ(logged(), (Lines{"frmInner@20", "inner has gone@20", "frmAlarm@30", "outer has gone@30"}));
  EXPECT_EQ(clock.untilDue(57), 0);
  clock.follow(57);
  EXPECT_EQ(clock.now(), 57);
}

TEST_F(NestedModalTest, ASecondWakeUpBeforeTheOpenerGoesOnMovesNothing) {
  clock.follow(0);
  wait = [this] {
    clock.follow(50);
    clock.follow(60);
    EXPECT_EQ(clock.now(), 20);
  };
  goOn = [this] { clock.follow(60); };
  openBoth();
  EXPECT_EQ(logged(), (Lines{"frmInner@20", "inner has gone@20", "frmAlarm@30", "outer has gone@30"}));
  clock.follow(60);
  EXPECT_EQ(clock.now(), 60);
}

TEST_F(NestedModalTest, ARealClockPutBackMeanwhileTakesNothingOfWhatIsOwed) {
  clock.follow(0);
  wait = [this] { clock.follow(50); };
  goOn = [this] { clock.follow(45); };
  openBoth();
  clock.follow(45);
  EXPECT_EQ(clock.now(), 50);
}

TEST_F(NestedModalTest, TimeStandsForAWindowThatGoesWithTheLastThatIsOwedToo) {
  clock.follow(0);
  wait = [this] { clock.follow(30); };
  goOn = [this] { clock.follow(42); };
  openBoth();
  EXPECT_EQ(logged(), (Lines{"frmInner@20", "inner has gone@20", "frmAlarm@30", "outer has gone@30"}));
  clock.follow(42);
  EXPECT_EQ(clock.now(), 42);
}

TEST_F(NestedModalTest, AWindowThatGoesWithTheLastThatIsOwedIsTold) {
  wait = [this] { clock.advance(30); };
  goOn = [this] { EXPECT_FALSE(clock.finish()); };
  openBoth();
  EXPECT_EQ(logged(), (Lines{"frmInner@20", "inner has gone@20", "frmAlarm@30", "outer has gone@30"}));
  EXPECT_TRUE(clock.finish());
  EXPECT_EQ(clock.now(), 30);
}

TEST_F(ClockTest, AModalWindowThatGoesAtTheVeryEndLeavesNothing) {
  frmAlarm->timA.onTimer = [] { frmAlarm->hide(); };
  frmAlarm->timA.Interval = 20;
  platform.onModal = [this](Form&) { clock.advance(20); };
  frmAlarm->show(ShowMode::Modal);
  frmAlarm->timA.Enabled = false;
  EXPECT_EQ(clock.now(), 20);
  EXPECT_FALSE(clock.untilDue(0).has_value());
  EXPECT_TRUE(clock.finish());
  EXPECT_EQ(clock.now(), 20);
}

TEST_F(ClockTest, AModalWindowInsideAHandlerMayOutlastTheStepThatFiredIt) {
  frmAlarm->timA.onTimer = [] { frmInner->show(ShowMode::Modal); };
  frmAlarm->timA.Interval = 20;
  platform.onModal = [this](Form& form) {
    clock.advance(500);
    form.hide();
  };
  clock.advance(30);
  EXPECT_EQ(clock.now(), 520);
  EXPECT_TRUE(clock.finish());
  EXPECT_EQ(clock.now(), 520);
}

TEST_F(ClockTest, WithoutATimerNobodyNeedsToWakeIt) {
  EXPECT_EQ(clock.untilDue(0), std::nullopt);
  clock.follow(0);
  EXPECT_EQ(clock.untilDue(1000000), std::nullopt);
}

TEST_F(ClockTest, ItWantsToBeWokenForTheNextTimerByTheRealClock) {
  frmAlarm->timA.Interval = 500;
  EXPECT_EQ(clock.untilDue(12345), 500) << "before it follows any";
  clock.follow(1000);
  const std::pair<std::int64_t, std::int64_t> table[] = {
      {1000, 500}, {1001, 499}, {1099, 401}, {1100, 400}, {1101, 399}, {1499, 1}, {1500, 0}, {1501, 0}, {1001000, 0}};
  for (const auto& [real, until] : table)
    EXPECT_EQ(clock.untilDue(real), until) << real;
  clock.follow(1060);
  EXPECT_EQ(clock.untilDue(1060), 440);
  frmAlarm->timB.Interval = 100;
  EXPECT_EQ(clock.untilDue(1060), 100) << "the earlier one";
}

TEST_F(ClockTest, WhatIsLeftOutOfALongStepIsStillToBeWaitedFor) {
  frmAlarm->timA.Interval = 500;
  clock.follow(0);
  clock.follow(1000000);
  EXPECT_EQ(clock.untilDue(1000000), 400);
}

TEST_F(ClockTest, WhatItOwesIsDueAtOnceEvenWithoutATimer) {
  frmAlarm->timA.onTimer = [] {
    frmAlarm->timA.Enabled = false;
    frmAlarm->hide();
  };
  frmAlarm->timA.Interval = 20;
  platform.onModal = [this](Form&) { clock.advance(50); };
  frmAlarm->show(ShowMode::Modal);
  EXPECT_EQ(clock.untilDue(0), 0);
  EXPECT_TRUE(clock.finish());
  EXPECT_EQ(clock.untilDue(0), std::nullopt);
}

}  // namespace
}  // namespace zelvs
