#pragma once

#include <string>

namespace zelvs {

/// The CPU's address of a cell of a memory window. Cells count from 0, sixteen a row, left to right; the caption of the
/// first row begins with the hexadecimal digits of its address without the last one, as "18x" does. On a little-endian
/// CPU addresses rise from right to left.
int addressOfCell(const std::string& firstRowCaption, int cellIndex);

}  // namespace zelvs
