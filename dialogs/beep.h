#pragma once

#include <string>

namespace zelvs {

/// Where BEEP.WAV of the program folder lies.
std::string beepPath();

/// Opens BEEP.WAV of the program folder. beepDeviceOpen tells whether it could; nothing is said when it could not.
void openBeepDevice();
/// The program's one sound, or the system beep in its place.
void playBeep();

}  // namespace zelvs
