#pragma once

#include <string_view>

namespace zelvs {

/// Brings the whole program up behind the splash. programFolder and the platform must be set before.
void startUp();

/// Loads the windows, behind a progress message each, and opens those that the settings name.
void loadWindows();
/// Puts the monitor windows where they stand after a start or a restart.
void placeWindows();
/// Next of the splash's messages, centred in 33 ideographs, with the bar one eighth further.
void showProcessMessage(std::string_view text);

}  // namespace zelvs
