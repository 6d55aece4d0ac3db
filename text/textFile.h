#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvs {

/// Where a file lies that a text of the same folder names, with either separator between the names of folders.
std::string fileIn(const std::string& folder, std::string_view name);

/// The longest line of a text file, in bytes without its line end.
inline constexpr std::size_t kLongestLine = 65536;

/// The lines of a file in code page 932 as text, without their line ends: CR LF or LF alone, which the last line need
/// not have. Nothing, and why, as readFile() tells it; a line that is too long is refused like a file that is too large
/// and told with its number. The text is whole before anybody looks for a mark in it: the second byte of a character
/// may be the byte of a mark.
std::optional<std::vector<std::string>> readTextFile(const std::string& path, std::string* refusal = nullptr);

/// The pieces of a line between its TABs. The last of at most `most` takes the rest of the line, TABs included.
std::vector<std::string> fieldsOf(const std::string& line, std::size_t most);

}  // namespace zelvs
