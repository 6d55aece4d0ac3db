#pragma once

#include <string_view>

#include "monitor/windowRefresh.h"

namespace zelvs {

class FrmDump;

/// All three windows, for resetDumpLayout.
inline constexpr int kAllDumpWindows = -1;

/// Paints the bytes that differ from chipMemoryShown, in red, or all of them while forceMemoryRepaint is set; nothing
/// when the window is not visible. window 0 to 2.
void refreshDumpWindow(int window);
/// Gives window 0 to 2, or all of them (-1, or 0xFFFF as a 16-bit number), the layout and the headings of the CPU
/// type and paints every window anew.
void resetDumpLayout(int window);

/// Headings and wedges for addresses that rise to the right, to the left; then the layout of piMode. Nothing when the
/// window is not visible.
void setHeaderBig(FrmDump& form);
void setHeaderLittle(FrmDump& form);
/// Places the cells one by one, or in pairs that touch.
void layoutBytes(FrmDump& form);
void layoutWords(FrmDump& form);

/// Window 0 to 2, loaded if it was not.
FrmDump& dumpWindow(int window);
/// The cell that shows a byte at an offset (from 0) from its window's base.
int cellOfOffset(int offset);
/// Brings window 0 to 2 up, or gives it the focus, with layout and bytes anew.
void openDumpWindow(int window);
/// Opens the memory windows that the settings name.
void openDumpWindowsOfSettings();

/// Top of the memory editor, in twips on the screen: just below a cell's row.
double memoryEditorTop(const FrmDump& form, int cellIndex);
/// Shows the memory editor for a cell, modally. left is in twips.
void openMemoryEditor(FrmDump& form, std::string_view firstRowCaption, int cellIndex, double left);

}  // namespace zelvs
