#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zelvs {

/// The text of bytes in code page 932, the one of the Japanese system that lessons and hints are written for: ASCII,
/// half-width katakana, characters of two bytes with both vendors' extensions, and the user-defined ones as private
/// use characters. A byte that begins no character becomes U+FFFD, and reading goes on at the next byte.
std::string utf8FromCodePage932(std::string_view bytes);

/// The bytes of a text, each character with the code that the Japanese system itself chooses where there are several.
/// Nothing when the code page lacks a character or a byte is no UTF-8; its position in the text then stands in
/// lackingAt. A character is never replaced by one that looks like it.
std::optional<std::string> codePage932FromUtf8(std::string_view text, std::size_t& lackingAt);

}  // namespace zelvs
