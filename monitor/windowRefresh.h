#pragma once

namespace zelvs {

/// Paints the eight registers into frmRegister; nothing when that is not visible. Changed bytes turn red.
void refreshRegisterWindow();
/// Paints what has changed into the three memory windows.
void refreshMemoryWindows();
/// Paints every cell of the three memory windows.
void repaintMemoryWindows();
/// frmRegister, then the memory windows.
void refreshWindows();

}  // namespace zelvs
