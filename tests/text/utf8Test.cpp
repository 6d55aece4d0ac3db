#include <gtest/gtest.h>

#include <string>

#include "text/utf8.h"

namespace zelvs {
namespace {

using namespace std::string_literals;

TEST(Utf8, WholeCharactersGoThereAndBack) {
  for (const std::u32string& characters :
       {U""s, U"A"s, U"\x7F\x80\x7FF\x800\xFFFF\x10000\x10FFFF"s, U"全2重ｷｬﾝｾﾙ"s, U"\0A"s}) {
    EXPECT_EQ(charactersOf(textOf(characters)), characters);
  }
  EXPECT_EQ(textOf(U"全"), "\xE5\x85\xA8");
  EXPECT_EQ(charactersOf("\xF0\xA0\xAE\x9F"), U"\x20B9F"s);
}

TEST(Utf8, ADamagedByteStandsForItself) {
  struct Row {
    const char* name;
    std::string bytes;
    std::u32string characters;
  };
  const Row table[] = {
      {"a following byte alone", "\x80"s, U"\x80"s},
      {"two of them", "a\xBF\xBF"s, U"a\xBF\xBF"s},
      {"a lead byte at the end", "a\xE5"s, U"a\xE5"s},
      {"two of three bytes at the end", "\xE5\x85"s, U"\xE5\x85"s},
      {"a lead byte before a letter",
       "\xE5"
       "AB"s,
       U"\xE5"
       U"AB"s},
      {"a lead byte before a whole character", "\xE5\xE5\x85\xA8"s, U"\xE5全"s},
      {"three of four bytes, then a letter",
       "\xF0\xA0\xAE"
       "A"s,
       U"\xF0\xA0\xAE"
       U"A"s},
      {"bytes that never occur", "\xFE\xFF\xF8"s, U"\xFE\xFF\xF8"s},
      // A longer form than needed would hide another character, the end of a text among them.
      {"an overlong zero", "\xC0\x80"s, U"\xC0\x80"s},
      {"an overlong slash", "\xE0\x80\xAF"s, U"\xE0\x80\xAF"s},
      {"an overlong letter in four bytes", "\xF0\x80\x81\x81"s, U"\xF0\x80\x81\x81"s},
  };
  for (const Row& row : table) {
    EXPECT_EQ(charactersOf(row.bytes), row.characters) << row.name;
  }
}

TEST(Utf8, EveryByteIsReadOnce) {
  // All pairs of bytes: nothing is skipped and nothing is read twice.
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string text = {static_cast<char>(first), static_cast<char>(second)};
      std::size_t at = 0;
      int count = 0;
      while (at < text.size()) {
        const std::size_t before = at;
        nextCharacter(text, at);
        ASSERT_GT(at, before);
        ++count;
      }
      ASSERT_EQ(at, text.size());
      const bool pair = first >= 0xC2 && first <= 0xDF && second >= 0x80 && second <= 0xBF;
      ASSERT_EQ(count, pair ? 1 : 2) << first << " " << second;
    }
  }
}

}  // namespace
}  // namespace zelvs
