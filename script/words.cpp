#include "script/words.h"

#include <algorithm>
#include <charconv>
#include <climits>

#include "text/number.h"

namespace zelvs {

namespace {

/// A carriage return is one of them: a script may come from anywhere.
constexpr std::string_view kBlanks = " \t\r";

/// What stands for the character behind a backslash.
char unescaped(char c) {
  switch (c) {
    case 'r':
      return '\r';
    case 'n':
      return '\n';
    case 't':
      return '\t';
    default:
      return c;
  }
}

/// Takes a word without quotes off the front of line.
std::string takePlain(std::string_view& line) {
  const std::size_t end = std::min(line.find_first_of(kBlanks), line.size());
  std::string word(line.substr(0, end));
  line.remove_prefix(end);
  return word;
}

/// Takes a word in quotes off the front of line. Nothing when they are left open.
std::optional<std::string> takeQuoted(std::string_view& line) {
  std::string word;
  for (std::size_t at = 1; at < line.size(); ++at) {
    if (line[at] == '"') {
      line.remove_prefix(at + 1);
      return word;
    }
    const bool escape = line[at] == '\\' && at + 1 < line.size();
    word += escape ? unescaped(line[++at]) : line[at];
  }
  return std::nullopt;
}

}  // namespace

std::optional<Words> wordsOf(std::string_view line) {
  Words words;
  while (true) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.empty() || line.front() == '#') return words;
    std::optional<std::string> word = line.front() == '"' ? takeQuoted(line) : takePlain(line);
    if (!word) return std::nullopt;
    words.push_back(std::move(*word));
  }
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  if (text.starts_with('-')) return std::nullopt;  // a second sign
  std::int64_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
  if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size()) return std::nullopt;
  return negative ? -number : number;
}

std::optional<int> smallNumber(std::string_view text) {
  const auto number = wholeNumber(text);
  if (!number || *number < INT_MIN || *number > INT_MAX) return std::nullopt;
  return static_cast<int>(*number);
}

std::optional<double> anyNumber(std::string_view text) {
  if (const auto whole = wholeNumber(text)) return static_cast<double>(*whole);
  return readNumber(text);
}

std::string noNumber(const std::string& text) {
  return "not a number: " + text;
}

}  // namespace zelvs
