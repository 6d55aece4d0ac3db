#include "shell/tick.h"

#include "link/simulation.h"
#include "monitor/windowRefresh.h"
#include "shell/frmMDI.h"
#include "state/state.h"

namespace zelvs {

void moveTickMarker() {
  constexpr double kLastLeft = 144;
  Shape& marker = frmMDI->shpTick;
  marker.Left = marker.Left + marker.Width > kLastLeft ? 0 : marker.Left + marker.Width;
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
