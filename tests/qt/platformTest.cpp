// Real time before a person: the model's clock goes on by itself.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QThread>

#include "qt/support/desktop.h"
#include "shell/frmMDI.h"
#include "state/state.h"

namespace zelvs {
namespace {

class PlatformTest : public DesktopTest {
 protected:
  PlatformTest() {
    takePersonsPlatform();
    start();
  }

  /// Whether the clock moves within some seconds in which the user does nothing.
  static bool goesOn() {
    constexpr int kPatience = 5000;
    const std::int64_t before = desk().clock.now();
    QElapsedTimer time;
    time.start();
    while (desk().clock.now() == before && time.elapsed() < kPatience)
      QApplication::processEvents(QEventLoop::AllEvents, 10);
    return desk().clock.now() != before;
  }
  /// Longer than the ticks of RUN are apart, without listening to any of them.
  static void passOverATick() { QThread::msleep(60); }
};

TEST_F(PlatformTest, TheClockGoesOnByItself) {
  ASSERT_EQ(runMode, kRun);
  EXPECT_TRUE(goesOn());
}

TEST_F(PlatformTest, AWakeUpThatFallsIntoAYieldIsNotLost) {
  ASSERT_TRUE(goesOn());
  passOverATick();
  yieldToEvents();
  EXPECT_TRUE(goesOn());
  passOverATick();
  yieldToEvents();
  yieldToEvents();
  EXPECT_TRUE(goesOn());
}

TEST_F(PlatformTest, TimeStandsInAYield) {
  ASSERT_TRUE(goesOn());
  const std::int64_t before = desk().clock.now();
  passOverATick();
  yieldToEvents();
  EXPECT_EQ(desk().clock.now(), before);
}

}  // namespace
}  // namespace zelvs
