#pragma once

namespace zelvs {

/// Paints the eight registers into frmRegister; nothing when that is not visible. Changed bytes turn red.
void refreshRegisterWindow();
/// Paints what has changed into the three memory windows.
void refreshMemoryWindows();

}  // namespace zelvs
