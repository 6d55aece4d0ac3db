#include "text/shortText.h"

#include "text/utf8.h"

namespace zelvs {

namespace {

/// Where the text stands behind that many characters, counted from a byte on; it has as many.
std::size_t behind(std::string_view text, std::size_t characters, std::size_t at = 0) {
  for (; characters > 0; --characters)
    nextCharacter(text, at);
  return at;
}

std::size_t countOf(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++count)
    nextCharacter(text, at);
  return count;
}

}  // namespace

std::string shortened(std::string_view text, std::size_t most) {
  const std::size_t count = countOf(text);
  if (count <= most) return std::string(text);
  const std::size_t head = most / 2;
  const std::size_t tail = most - head - 1;
  const std::size_t headEnd = behind(text, head);
  const std::size_t tailStart = behind(text, count - head - tail, headEnd);
  return std::string(text.substr(0, headEnd)) + "…" + std::string(text.substr(tailStart));
}

}  // namespace zelvs
