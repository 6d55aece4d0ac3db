#include <gtest/gtest.h>

#include <string>

#include "text/utf16.h"

namespace zelvs {
namespace {

using std::string_literals::operator""s;

TEST(Utf16, TheByteOrderMarkTellsTheOrder) {
  EXPECT_EQ(byteOrderOf("\xFF\xFE"), ByteOrder::LowFirst);
  EXPECT_EQ(byteOrderOf("\xFE\xFF\0a"s), ByteOrder::HighFirst);
  for (const std::string& none : {""s, "\xFF"s, "\xFE"s, "\xEF\xBB\xBF"s, "[INIT]"s})
    EXPECT_FALSE(byteOrderOf(none));
}

TEST(Utf16, BothOrdersAreReadAndWritten) {
  struct Row {
    std::string text;
    std::string lowFirst;
    std::string highFirst;
  };
  const Row table[] = {
      {"", "", ""},
      {"A\r\n", "A\0\r\0\n\0"s, "\0A\0\r\0\n"s},
      {"\uFEFFé", "\xFF\xFE\xE9\0"s, "\xFE\xFF\0\xE9"s},
      {"表\uFFFF", "\x68\x88\xFF\xFF", "\x88\x68\xFF\xFF"},
      {"\U00010000𠮷\U0010FFFF", "\0\xD8\0\xDC\x42\xD8\xB7\xDF\xFF\xDB\xFF\xDF"s,
       "\xD8\0\xDC\0\xD8\x42\xDF\xB7\xDB\xFF\xDF\xFF"s},
  };
  for (const Row& row : table) {
    EXPECT_EQ(utf8FromUtf16(row.lowFirst, ByteOrder::LowFirst), row.text);
    EXPECT_EQ(utf8FromUtf16(row.highFirst, ByteOrder::HighFirst), row.text);
    EXPECT_EQ(utf16FromUtf8(row.text, ByteOrder::LowFirst), row.lowFirst);
    EXPECT_EQ(utf16FromUtf8(row.text, ByteOrder::HighFirst), row.highFirst);
  }
}

TEST(Utf16, WhatIsNotWholeIsRefused) {
  const std::string table[] = {
      "A",        // half a unit
      "\0\xDC"s,  // the second half of a pair alone
      "\0\xD8"s,  // the first one at the end
      "\0\xD8"
      "A\0"s,                // and before another character
      "\0\xD8\0\xD8\0\xDC"s  // and before another first half
  };
  for (const std::string& bytes : table)
    EXPECT_FALSE(utf8FromUtf16(bytes, ByteOrder::LowFirst));
}

}  // namespace
}  // namespace zelvs
