// Numbers as text, held against the standard library's own, which this compiler has.

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <random>
#include <sstream>

#include "text/number.h"

namespace zelvs {
namespace {

using Limits = std::numeric_limits<double>;

template <class Number, class... Form>
std::string standardText(Number number, Form... form) {
  std::array<char, 2048> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), number, form...);
  EXPECT_EQ(result.ec, std::errc());
  return {text.data(), result.ptr};
}

std::optional<double> standardNumber(std::string_view text) {
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size() || !std::isfinite(number)) return {};
  return number;
}

/// By their bits, so that 0 is not -0.
testing::AssertionResult same(std::optional<double> a, std::optional<double> b) {
  const bool equal =
      a.has_value() == b.has_value() && (!a || std::bit_cast<std::uint64_t>(*a) == std::bit_cast<std::uint64_t>(*b));
  if (equal) return testing::AssertionSuccess();
  const auto text = [](std::optional<double> number) { return number ? standardText(*number) : "nothing"; };
  return testing::AssertionFailure() << text(a) << " is not " << text(b);
}

void expectWrittenAsTheStandardDoes(double number) {
  const std::string shortest = standardText(number);
  const std::string plain = standardText(number, std::chars_format::fixed);
  ASSERT_EQ(shortestNumber(number), shortest);
  ASSERT_EQ(plainNumber(number), plain);
  if (!std::isfinite(number)) return;
  ASSERT_TRUE(same(readNumber(shortest), number)) << shortest;
  ASSERT_TRUE(same(readNumber(plain), number)) << plain;
}

void expectWithNeighbours(double number) {
  for (const double sign : {1.0, -1.0}) {
    expectWrittenAsTheStandardDoes(sign * number);
    expectWrittenAsTheStandardDoes(sign * std::nextafter(number, 0));
    expectWrittenAsTheStandardDoes(sign * std::nextafter(number, Limits::infinity()));
  }
}

TEST(NumberTest, LooksAsTold) {
  const struct {
    double number;
    const char* shortest;
    const char* plain;
  } table[] = {
      {0.1, "0.1", "0.1"},
      {-2.5, "-2.5", "-2.5"},
      {100000, "1e+05", "100000"},
      {123456, "123456", "123456"},
      {0.00000015, "1.5e-07", "0.00000015"},
      {0.001, "0.001", "0.001"},
      {0.0001, "1e-04", "0.0001"},
      {0.00012, "0.00012", "0.00012"},
      {1e16, "1e+16", "10000000000000000"},
      {0.1 + 0.2, "0.30000000000000004", "0.30000000000000004"},
      {123456789012345680000.0, "123456789012345683968", "123456789012345683968"},
      {1e23, "1e+23", "99999999999999991611392"},
      {0.0, "0", "0"},
      {-0.0, "-0", "-0"},
      // The nearest text of sixteen digits ends in 2 and is another number; in 3 it is the same.
      {0x1p-24, "5.960464477539063e-08", "0.00000005960464477539063"},
      {Limits::infinity(), "inf", "inf"},
      {-Limits::infinity(), "-inf", "-inf"},
      {Limits::quiet_NaN(), "nan", "nan"},
  };
  for (const auto& row : table) {
    EXPECT_EQ(shortestNumber(row.number), row.shortest);
    EXPECT_EQ(plainNumber(row.number), row.plain);
    EXPECT_NO_FATAL_FAILURE(expectWrittenAsTheStandardDoes(row.number));
  }
}

TEST(NumberTest, PowersAndTheirNeighboursAreWrittenAsTheStandardDoes) {
  for (int exponent = -1074; exponent < 1024; ++exponent)
    ASSERT_NO_FATAL_FAILURE(expectWithNeighbours(std::ldexp(1.0, exponent)));
  for (int exponent = -323; exponent <= 308; ++exponent) {
    const double power = standardNumber("1e" + std::to_string(exponent)).value();
    ASSERT_NO_FATAL_FAILURE(expectWithNeighbours(power));
  }
  expectWithNeighbours(Limits::min());
  expectWrittenAsTheStandardDoes(Limits::max());
  expectWrittenAsTheStandardDoes(Limits::lowest());
}

