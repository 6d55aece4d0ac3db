// A line's words, and the numbers that they spell.

#include <gtest/gtest.h>

#include <limits>
#include <locale>

#include "script/words.h"

namespace zelvs {
namespace {

TEST(WordsTest, ALineIsSplitAtItsBlanks) {
  const std::pair<std::string_view, Words> table[] = {
      {"", {}},
      {" \t\r", {}},
      {"# a comment", {}},
      {"a", {"a"}},
      {"  a\tb  c\r", {"a", "b", "c"}},
      {"a #b", {"a"}},
      {"a#b", {"a#b"}},
      {"\"a b\"", {"a b"}},
      {"\"\" a", {"", "a"}},
      {"\"a\"b", {"a", "b"}},
      {"\"a\"#b", {"a"}},
      {"a\"b c\"", {"a\"b", "c\""}},
      {R"("\"\\\n\r\t\x")", {"\"\\\n\r\tx"}},
      {"全2重 \"全 2\"", {"全2重", "全 2"}},
  };
  for (const auto& [line, words] : table)
    EXPECT_EQ(wordsOf(line), words) << line;
}

TEST(WordsTest, AQuotationThatIsLeftOpenGivesNothing) {
  for (const char* line : {"\"", "a \"b", R"("a\")", R"("a\)", "a \"b\" \"c"})
    EXPECT_EQ(wordsOf(line), std::nullopt) << line;
}

TEST(WordsTest, WholeNumbers) {
  const std::pair<const char*, std::int64_t> table[] = {
      {"0", 0},      {"-0", 0},      {"007", 7},
      {"12", 12},    {"-12", -12},   {"0x1F", 31},
      {"0Xff", 255}, {"-0x10", -16}, {"9223372036854775807", std::numeric_limits<std::int64_t>::max()},
  };
  for (const auto& [text, number] : table)
    EXPECT_EQ(wholeNumber(text), number) << text;
  for (const char* text :
       {"", "-", "--1", "+1", " 1", "1 ", "1.0", "0x", "0x-1", "-0x-1", "0xG", "x", "1_0", "9223372036854775808"})
    EXPECT_EQ(wholeNumber(text), std::nullopt) << text;
}

TEST(WordsTest, ASmallNumberFitsAnInt) {
  EXPECT_EQ(smallNumber("2147483647"), 2147483647);
  EXPECT_EQ(smallNumber("-2147483648"), std::numeric_limits<int>::min());
  EXPECT_EQ(smallNumber("2147483648"), std::nullopt);
  EXPECT_EQ(smallNumber("-2147483649"), std::nullopt);
  EXPECT_EQ(smallNumber("1.5"), std::nullopt);
}

TEST(WordsTest, DecimalNumbersAreReadToTheLastBit) {
  const std::pair<const char*, double> table[] = {
      {"0", 0},      {"0x10", 16},       {"-3", -3},
      {".5", .5},    {"5.", 5},          {"-1.25", -1.25},
      {"1e3", 1000}, {"1E-3", 1e-3},     {"1e+2", 100},
      {"0.1", 0.1},  {"2.5e-1", 0.25},   {"0.30000000000000004", 0.1 + 0.2},
      {"0e-999", 0}, {"0.0027", 0.0027}, {"1.7976931348623157e308", std::numeric_limits<double>::max()},
  };
  for (const auto& [text, number] : table)
    EXPECT_EQ(anyNumber(text), number) << text;
}

TEST(WordsTest, TheLanguagesPointIsAPointEverywhere) {
  struct CommaForAPoint : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaForAPoint));
  EXPECT_EQ(anyNumber("1.5"), 1.5);
  EXPECT_EQ(anyNumber("1,5"), std::nullopt);
  std::locale::global(before);
}

TEST(WordsTest, WhatIsNoDecimalNumber) {
  for (const char* text : {"",    "-",  ".",   "-.",    "+1.5",  " 1.5",  "1.5 ", "1.2.3",     "1,5", "1e",
                           "1e-", "e3", ".e3", "1e1.5", "0x1.8", "0x1p3", "inf",  "-infinity", "nan", "1.5f"})
    EXPECT_EQ(anyNumber(text), std::nullopt) << text;
  for (const char* text : {"1e999", "-1e999", "1e-999"})
    EXPECT_EQ(anyNumber(text), std::nullopt) << text << " is out of range";
}

}  // namespace
}  // namespace zelvs
