// Timers on the virtual clock.

#include <string>
#include <utility>
#include <vector>

#include "support/program.h"

namespace zelvs {
namespace {

using Lines = std::vector<std::string>;
Lines theTimerLog;

class FrmClock final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmClock() : Form("frmClock", kKind, Border::Fixed) {
    for (Timer* timer : {&timA, &timB, &timC}) {
      timer->onTimer = [timer] { theTimerLog.push_back(timer->name() + "@" + std::to_string(desk().clock.now())); };
    }
  }
  Timer timA{this, "timA"};
  Timer timB{this, "timB"};
  Timer timC{this, "timC"};
};
FormRef<FrmClock> frmClock{"frmClock"};

class TimerTest : public ProgramTest {
 protected:
  TimerTest() { theTimerLog.clear(); }

  /// What fires while the clock moves on.
  Lines during(std::int64_t milliseconds) {
    theTimerLog.clear();
    platform.advance(milliseconds);
    return std::exchange(theTimerLog, {});
  }
};

TEST_F(TimerTest, FiresAgainAndAgainAtItsInterval) {
  frmClock->timA.Interval = 20;
  EXPECT_EQ(during(19), Lines{});
  EXPECT_EQ(during(1), Lines{"timA@20"});
  EXPECT_EQ(during(50), (Lines{"timA@40", "timA@60"}));
  EXPECT_EQ(platform.now(), 70);
}

TEST_F(TimerTest, ANewTimerStandsStill) {
  frmClock.load();
  EXPECT_EQ(desk().timers.running(), 0u);
  EXPECT_FALSE(desk().timers.nextDue().has_value());
  EXPECT_EQ(during(10000), Lines{});
}

TEST_F(TimerTest, ATimerThatNobodyListensToHoldsUpNoOther) {
  frmClock->timA.onTimer = nullptr;
  frmClock->timA.Interval = 20;
  frmClock->timB.Interval = 30;
  EXPECT_EQ(during(30), Lines{"timB@30"});
  EXPECT_EQ(desk().timers.nextDue(), 40);
}

TEST_F(TimerTest, SeveralFireInTheOrderOfTheirDueTime) {
  frmClock->timA.Interval = 30;
  frmClock->timB.Interval = 20;
  EXPECT_EQ(desk().timers.nextDue(), 20);
  EXPECT_EQ(during(60), (Lines{"timB@20", "timA@30", "timB@40", "timA@60", "timB@60"}));
}

TEST_F(TimerTest, TiesFireInTheOrderOfEnabling) {
  frmClock->timC.Interval = 10;
  frmClock->timA.Interval = 10;
  frmClock->timB.Interval = 10;
  EXPECT_EQ(during(10), (Lines{"timC@10", "timA@10", "timB@10"}));
  EXPECT_EQ(during(10), (Lines{"timC@20", "timA@20", "timB@20"}));
  frmClock->timC.Enabled = false;
  frmClock->timC.Enabled = true;
  EXPECT_EQ(during(10), (Lines{"timA@30", "timB@30", "timC@30"}));
}

TEST_F(TimerTest, AChangedIntervalCountsFromTheChange) {
  frmClock->timA.Interval = 100;
  EXPECT_EQ(during(90), Lines{});
  frmClock->timA.Interval = 50;
  EXPECT_EQ(during(49), Lines{});
  EXPECT_EQ(during(1), Lines{"timA@140"});
}

TEST_F(TimerTest, TheSameIntervalAgainChangesNothing) {
  frmClock->timA.Interval = 100;
  during(90);
  frmClock->timA.Interval = 100;
  frmClock->timA.Enabled = true;
  EXPECT_EQ(during(10), Lines{"timA@100"});
}

TEST_F(TimerTest, IntervalZeroAndDisablingStop) {
  for (const bool byInterval : {true, false}) {
    frmClock->timA.Interval = 10;
    frmClock->timA.Enabled = true;
    EXPECT_EQ(during(10).size(), 1u);
    if (byInterval) {
      frmClock->timA.Interval = 0;
    } else {
      frmClock->timA.Enabled = false;
    }
    EXPECT_EQ(desk().timers.running(), 0u);
    EXPECT_EQ(during(100), Lines{});
  }
}

TEST_F(TimerTest, AnIntervalSetWhileDisabledStartsWithTheEnabling) {
  frmClock->timA.Enabled = false;
  frmClock->timA.Interval = 10;
  EXPECT_EQ(during(100), Lines{});
  frmClock->timA.Enabled = true;
  EXPECT_EQ(during(10), Lines{"timA@110"});
}

TEST_F(TimerTest, AHandlerThatYieldsIsNotEnteredAgain) {
  int inside = 0;
  int deepest = 0;
  frmClock->timA.onTimer = [&] {
    deepest = std::max(deepest, ++inside);
    platform.advance(25);  // as a modal window inside does
    --inside;
  };
  frmClock->timA.Interval = 10;
  frmClock->timB.Interval = 10;
  EXPECT_EQ(during(10), (Lines{"timB@10", "timB@20", "timB@30"})) << "the others go on meanwhile";
  EXPECT_EQ(deepest, 1);
}

TEST_F(TimerTest, TimeStandsWhenATimerClosesAModalWindowUntilItsOpenerHasGoneOn) {
  frmClock->timA.onTimer = [] { frmClock->hide(); };
  platform.onModal = [this](Form&) { platform.advance(50); };
  frmClock->timA.Interval = 20;
  frmClock->timB.Interval = 30;
  frmClock->show(ShowMode::Modal);
  EXPECT_EQ(platform.now(), 20);
  EXPECT_EQ(theTimerLog, Lines{});
  platform.finishAdvance();
  EXPECT_EQ(platform.now(), 50);
  EXPECT_EQ(theTimerLog, Lines{"timB@30"});
  platform.finishAdvance();
  EXPECT_EQ(platform.now(), 50) << "nothing is left";
}

TEST_F(TimerTest, AYieldFiresWhatIsDueButDoesNotMoveTheClock) {
  frmClock->timA.Interval = 10;
  yieldToEvents();
  EXPECT_EQ(theTimerLog, Lines{});
  frmClock->timB.Interval = 10;
  frmClock->timB.onTimer = [] { theTimerLog.emplace_back("timB"); };
  frmClock->timA.onTimer = [] {
    theTimerLog.emplace_back("timA begins");
    yieldToEvents();
    theTimerLog.emplace_back("timA ends");
  };
  EXPECT_EQ(during(10), (Lines{"timA begins", "timB", "timA ends"}));
}

TEST_F(TimerTest, AHandlerMayStopAnotherTimerThatIsDue) {
  frmClock->timA.Interval = 10;
  frmClock->timB.Interval = 10;
  frmClock->timA.onTimer = [] { frmClock->timB.Enabled = false; };
  EXPECT_EQ(during(100), Lines{});
}

TEST_F(TimerTest, AHandlerMayChangeItsOwnInterval) {
  frmClock->timA.onTimer = [] {
    theTimerLog.push_back("timA@" + std::to_string(desk().clock.now()));
    frmClock->timA.Interval = 100;
  };
  frmClock->timA.Interval = 10;
  EXPECT_EQ(during(220), (Lines{"timA@10", "timA@110", "timA@210"}));
}

TEST_F(TimerTest, UnloadingTheFormStopsItsTimers) {
  frmClock->timA.Interval = 10;
  frmClock->timB.Interval = 10;
  frmClock->unload();
  EXPECT_EQ(desk().timers.running(), 0u);
  EXPECT_EQ(during(100), Lines{});
}

TEST_F(TimerTest, HidingTheFormLeavesItsTimersRunning) {
  frmClock->show();
  frmClock->timA.Interval = 10;
  frmClock->hide();
  EXPECT_EQ(during(10), Lines{"timA@10"});
}

TEST_F(TimerTest, AClockThatRanFarAheadBringsNoStorm) {
  frmClock->timA.Interval = 10;
  int fired = 0;
  while (desk().timers.fireNext(1000) && fired < 1000)
    ++fired;
  EXPECT_EQ(fired, 2) << "once for all that was missed, once for now";
}

}  // namespace
}  // namespace zelvs
