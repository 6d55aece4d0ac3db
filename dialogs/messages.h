#pragma once

#include <string_view>

#include "ui/form.h"

namespace zelvs {

/// Shows the yellow pop-up under the pointer with a beep, for two seconds or until it is clicked.
void showMessage(std::string_view text);
/// The same at a window's place, for a dialog that has just hidden itself.
void showMessageBeside(Form& window, std::string_view text);

enum class DialogMode { OneButton, TwoButtons };

/// Shows the modal box with a beep. 1: OK, 2: cancel.
int askDialog(std::string_view message, DialogMode mode, std::string_view title);

inline constexpr std::string_view kWarningTitle = "   警 告";

}  // namespace zelvs
