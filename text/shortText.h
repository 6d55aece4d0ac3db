#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zelvs {

/// Characters of a file's name, or of a line of it, that words for a user hold.
inline constexpr std::size_t kLongestTold = 200;

/// The text with at most `most` characters, from 1: of a longer one the head and the tail, with "…" between them that
/// counts as one. What ends such a text, a file's name above all, says as much as what begins it. No character is cut.
std::string shortened(std::string_view text, std::size_t most);

/// A path as it is told in a message of at most kLongestTold characters: it leaves room for what is wrong.
inline std::string shortPath(std::string_view path) {
  constexpr std::size_t kMost = 90;
  return shortened(path, kMost);
}

}  // namespace zelvs
