#pragma once

#include <cstdint>
#include <string>

namespace zelvs {

/// A number of the given width in bytes, low byte first, as wave files and bitmaps hold it.
inline std::string littleEndian(std::uint32_t value, int width) {
  std::string bytes;
  for (int byte = 0; byte < width; ++byte)
    bytes += static_cast<char>(value >> 8 * byte & 0xFF);
  return bytes;
}

}  // namespace zelvs
