#pragma once

#include <array>
#include <string_view>

namespace zelvs {

/// What a run mode that the user can select does.
struct RunModeRow {
  std::string_view caption;
  int interval;  ///< of timTick, milliseconds; 0: off
  int stepsPerTick;
  int markerWidth;  ///< of shpTick, pixels
};

inline constexpr int kStepsPerTick = 67;

/// Index: run mode 0 to 3.
inline constexpr std::array<RunModeRow, 4> kRunModes = {{
    {" RUN ", 20, kStepsPerTick, 51},
    {"STOP", 0, 0, 9},
    {"SLOW", 300, 1, 9},
    {"1-Time", 0, 0, 9},
}};

/// The handler of timTick: the run mode's steps, then the refresh. Nothing during a restart.
void timTick_Timer();
/// Moves shpTick on by its width, and back to the left when it has passed 144 pixels.
void moveTickMarker();

}  // namespace zelvs
