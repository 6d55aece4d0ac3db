#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "tools/littleEndian.h"

namespace zelvs {

/// A bitmap file in pieces.
struct BitmapFile {
  int width = 1;
  int height = 1;
  std::uint32_t bits = 24;
  std::string pixels = {};
  std::string palette = {};
  std::uint32_t packing = 0;
  std::uint32_t head = 40;
  std::string masks = {};  ///< red, green, blue and, where the head has it, opacity: four bytes each

  /// As much of its rows as is filled with words of four bytes.
  std::uint32_t rowBytes() const { return (static_cast<std::uint32_t>(width) * bits + 31) / 32 * 4; }

  std::string bytes() const {
    std::string second = littleEndian(head, 4);
    if (head == 12) {
      second += littleEndian(width, 2) + littleEndian(height, 2) + littleEndian(1, 2) + littleEndian(bits, 2);
    } else {
      second += littleEndian(width, 4) + littleEndian(height, 4) + littleEndian(1, 2) + littleEndian(bits, 2);
      second += littleEndian(packing, 4) + littleEndian(static_cast<std::uint32_t>(pixels.size()), 4);
      second += std::string(16, '\0') + masks;
    }
    second.resize(std::max<std::size_t>(second.size(), head));
    second += palette;
    const auto place = static_cast<std::uint32_t>(14 + second.size());
    return "BM" + littleEndian(place + static_cast<std::uint32_t>(pixels.size()), 4) + littleEndian(0, 4) +
           littleEndian(place, 4) + second + pixels;
  }
};

/// A white bitmap of 24 bits a pixel; its rows begin at the top where the height is negative.
inline std::string bitmapOf(int width, int height) {
  BitmapFile file{width, height};
  file.pixels.assign(file.rowBytes() * static_cast<std::uint32_t>(std::abs(height)), '\xFF');
  return file.bytes();
}

}  // namespace zelvs
