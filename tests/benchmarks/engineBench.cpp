// What a step, a tick and a start cost. Compare within one run: an empty loop stands beside the steps, and what a step
// costs on plain integers, without controls. A step shall cost no more than three of those.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "bench/frmHard.h"
#include "link/simulation.h"
#include "shell/iniFile.h"
#include "shell/restart.h"
#include "shell/startUp.h"
#include "shell/tick.h"
#include "state/state.h"
#include "support/plainModel.h"
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

/// All five boards connected and scanned up to a final station, once by the engine and once by the plain link. To
/// station 63 most polls are failures.
class Scan {
 public:
  explicit Scan(std::int64_t finalStation) {
    chipMemory[kScrLow] = static_cast<std::uint8_t>(finalStation);
    std::copy(chipMemory.begin(), chipMemory.end(), plain.memory.begin());
    std::copy(saSetting.begin(), saSetting.end(), plain.sa.begin());
    for (int i = 0; i < 1000; ++i) {
      simulationStep();
      plain.step();
    }
  }

  /// True while both have done the same.
  bool agree() const { return std::equal(plain.memory.begin(), plain.memory.end(), chipMemory.begin()); }

 private:
  Program program_;

 public:
  PlainModel plain;
};

void step(benchmark::State& state) {
  Scan scan(state.range(0));
  for (auto _ : state) {
    simulationStep();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(step)->Arg(5)->Arg(63);

void stepFloor(benchmark::State& state) {
  Scan scan(state.range(0));
  for (auto _ : state) {
    scan.plain.step();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(stepFloor)->Arg(5)->Arg(63);

/// Processor time, which no other program's share of the machine gets into.
template <class Step>
double clocksOf(int steps, Step oneStep) {
  const std::clock_t begin = std::clock();
  for (int i = 0; i < steps; ++i) {
    oneStep();
    benchmark::ClobberMemory();
  }
  return static_cast<double>(std::clock() - begin);
}

/// Both in turn, so that they meet the same machine. The counter "floors" is what a step costs in steps of the floor.
void stepInFloors(benchmark::State& state) {
  constexpr int kSteps = 100000;
  Scan scan(state.range(0));
  double own = 0;
  double floor = 0;
  for (auto _ : state) {
    own += clocksOf(kSteps, simulationStep);
    floor += clocksOf(kSteps, [&] { scan.plain.step(); });
  }
  state.counters["floors"] = own / floor;
  if (!scan.agree()) state.SkipWithError("the floor has not done what the engine has");
}
BENCHMARK(stepInFloors)->Arg(5)->Arg(63)->Unit(benchmark::kMillisecond);

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
