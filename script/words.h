#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvs {

/// The words of a line; the first is the command's name.
using Words = std::vector<std::string>;

/// Splits a line: blanks part words, double quotes hold a word together and take their escapes out of it, and "#" where
/// a word would begin ends the line. Nothing when a quotation is left open.
std::optional<Words> wordsOf(std::string_view line);

/// Decimal, or hexadecimal behind 0x; a "-" may stand before both. Nothing when text is anything else or does not fit.
std::optional<std::int64_t> wholeNumber(std::string_view text);
/// A whole number that fits an int: one that does not must not come out as another.
std::optional<int> smallNumber(std::string_view text);
/// A whole number, or a finite decimal one with point and exponent ("-1.5e-3", ".5"). Nothing for anything else.
std::optional<double> anyNumber(std::string_view text);

/// What a command answers to a word that should have been a number.
std::string noNumber(const std::string& text);

}  // namespace zelvs
