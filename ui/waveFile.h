#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zelvs {

/// The largest wave file that is played, in bytes: a minute and a half in the best quality, which a player holds whole.
inline constexpr std::size_t kLargestWaveFile = std::size_t{16} << 20;

/// True for the bytes of a sound that can be played: RIFF WAVE, plain samples of 8, 16, 24 or 32 bits, and all the
/// samples that it says it has, though that may be none. A player would wait in silence for those that lack.
bool isWave(std::string_view bytes);
/// The same of a plain file that is not too large.
bool isWaveFile(const std::string& path);

}  // namespace zelvs
