#include "state/cellAddress.h"

#include "state/state.h"
#include "text/hexText.h"

namespace zelvs {

int addressOfCell(const std::string& firstRowCaption, int cellIndex) {
  constexpr int kRowLength = 16;
  const int base = static_cast<int>(hexValue(firstRowCaption)) * kRowLength;
  const int column = cellIndex % kRowLength;
  const int offset = bigEndian() ? column : kRowLength - 1 - column;
  return cellIndex / kRowLength * kRowLength + base + offset;
}

}  // namespace zelvs
