// What the panel costs to paint, off-screen: the whole of it, and one lamp.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QMdiSubWindow>
#include <filesystem>
#include <fstream>

#include "bench/frmHard.h"
#include "link/simulation.h"
#include "shell/startUp.h"
#include "shell/tick.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/qt/canvas.h"
#include "ui/qt/desktopScript.h"

namespace zelvs {
namespace {

std::filesystem::path benchFolder() {
  const auto folder = std::filesystem::temp_directory_path() / "zelvs-panel-bench";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "ZELVS.INI") << "[INIT]\nCABLECONNECTION=1\nMEMORYCLEAR=1\nSA-QVT40-3=2\nSA-QVT50=4\n"
                                         "CASCADE-QVT40-12=1\nCASCADE-QVT40-34=1\nIOS-QVT50=5\n";
  return folder;
}

/// The program with its windows, started once.
Canvas& panelCanvas() {
  static int argc = 1;
  static char name[] = "bench";
  static char* argv[] = {name, nullptr};
  static Canvas* canvas = [] {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static DesktopScript& desktop = *new DesktopScript(argc, argv);
    (void)desktop;
    programFolder = benchFolder().string();
    startUp();
    QApplication::processEvents();
    for (QWidget* widget : QApplication::allWidgets()) {
      auto* found = qobject_cast<Canvas*>(widget);
      if (found != nullptr && found->form() == frmHard.form()) return found;
    }
    return static_cast<Canvas*>(nullptr);
  }();
  return *canvas;
}

void paintWholePanel(benchmark::State& state) {
  Canvas& canvas = panelCanvas();
  QImage image(canvas.size(), QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state)
    canvas.render(&image);
}
BENCHMARK(paintWholePanel)->Unit(benchmark::kMillisecond);

void paintOneLamp(benchmark::State& state) {
  panelCanvas();
  int picture = 1;
  for (auto _ : state) {
    frmHard->picPO(5).Picture = frmHard->ilsLED_G.image(picture);
    picture = 3 - picture;
    QApplication::processEvents();
  }
}
BENCHMARK(paintOneLamp)->Unit(benchmark::kMicrosecond);

/// One tick in which the DO word of every board of the first four changes, painted.
void tickWithEveryDoChanging(benchmark::State& state) {
  panelCanvas();
  std::uint8_t word = 0;
  for (auto _ : state) {
    word = static_cast<std::uint8_t>(~word);
    for (int address = 0x82; address < 0x8C; ++address)
      chipMemory[address] = word;
    timTick_Timer();
    QApplication::processEvents();
  }
}
BENCHMARK(tickWithEveryDoChanging)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zelvs
