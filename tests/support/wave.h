#pragma once

#include <string>
#include <string_view>

namespace zelvs {

/// A wave file without a single sample.
inline std::string silentWave() {
  constexpr std::string_view kBytes(
      "RIFF\x24\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1F\0\0\x40\x1F\0\0\1\0\x08\0data\0\0\0\0", 44);
  return std::string(kBytes);
}

}  // namespace zelvs