TEST(NumberTest, RandomNumbersAreWrittenAsTheStandardDoes) {
  constexpr int kNumbers = 4000;
  constexpr double kPowersOfTen[] = {1, 10, 100, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
  std::mt19937_64 draw(1);
  for (int i = 0; i < kNumbers; ++i) {
    ASSERT_NO_FATAL_FAILURE(expectWrittenAsTheStandardDoes(std::bit_cast<double>(draw())));
    const double whole = static_cast<double>(draw() >> (draw() % 64));
    ASSERT_NO_FATAL_FAILURE(expectWrittenAsTheStandardDoes(whole));
    const double fewDecimals = static_cast<double>(draw() % 100000000) / kPowersOfTen[draw() % 9];
    ASSERT_NO_FATAL_FAILURE(expectWrittenAsTheStandardDoes(fewDecimals));
  }
}

TEST(NumberTest, WhatIsNoNumberIsNotRead) {
  const char* const table[] = {"",     " ",    "+1",   "--1", "-",   ".",    "-.",   "e5",    "1e",
                               "1e+",  "1e5x", " 1",   "1 ",  "1,5", "1.5.", "0x10", "0x1p3", "inf",
                               "-inf", "nan",  "1e5.", "1d5", "1f",  "１",   "1e 5", "1'000"};
  for (const char* text : table) {
    EXPECT_FALSE(readNumber(text).has_value()) << text;
  }
  EXPECT_FALSE(readNumber(std::string_view("1\0", 2)).has_value());
}

TEST(NumberTest, ANumberThatCannotBeHeldIsNotRead) {
  // Half of the smallest number goes down to 0, and so is too small; anything more goes up.
  const char* const table[] = {"1e400",
                               "-1e400",
                               "1.7976931348623159e308",
                               "1e99999999999999999999",
                               "1e-400",
                               "2.4703282292062327e-324",
                               "-0.1e-99999999999999999999"};
  for (const char* text : table) {
    EXPECT_FALSE(readNumber(text).has_value()) << text;
    EXPECT_FALSE(standardNumber(text).has_value()) << text;
  }
  const std::pair<const char*, double> held[] = {
      {"1.7976931348623158e308", Limits::max()},
      {"2.4703282292062328e-324", Limits::denorm_min()},
      {"1e-310", 1e-310},
      {"0e400", 0},
      {"-0.0e-99999999999999999999", -0.0},
      {"0000000000000000000000000000000000000000000000000000000000000000000000000000001e1", 10},
  };
  for (const auto& [text, number] : held) {
    EXPECT_TRUE(same(readNumber(text), number)) << text;
  }
}

TEST(NumberTest, AnyJumbleOfCharactersIsReadAsTheStandardDoes) {
  constexpr std::string_view kCharacters = "0123456789012345678905550.eE+-";
  std::mt19937 draw(1);
  int numbers = 0;
  for (int i = 0; i < 100000; ++i) {
    std::string text(1 + draw() % 12, ' ');
    for (char& character : text)
      character = kCharacters[draw() % kCharacters.size()];
    const std::optional<double> number = readNumber(text);
    ASSERT_TRUE(same(number, standardNumber(text))) << text;
    numbers += number ? 1 : 0;
  }
  EXPECT_GT(numbers, 10000) << "what was never read has shown little";
}

TEST(NumberTest, LongTextsAreReadAsTheStandardDoes) {
  std::mt19937 draw(1);
  for (int i = 0; i < 5000; ++i) {
    std::string text(1 + draw() % 400, ' ');
    for (char& digit : text)
      digit = static_cast<char>('0' + draw() % 10);
    text.insert(draw() % text.size(), ".");
    ASSERT_TRUE(same(readNumber(text), standardNumber(text))) << text;
    text += "e" + std::to_string(static_cast<int>(draw() % 700) - 350);
    ASSERT_TRUE(same(readNumber(text), standardNumber(text))) << text;
  }
}

TEST(NumberTest, HalfwayGoesToTheEvenNumberAndALittleMoreGoesUp) {
  // Halfway between two numbers, in full: some have hundreds of digits, and the last one decides.
  std::mt19937_64 draw(1);
  for (int i = 0; i < 1000; ++i) {
    const double low =
        std::ldexp(static_cast<double>(draw() >> 11 | 1ULL << 52), static_cast<int>(draw() % 1100) - 600);
    const double high = std::nextafter(low, Limits::infinity());
    // An extended number holds the halfway one exactly.
    const long double middle = (static_cast<long double>(low) + high) / 2;
    const std::string text = standardText(middle, std::chars_format::fixed, 700);
    const bool lowIsEven = (std::bit_cast<std::uint64_t>(low) & 1) == 0;
    ASSERT_TRUE(same(readNumber(text), lowIsEven ? low : high)) << text;
    ASSERT_TRUE(same(readNumber(text + "1"), high)) << text;
  }
}

/// Writes 1234.5 as "1.234,5", as many a country does.
class Comma : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(NumberTest, TheLocaleOfTheProcessDoesNotMatter) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
  EXPECT_EQ((std::ostringstream() << 1234.5).str(), "1.234,5") << "the locale is no other";
  EXPECT_EQ(shortestNumber(1234567.5), "1234567.5");
  EXPECT_EQ(plainNumber(12345678), "12345678");
  EXPECT_TRUE(same(readNumber("1234.5"), 1234.5));
  EXPECT_FALSE(readNumber("1234,5").has_value());
  std::locale::global(before);
}

}  // namespace
}  // namespace zelvs
