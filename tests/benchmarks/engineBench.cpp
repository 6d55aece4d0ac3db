// What a step, a tick and a start cost. Compare within one run: an empty loop stands beside the steps.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include "bench/frmHard.h"
#include "link/simulation.h"
#include "shell/iniFile.h"
#include "shell/restart.h"
#include "shell/startUp.h"
#include "shell/tick.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/headless/scriptedPlatform.h"

namespace zelvs {
namespace {

/// The program with the maker's settings and no window open but the frame and the panel.
class Program {
 public:
  Program() : folder_(std::filesystem::temp_directory_path() / "zelvs-bench") {
    std::filesystem::create_directories(folder_);
    std::ofstream(folder_ / "ZELVS.INI") << "[INIT]\nCABLECONNECTION=1\nMEMORYCLEAR=1\nSA-QVT40-3=2\nSA-QVT50=4\n"
                                            "CASCADE-QVT40-12=1\nCASCADE-QVT40-34=1\nIOS-QVT50=5\n";
    setPlatform(&platform_);
    start();
  }
  ~Program() {
    desk().clear();
    std::filesystem::remove_all(folder_);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  void start() {
    desk().clear();
    clearState();
    programFolder = folder_.string();
    startUp();
  }

 private:
  std::filesystem::path folder_;
  HeadlessPlatform platform_;
};

void emptyLoop(benchmark::State& state) {
  for (auto _ : state)
    benchmark::ClobberMemory();
}
BENCHMARK(emptyLoop);

/// All five boards connected; the argument is the final station. To station 63 most polls are failures.
void step(benchmark::State& state) {
  Program program;
  chipMemory[kScrLow] = static_cast<std::uint8_t>(state.range(0));
  for (int i = 0; i < 1000; ++i)
    simulationStep();
  for (auto _ : state) {
    simulationStep();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(step)->Arg(5)->Arg(63);

void runTick(benchmark::State& state) {
  Program program;
  for (auto _ : state)
    timTick_Timer();
  state.SetItemsProcessed(state.iterations() * kStepsPerTick);
}
BENCHMARK(runTick);

void startToStartupDone(benchmark::State& state) {
  Program program;
  for (auto _ : state) {
    program.start();
    if (startupDone != kTrue) state.SkipWithError("start-up did not finish");
  }
}
BENCHMARK(startToStartupDone)->Unit(benchmark::kMillisecond);

/// With every window of the maker's settings opened anew.
void restart(benchmark::State& state) {
  Program program;
  for (auto _ : state) {
    Mdef_Set();
    restartSimulator();
  }
}
BENCHMARK(restart)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zelvs
