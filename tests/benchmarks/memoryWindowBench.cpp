// What the refresh of the memory windows costs: each tick pays it, changed bytes or not.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include "monitor/frmDumpC17.h"
#include "monitor/mduMemoryWindow.h"
#include "shell/startUp.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/headless/scriptedPlatform.h"

namespace zelvs {
namespace {

/// The program with its three memory windows open.
class Program {
 public:
  Program() : folder_(std::filesystem::temp_directory_path() / "zelvs-memory-bench") {
    std::filesystem::create_directories(folder_);
    std::ofstream(folder_ / "ZELVS.INI") << "[INIT]\nMEMORYCLEAR=1\nSA-QVT40-3=2\nSA-QVT50=4\nOPENWINDOW3=1\n"
                                            "OPENWINDOW4=1\nOPENWINDOW5=1\n";
    setPlatform(&platform_);
    desk().clear();
    clearState();
    programFolder = folder_.string();
    startUp();
  }
  ~Program() {
    desk().clear();
    std::filesystem::remove_all(folder_);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

 private:
  std::filesystem::path folder_;
  HeadlessPlatform platform_;
};

/// The argument is how many bytes of the data area change between two refreshes.
void refresh(benchmark::State& state) {
  Program program;
  for (auto _ : state) {
    for (int change = 0; change < state.range(0); ++change)
      ++chipMemory[change * (0x580 / static_cast<int>(state.range(0)))];
    refreshMemoryWindows();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(refresh)->Arg(0)->Arg(60)->Arg(0x580);

void changeOfCpuType(benchmark::State& state) {
  Program program;
  for (auto _ : state) {
    cpuType = static_cast<std::int16_t>((cpuType + 1) & 3);
    resetDumpLayout(kAllDumpWindows);
  }
}
BENCHMARK(changeOfCpuType)->Unit(benchmark::kMicrosecond);

/// One move of the mouse over the last cell, behind all others in the search.
void findTheCellUnderTheMouse(benchmark::State& state) {
  Program program;
  const Area area = frmDumpC17->lblData(0).area();
  for (auto _ : state)
    benchmark::DoNotOptimize(frmDumpC17->controlAt(area.left + 1, area.top + 1));
}
BENCHMARK(findTheCellUnderTheMouse);

}  // namespace
}  // namespace zelvs
