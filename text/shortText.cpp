#include "text/shortText.h"

#include "text/utf8.h"

namespace zelvs {

std::string shortened(std::string_view text, std::size_t most) {
  const std::u32string characters = charactersOf(text);
  if (characters.size() <= most) return std::string(text);
  const std::size_t head = (most - 1) / 3;
  const std::size_t tail = most - 1 - head;
  return textOf(characters.substr(0, head) + U'…' + characters.substr(characters.size() - tail));
}

}  // namespace zelvs
