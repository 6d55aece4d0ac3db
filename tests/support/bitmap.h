#pragma once

#include <string>

namespace zelvs {

/// The head of a bitmap of that size, at most 255 a side, which is all that the model reads.
inline std::string bitmapOf(int width, int height) {
  std::string head = "BM" + std::string(24, '\0');
  head[18] = static_cast<char>(width);
  head[22] = static_cast<char>(height);
  return head;
}

}  // namespace zelvs
