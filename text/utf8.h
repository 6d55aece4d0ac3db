#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zelvs {

/// The character at a byte position, which moves behind it. A byte that starts no character stands for itself, so
/// that damaged text is shown and never loses a byte.
char32_t nextCharacter(std::string_view text, std::size_t& at);
void appendCharacter(std::string& text, char32_t character);
std::u32string charactersOf(std::string_view text);
std::string textOf(std::u32string_view characters);

}  // namespace zelvs
