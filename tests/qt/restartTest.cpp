// The restart with real windows: those of the old life are gone.

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>
#include <memory>

#include "shell/iniFile.h"
#include "shell/restart.h"
#include "support/heap.h"
#include "support/program.h"
#include "ui/qt/desktopScript.h"

namespace zelvs {
namespace {

class DesktopRestartTest : public testing::Test {
 protected:
  DesktopRestartTest() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    desktop_ = std::make_unique<DesktopScript>(argc_, argv_);
    clearState();
    programFolder = folder_.path();
    folder_.write("ZELVS.INI", makerIni());
    startUp();
    settle();
  }
  ~DesktopRestartTest() override { desk().clear(); }

  static void settle() {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (int i = 0; i < 3; ++i)
      QApplication::processEvents();
  }
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

  TemporaryFolder folder_;
  int argc_ = 1;
  char name_[6] = "zelvs";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<DesktopScript> desktop_;
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
