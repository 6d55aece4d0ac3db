#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zelvs {

/// The number in that many bytes, at most four, low byte first, as bitmaps and wave files hold it. They must be there.
inline std::uint32_t numberAt(std::string_view bytes, std::size_t at, std::size_t width) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < width; ++i)
    number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << 8 * i;
  return number;
}

}  // namespace zelvs
