// The restart with real windows: those of the old life are gone.

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

#include "qt/support/desktop.h"
#include "shell/iniFile.h"
#include "shell/restart.h"
#include "support/heap.h"

namespace zelvs {
namespace {

class DesktopRestartTest : public DesktopTest {
 protected:
  DesktopRestartTest() { start(); }

  /// With every window open, so that each is painted before it goes.
  static void restart() {
    Mdef_Set();
    std::fill(openWindow.begin(), openWindow.end(), std::int16_t{1});
    restartSimulator();
    settle();
  }
  /// Children of every object that lives as long as the program: windows, timers, what listens to them.
  static qsizetype objects() {
    qsizetype count = QApplication::allWidgets().size();
    for (const QWidget* widget : QApplication::topLevelWidgets())
      count += widget->findChildren<QObject*>().size();
    return count + qApp->findChildren<QObject*>().size();
  }
};

TEST_F(DesktopRestartTest, AHundredOfThemLeaveNoWindowBehind) {
  for (int i = 0; i < 5; ++i)
    restart();
  const qsizetype before = objects();
  const std::size_t bytes = heapBytes();
  constexpr int kRestarts = 100;
  for (int i = 0; i < kRestarts; ++i)
    restart();
  EXPECT_EQ(objects(), before);
  EXPECT_LT(heapBytes(), bytes + 1024 * kRestarts) << "a window with its cells is a hundred times as much";
}

}  // namespace
}  // namespace zelvs
