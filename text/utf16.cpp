#include "text/utf16.h"

#include "text/utf8.h"

namespace zelvs {

namespace {

constexpr char32_t kPlane = 0x10000;  // characters below it are one unit, the others two
constexpr char32_t kHighHalf = 0xD800;
constexpr char32_t kLowHalf = 0xDC00;
constexpr char32_t kHalves = 0x400;  // of either kind

bool isHalf(char32_t unit, char32_t first) {
  return unit >= first && unit < first + kHalves;
}

char32_t unitAt(std::string_view bytes, std::size_t at, ByteOrder order) {
  const auto first = static_cast<unsigned char>(bytes[at]);
  const auto second = static_cast<unsigned char>(bytes[at + 1]);
  return order == ByteOrder::LowFirst ? first | second << 8 : first << 8 | second;
}

void appendUnit(std::string& bytes, char32_t unit, ByteOrder order) {
  const auto low = static_cast<char>(unit);
  const auto high = static_cast<char>(unit >> 8);
  bytes += order == ByteOrder::LowFirst ? low : high;
  bytes += order == ByteOrder::LowFirst ? high : low;
}

}  // namespace

std::optional<ByteOrder> byteOrderOf(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE")) return ByteOrder::LowFirst;
  if (bytes.starts_with("\xFE\xFF")) return ByteOrder::HighFirst;
  return std::nullopt;
}

std::optional<std::string> utf8FromUtf16(std::string_view bytes, ByteOrder order) {
  if (bytes.size() % 2 != 0) return std::nullopt;
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    char32_t character = unitAt(bytes, at, order);
    if (isHalf(character, kLowHalf)) return std::nullopt;
    if (isHalf(character, kHighHalf)) {
      at += 2;
      const char32_t low = at < bytes.size() ? unitAt(bytes, at, order) : 0;
      if (!isHalf(low, kLowHalf)) return std::nullopt;
      character = kPlane + (character - kHighHalf) * kHalves + (low - kLowHalf);
    }
    appendCharacter(text, character);
  }
  return text;
}

std::string utf16FromUtf8(std::string_view text, ByteOrder order) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = nextCharacter(text, at);
    if (character < kPlane) {
      appendUnit(bytes, character, order);
    } else {
      appendUnit(bytes, kHighHalf + (character - kPlane) / kHalves, order);
      appendUnit(bytes, kLowHalf + (character - kPlane) % kHalves, order);
    }
  }
  return bytes;
}

}  // namespace zelvs
