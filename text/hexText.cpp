#include "text/hexText.h"

#include <charconv>

namespace zelvs {

std::string hexText(unsigned value, int digits) {
  std::string text(static_cast<std::size_t>(digits), '0');
  for (auto at = text.rbegin(); at != text.rend(); ++at) {
    *at = "0123456789ABCDEF"[value & 0xF];
    value >>= 4;
  }
  return text;
}

unsigned hexValue(const std::string& text) {
  unsigned value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value, 16);
  return value;
}

std::string binaryText(unsigned value) {
  std::string text;
  for (int bit = 7; bit >= 0; --bit) {
    text += (value >> bit & 1) != 0 ? '1' : '0';
    if (bit == 4) text += '_';
  }
  return text;
}

}  // namespace zelvs
