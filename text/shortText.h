#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zelvs {

/// The text, or its head and its tail with "…" between so that it has at most `most` characters, 3 or more. Of a path
/// the tail, which tells files apart, is the longer one.
std::string shortened(std::string_view text, std::size_t most);

/// A path as it is told in a message, so that it leaves room for what is wrong.
inline std::string shortPath(std::string_view path) {
  constexpr std::size_t kMost = 90;
  return shortened(path, kMost);
}

}  // namespace zelvs
