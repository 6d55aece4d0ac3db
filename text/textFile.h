#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvs {

/// Where a file lies that a text of the same folder names, with either separator between the names of folders.
std::string fileIn(const std::string& folder, std::string_view name);

/// The bytes of a plain file; nothing when there is none or it cannot be opened. Anything else that bears the name (a
/// folder, a pipe that nobody writes to) counts as none.
std::optional<std::string> readFile(const std::string& path);

/// The lines of a file in code page 932 as text, without their line ends: CR LF or LF alone, which the last line need
/// not have. Nothing as above. The text is whole before anybody looks for a mark in it: the second byte of a character
/// may be the byte of a mark.
std::optional<std::vector<std::string>> readTextFile(const std::string& path);

/// The pieces of a line between its TABs. The last of at most `most` takes the rest of the line, TABs included.
std::vector<std::string> fieldsOf(const std::string& line, std::size_t most);

}  // namespace zelvs
