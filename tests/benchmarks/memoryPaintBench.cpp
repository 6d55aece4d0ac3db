// What the monitor windows cost to paint, off-screen.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <filesystem>
#include <fstream>

#include "monitor/mduMemoryWindow.h"
#include "shell/startUp.h"
#include "shell/tick.h"
#include "state/state.h"
#include "ui/qt/desktopScript.h"

namespace zelvs {
namespace {

/// The program with its windows, started once, stopped.
void startOnce() {
  static int argc = 1;
  static char name[] = "bench";
  static char* argv[] = {name, nullptr};
  static const bool started = [] {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static DesktopScript& desktop = *new DesktopScript(argc, argv);
    (void)desktop;
    const auto folder = std::filesystem::temp_directory_path() / "zelvs-memory-paint-bench";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "ZELVS.INI") << "[INIT]\nCABLECONNECTION=1\nMEMORYCLEAR=1\nSA-QVT40-3=2\nSA-QVT50=4\n"
                                           "CASCADE-QVT40-12=1\nCASCADE-QVT40-34=1\nIOS-QVT50=5\nOPENWINDOW1=1\n"
                                           "OPENWINDOW3=1\nOPENWINDOW4=1\nOPENWINDOW5=1\n";
    programFolder = folder.string();
    startUp();
    QApplication::processEvents();
    return true;
  }();
  (void)started;
}

/// The argument is how many bytes change between two paintings.
void paintChanges(benchmark::State& state) {
  startOnce();
  for (auto _ : state) {
    for (int change = 0; change < state.range(0); ++change)
      ++chipMemory[change * (0x580 / static_cast<int>(state.range(0)))];
    refreshMemoryWindows();
    QApplication::processEvents();
  }
}
BENCHMARK(paintChanges)->Arg(1)->Arg(10)->Arg(40)->Arg(60)->Arg(0x580)->Unit(benchmark::kMillisecond);

/// One tick of RUN, painted, with every window open and board 1's DI changing each time.
void tickWithEveryWindowOpen(benchmark::State& state) {
  startOnce();
  for (auto _ : state) {
    boardDi[0] = static_cast<std::uint8_t>(boardDi[0] + 1);
    timTick_Timer();
    QApplication::processEvents();
  }
}
BENCHMARK(tickWithEveryWindowOpen)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zelvs
