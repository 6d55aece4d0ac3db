#include "text/utf8.h"

namespace zelvs {

char32_t nextCharacter(std::string_view text, std::size_t& at) {
  const auto byteAt = [&](std::size_t position) { return static_cast<unsigned char>(text[position]); };
  const unsigned char lead = byteAt(at);
  const int following = lead >= 0xF0 && lead < 0xF8 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  if (lead < 0xC0 || lead >= 0xF8 || at + static_cast<std::size_t>(following) >= text.size()) {
    ++at;
    return lead;
  }
  char32_t character = lead & (0x3F >> following);
  for (int i = 1; i <= following; ++i) {
    const unsigned char next = byteAt(at + static_cast<std::size_t>(i));
    if ((next & 0xC0) != 0x80) {
      ++at;
      return lead;
    }
    character = character << 6 | (next & 0x3F);
  }
  // A longer form than the character needs is damage too: read as the short one, bytes would be lost.
  constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
  if (character < kSmallest[following]) {
    ++at;
    return lead;
  }
  at += static_cast<std::size_t>(following) + 1;
  return character;
}

void appendCharacter(std::string& text, char32_t character) {
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
    tail(0);
  } else if (character < 0x10000) {
    text += static_cast<char>(0xE0 | character >> 12);
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | character >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

std::u32string charactersOf(std::string_view text) {
  std::u32string characters;
  for (std::size_t at = 0; at < text.size();)
    characters += nextCharacter(text, at);
  return characters;
}

std::string textOf(std::u32string_view characters) {
  std::string text;
  for (const char32_t character : characters)
    appendCharacter(text, character);
  return text;
}

}  // namespace zelvs
