#pragma once

#include "ui/controls.h"

namespace zelvs {

// What lists and tabs have in common, and how their rows stand: all as high as each other, from the list's top on.

/// A list or a strip of tabs, be it empty.
bool holdsRows(const Control& control);
/// Rows of a list or tabs of a strip; 0 for any other control.
int rowCountOf(const Control& control);
/// The selected row or tab, -1 for none.
int selectedRowOf(const Control& control);
/// Selects a row that is there. A list's row that is selected already is clicked all the same; a tab that shows is not.
void pickRow(Control& control, int row);

/// A combo box without a field: its rows lie open for as long as it is visible.
bool isOpenList(const Control* control);
/// Height of a row in twips, whole pixels.
double rowHeightOf(const Control& list);
/// How many whole rows the list shows at once, at least 1.
int visibleRowsOf(const Control& list);

/// Row that a key leads to from row, -1 for none: an arrow, Home, End, Page up or down, or a letter or digit, which
/// goes to the next row that begins with it, round the end. The row itself for every other key.
int rowByKey(const Control& list, int row, int code, char32_t character);

}  // namespace zelvs
