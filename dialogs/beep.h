#pragma once

namespace zelvs {

/// Opens BEEP.WAV of the program folder. beepDeviceOpen tells whether it could; nothing is said when it could not.
void openBeepDevice();
/// The program's one sound, or the system beep in its place.
void playBeep();

}  // namespace zelvs
