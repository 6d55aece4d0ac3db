#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "text/codePage932.h"
#include "text/utf8.h"

namespace zelvs {
namespace {

using namespace std::string_literals;

/// Over a whole mapping: one wrong entry of thousands changes it.
class Checksum {
 public:
  void add(const std::string& bytes) {
    for (const char byte : bytes + "\n")
      value_ = (value_ ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  }
  std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325;
};

/// "?" when there are none.
std::string bytesOf(const std::string& text) {
  std::size_t lackingAt = 0;
  return codePage932FromUtf8(text, lackingAt).value_or("?");
}

TEST(CodePage932, NamedCharactersBothWays) {
  struct Row {
    const char* name;
    std::string bytes;
    std::string text;
  };
  const Row table[] = {
      {"nothing", "", ""},
      {"ASCII", "Aa0~\\&#", "Aa0~\\&#"},
      {"control characters", "\0\t\r\n\x1A\x7F"s, "\0\t\r\n\x1A\x7F"s},
      {"half-width katakana", "\xA1\xC2\xDE\xDF", "｡ﾂﾞﾟ"},
      {"the first and the last of a row", "\x81\x40\x81\xFC", "\u3000◯"},
      {"around the gap in the second bytes", "\x83\x7E\x83\x80", "ミム"},
      {"second bytes that look like a backslash", "\x95\x5C\x83\x5C\x94\x5C\x97\x5C\x8F\x5C\x81\x5C", "表ソ能予十―"},
      {"second bytes that look like letters and brackets", "\x83\x41\x83\x5B\x83\x5D\x83\x7B", "アゼゾボ"},
      {"symbols that other tables map elsewhere", "\x81\x60\x81\x7C\x81\x61\x81\x91\x81\x92\x81\xCA", "～－∥￠￡￢"},
      {"the first vendor's row", "\x87\x40\x87\x8A\x87\x82", "①㈱№"},
      {"the second vendor's rows", "\xFA\x40\xFA\x5C\xFB\xFC\xFC\x4B", "ⅰ纊髙黑"},
      {"user-defined", "\xF0\x40\xF9\xFC", "\uE000\uE757"},
      {"the last of the standard", "\xEA\xA4", "熙"},
  };
  for (const Row& row : table) {
    EXPECT_EQ(bytesOf(row.text), row.bytes) << row.name;
    EXPECT_EQ(utf8FromCodePage932(row.bytes), row.text) << row.name;
  }
}

TEST(CodePage932, OfSeveralCodesTheSystemsOwnIsWritten) {
  struct Row {
    const char* codes[3];
    const char* character;
    const char* written;
  };
  const Row table[] = {
      {{"\x81\xE0", "\x87\x90"}, "≒", "\x81\xE0"},
      {{"\x81\xCA", "\xEE\xF9", "\xFA\x54"}, "￢", "\x81\xCA"},
      {{"\x81\xE6", "\x87\x9A", "\xFA\x5B"}, "∵", "\x81\xE6"},
      {{"\x87\x54", "\xFA\x4A"}, "Ⅰ", "\x87\x54"},
      {{"\x87\x8A", "\xFA\x58"}, "㈱", "\x87\x8A"},
      {{"\xEE\xEF", "\xFA\x40"}, "ⅰ", "\xFA\x40"},
      {{"\xED\x40", "\xFA\x5C"}, "纊", "\xFA\x5C"},
      {{"\xEE\xE0", "\xFB\xFC"}, "髙", "\xFB\xFC"},
  };
  for (const Row& row : table) {
    for (const char* code : row.codes) {
      if (code != nullptr) {
        EXPECT_EQ(utf8FromCodePage932(code), row.character);
      }
    }
    EXPECT_EQ(bytesOf(row.character), row.written) << row.character;
  }
}

TEST(CodePage932, BytesThatBeginNoCharacterAreReplacedOneByOne) {
  struct Row {
    const char* name;
    std::string bytes;
    std::string text;
  };
  const Row table[] = {
      {"bytes that never stand", "a\x80\xA0\xFD\xFE\xFFz", "a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDz"},
      {"a first byte at the end", "a\x95", "a\uFFFD"},
      {"before a line end", "\x95\r\n\x95\nA", "\uFFFD\r\n\uFFFD\nA"},
      {"before a TAB", "\x95\tA", "\uFFFD\tA"},
      {"before a zero", "\x95\0A"s, "\uFFFD\0A"s},
      {"before a byte that is no second one", "\x95\x7F\x95\xFD", "\uFFFD\x7F\uFFFD\uFFFD"},
      {"a place without a character", "\x85\x41\x81\xAD\x95\x5C",
       "\uFFFD"
       "A\uFFFDｭ表"},
      {"a row without characters", "\xEF\xFC\xEB\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
  };
  for (const Row& row : table) {
    EXPECT_EQ(utf8FromCodePage932(row.bytes), row.text) << row.name;
  }
}

TEST(CodePage932, ACharacterThatIsLackingIsPointedAt) {
  struct Row {
    const char* name;
    std::string text;
    std::size_t at;
  };
  const Row table[] = {
      {"a letter with an accent", "caf\u00E9", 3},
      {"behind Japanese text", "表\u0E01", 3},
      {"a no-break space", "a\u00A0b", 1},
      {"a yen sign, which is no backslash here", "\u00A5", 0},
      {"a wave dash, which is no full-width tilde", "1\u301C2", 1},
      {"a minus sign", "\u2212", 0},
      {"a byte order mark", "\uFEFFa", 0},
      {"the replacement character", "ab\uFFFD", 2},
      {"above 16 bits", "𠮷野家", 0},
      {"above 16 bits, its low half a letter", "a\U00010041", 1},
      {"a byte that is no UTF-8", "a\x95\x5C", 1},
      {"half-width katakana of the code page itself", "\xB1", 0},
      {"a section sign of another encoding", "\xA7", 0},
      {"a cut character", "a\xE8\xA1", 1},
      {"a surrogate", "\xED\xA0\x80", 0},
  };
  for (const Row& row : table) {
    std::size_t lackingAt = 99;
    EXPECT_FALSE(codePage932FromUtf8(row.text, lackingAt)) << row.name;
    EXPECT_EQ(lackingAt, row.at) << row.name;
  }
  EXPECT_EQ(bytesOf("\u00A7"), "\x81\x98");
}

// The sums come from converters that share no table with this one, another for each way.
TEST(CodePage932, AllPairsOfBytes) {
  Checksum sum;
  for (int first = 0; first < 0x100; ++first) {
    for (int second = 0; second < 0x100; ++second) {
      sum.add(utf8FromCodePage932(std::string{static_cast<char>(first), static_cast<char>(second)}));
    }
  }
  EXPECT_EQ(sum.value(), 0x3C50CD10B134A07B);
}

TEST(CodePage932, AllCharactersOf16Bits) {
  Checksum sum;
  int count = 0;
  for (char32_t character = 0; character < 0x10000; ++character) {
    std::string text;
    appendCharacter(text, character);
    std::size_t lackingAt = 0;
    const std::optional<std::string> bytes = codePage932FromUtf8(text, lackingAt);
    sum.add(bytes.value_or("?"));
    if (!bytes) continue;
    ++count;
    EXPECT_EQ(utf8FromCodePage932(*bytes), text);
  }
  EXPECT_EQ(sum.value(), 0x82516D40B1EA030B);
  EXPECT_EQ(count, 9397);
}

}  // namespace
}  // namespace zelvs
