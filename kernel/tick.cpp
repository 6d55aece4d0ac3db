#include "kernel/tick.h"

#include "kernel/simulation.h"
#include "kernel/state.h"
#include "kernel/windowRefresh.h"
#include "shell/frmMDI.h"

namespace zelvs {

void moveTickMarker() {
  constexpr double kLastLeft = 144;
  Shape& marker = frmMDI->shpTick;
  marker.Left = marker.Left + marker.Width > kLastLeft ? 0 : marker.Left + marker.Width;
}

void refreshWindows() {
  refreshRegisterWindow();
  refreshMemoryWindows();
}

void timTick_Timer() {
  // A restart has a mode of its own, outside the table: nothing ticks.
  if (runMode < kRun || runMode > kOneTime) return;
  const int steps = kRunModes[static_cast<std::size_t>(runMode)].stepsPerTick;
  for (int step = 0; step < steps; ++step)
    simulationStep();
  if (steps > 0) moveTickMarker();
  refreshWindows();
}

}  // namespace zelvs
