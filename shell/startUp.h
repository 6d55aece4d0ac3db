#pragma once

#include <string_view>

namespace zelvs {

class Form;

/// Brings the whole program up behind the splash. programFolder and the platform must be set before.
void startUp();

/// Loads the windows, as far as the user does not end the program meanwhile, behind a progress message each, and opens
/// those that the settings name.
void loadWindows();
/// Shows a form without waiting for the return to the event loop, and lets pending events run. False when the user has
/// ended the program in one of them.
bool showAtOnce(Form& form, Form* owner = nullptr);
/// Starts the continuous scan of a fresh bench: five stations, whatever the boards are set to.
void startFirstScan();
/// Puts the monitor windows and the hints where they stand after a start or a restart.
void placeWindows();
/// Next of the splash's messages, centred in 33 ideographs, with the bar one eighth further.
void showProcessMessage(std::string_view text);

}  // namespace zelvs
