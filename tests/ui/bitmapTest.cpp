// What a bitmap file shows, pixel by pixel, and every way in which it may be none.

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

#include "support/bitmap.h"
#include "ui/bitmap.h"

namespace zelvs {
namespace {

using namespace std::string_literals;
using Pixels = std::vector<std::uint32_t>;

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kGreen = 0xFF00FF00;
constexpr std::uint32_t kBlue = 0xFF0000FF;
constexpr std::uint32_t kWhite = 0xFFFFFFFF;
constexpr std::uint32_t kBlack = 0xFF000000;

// Four colours of a palette: blue, green, red and a byte that means nothing.
const std::string kPalette = "\0\0\xFF\1\0\xFF\0\2\xFF\0\0\3\xFF\xFF\xFF\4"s;  // red, green, blue, white
const std::string kSmallPalette = "\0\0\xFF\0\xFF\0\xFF\0\0\xFF\xFF\xFF"s;
const std::string kMasks565 = "\0\xF8\0\0\xE0\7\0\0\x1F\0\0\0"s;
const std::string kUsualMasks = "\0\0\xFF\0\0\xFF\0\0\xFF\0\0\0"s;
const std::string kOpacityMask = "\0\0\0\xFF"s;

/// The pixels, or why there are none.
struct Outcome {
  std::string refusal;
  Pixels pixels;
};

Outcome outcomeOf(const std::string& bytes) {
  Outcome outcome;
  const std::optional<Bitmap> bitmap = readBitmap(bytes, outcome.refusal);
  EXPECT_NE(bitmap.has_value(), !outcome.refusal.empty());
  EXPECT_LE(outcome.refusal.size(), 80U);
  if (bitmap) outcome.pixels = bitmap->pixels;
  return outcome;
}
Outcome outcomeOf(const BitmapFile& file) {
  return outcomeOf(file.bytes());
}

struct Sample {
  const char* name;
  BitmapFile file;
  Pixels pixels;
};

std::vector<Sample> samples() {
  return {
      {"1 bit", {3, 2, 1, "\x40\0\0\0\xA0\0\0\0"s, kPalette}, {kGreen, kRed, kGreen, kRed, kGreen, kRed}},
      {"1 bit, ten in a row",
       {10, 1, 1, "\x80\x40\0\0"s, kPalette},
       {kGreen, kRed, kRed, kRed, kRed, kRed, kRed, kRed, kRed, kGreen}},
      {"4 bits", {3, 1, 4, "\x01\x20\0\0"s, kPalette}, {kRed, kGreen, kBlue}},
      {"8 bits", {2, 2, 8, "\0\1\0\0\2\3\0\0"s, kPalette}, {kBlue, kWhite, kRed, kGreen}},
      {"8 bits, small head", {2, 2, 8, "\0\1\0\0\2\3\0\0"s, kSmallPalette, 0, 12}, {kBlue, kWhite, kRed, kGreen}},
      {"16 bits", {4, 1, 16, "\0\x7C\xE0\3\x1F\0\xFF\xFF"s}, {kRed, kGreen, kBlue, kWhite}},
      {"16 bits, steps", {2, 1, 16, "\x43\x10\0\0"s}, {0xFF211019, kBlack}},
      {"24 bits", {1, 2, 24, "\0\0\xFF\0\xFF\0\0\0"s}, {kBlue, kRed}},
      {"24 bits, from the top", {1, -2, 24, "\0\0\xFF\0\xFF\0\0\0"s}, {kRed, kBlue}},
      {"24 bits, small head", {1, 2, 24, "\0\0\xFF\0\xFF\0\0\0"s, "", 0, 12}, {kBlue, kRed}},
      {"32 bits", {2, 1, 32, "\x33\x22\x11\0\x66\x55\x44\x77"s}, {0xFF112233, 0xFF445566}},
      {"16 bits, masks", {2, 1, 16, "\xE0\7\1\0"s, "", 3, 40, kMasks565}, {kGreen, 0xFF000008}},
      {"32 bits, masks in the head", {1, 1, 32, "\x33\x22\x11\0"s, "", 3, 52, kUsualMasks}, {0xFF112233}},
      {"32 bits, opacity", {1, 1, 32, "\x33\x22\x11\x80"s, "", 3, 56, kUsualMasks + kOpacityMask}, {0x80112233}},
      {"32 bits, plain with opacity",
       {1, 1, 32, "\x33\x22\x11\x80"s, "", 0, 124, kUsualMasks + kOpacityMask},
       {0x80112233}},
      {"24 bits have none", {1, 1, 24, "\x33\x22\x11\0"s, "", 0, 124, kUsualMasks + kOpacityMask}, {0xFF112233}},
      {"runs of 8", {3, 2, 8, "\3\1\0\0\0\3\0\1\2\0\0\1"s, kPalette, 1}, {kRed, kGreen, kBlue, kGreen, kGreen, kGreen}},
      {"runs of 8, from the top", {2, -2, 8, "\2\1\0\0\2\2\0\1"s, kPalette, 1}, {kGreen, kGreen, kBlue, kBlue}},
      {"runs of 4",
       {5, 2, 4, "\5\x12\0\0\0\5\x01\x23\0\0\0\1"s, kPalette, 2},
       {kRed, kGreen, kBlue, kWhite, kRed, kGreen, kBlue, kGreen, kBlue, kGreen}},
      {"a jump", {3, 2, 8, "\1\1\0\2\1\1\1\2\0\1"s, kPalette, 1}, {kRed, kRed, kBlue, kGreen, kRed, kRed}},
      {"nothing but an end", {2, 1, 4, "\0\1"s, kPalette, 2}, {kRed, kRed}},
  };
}

TEST(BitmapTest, EachFormatShowsItsPixels) {
  for (const Sample& sample : samples()) {
    SCOPED_TRACE(sample.name);
    std::string refusal = "old";
    const std::optional<Bitmap> bitmap = readBitmap(sample.file.bytes(), refusal);
    ASSERT_TRUE(bitmap) << refusal;
    EXPECT_EQ(refusal, "");
    EXPECT_EQ(bitmap->width, sample.file.width);
    EXPECT_EQ(bitmap->height, std::abs(sample.file.height));
    EXPECT_EQ(bitmap->pixels, sample.pixels);
  }
}

TEST(BitmapTest, ABitmapThatIsCutAnywhereIsRefused) {
  for (const Sample& sample : samples()) {
    SCOPED_TRACE(sample.name);
    const std::string whole = sample.file.bytes();
    for (std::size_t length = 0; length < whole.size(); ++length)
      EXPECT_NE(outcomeOf(whole.substr(0, length)).refusal, "") << length;
    EXPECT_EQ(outcomeOf(whole + "and more").pixels, sample.pixels);
  }
}

TEST(BitmapTest, WhatIsRefusedIsToldWhy) {
  const std::string whole = BitmapFile{1, 1, 24, "1234"}.bytes();
  const auto with = [&](std::size_t at, std::uint32_t number) {
    return std::string(whole).replace(at, 4, littleEndian(number, 4));
  };
  const std::pair<std::string, const char*> table[] = {
      {"BA" + whole.substr(2), "it does not begin as one"},
      {whole.substr(0, 25), "it does not begin as one"},
      {with(14, 0), "a head of 0 bytes is not known"},
      {with(14, 64), "a head of 64 bytes is not known"},
      {with(14, 41), "a head of 41 bytes is not known"},
      {with(14, 124), "its head ends early"},
      {whole.substr(0, 30), "its head ends early"},
      {with(30, 1), "24 bits a pixel in packing 1 are not known"},
      {with(30, 3), "24 bits a pixel in packing 3 are not known"},
      {with(30, 4), "24 bits a pixel in packing 4 are not known"},
      {with(26, 2 << 16 | 1), "2 bits a pixel in packing 0 are not known"},
      {with(10, 53), "its pixels lie outside of it"},
      {with(10, 59), "its pixels lie outside of it"},
      {with(10, 0xFFFFFFFF), "its pixels lie outside of it"},
      {with(10, 55), "its pixels end early"},
  };
  for (const auto& [bytes, why] : table)
    EXPECT_EQ(outcomeOf(bytes).refusal, why);
}

TEST(BitmapTest, ASideHasOneTo8192Pixels) {
  for (const auto& [width, height] : {std::pair{8192, 1}, std::pair{1, 8192}, std::pair{1, -8192}}) {
    BitmapFile file{width, height, 1};
    file.pixels.assign(file.rowBytes() * static_cast<std::size_t>(std::abs(height)), '\0');
    EXPECT_EQ(outcomeOf(file).pixels, Pixels(8192, kBlack));
  }
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  for (const auto& [width, height] :
       {std::pair{8193, 1}, std::pair{1, 8193}, std::pair{1, -8193}, std::pair{0, 1}, std::pair{1, 0}, std::pair{-1, 1},
        std::pair{kMost, 1}, std::pair{1, kMost}, std::pair{kLeast, 1}, std::pair{1, kLeast}}) {
    EXPECT_EQ(outcomeOf(BitmapFile{width, height}).refusal,
              std::to_string(width) + " x " + std::to_string(height) + " pixels: a side has 1 to 8192");
  }
  EXPECT_EQ(outcomeOf(BitmapFile{65535, 1, 24, "", "", 0, 12}).refusal, "65535 x 1 pixels: a side has 1 to 8192");
}

TEST(BitmapTest, TheLargestPictureFitsTheLargestFile) {
  constexpr std::size_t kHeadsWithPalette = 14 + 124 + 256 * 4;
  EXPECT_LE(kHeadsWithPalette + std::size_t{8192} * 8192 * 4, kLargestBitmapFile);
}

TEST(BitmapTest, APaletteEndsWhereThePixelsBegin) {
  EXPECT_EQ(outcomeOf(BitmapFile{4, 1, 8, "\0\1\2\3", kPalette.substr(0, 7)}).refusal, "its pixels end early");
  EXPECT_EQ(outcomeOf(BitmapFile{4, 1, 8, "\0\1\2\3"s, kPalette.substr(0, 7)}).pixels,
            (Pixels{kRed, kBlack, kBlack, kBlack}));
  EXPECT_EQ(outcomeOf(BitmapFile{4, 1, 8, "\0\1\2\xFF"s, ""}).pixels, (Pixels(4, kBlack)));
  EXPECT_EQ(outcomeOf(BitmapFile{4, 1, 1, "\x50\0\0\0"s, kPalette}).pixels, (Pixels{kRed, kGreen, kRed, kGreen}))
      << "colours that no pixel can name";
}

TEST(BitmapTest, MasksOfAnyPlaceAndWidth) {
  const auto under = [](std::uint32_t red, std::uint32_t green, std::uint32_t blue, std::uint32_t opacity,
                        std::uint32_t pixel, std::uint32_t bits = 32) {
    return outcomeOf(
        BitmapFile{1, 1, bits, littleEndian(pixel, 4), "", 3, 56,
                   littleEndian(red, 4) + littleEndian(green, 4) + littleEndian(blue, 4) + littleEndian(opacity, 4)});
  };
  EXPECT_EQ(under(0xFF, 0xFF00, 0xFF0000, 0, 0x44112233).pixels, (Pixels{0xFF332211}));
  EXPECT_EQ(under(0, 0, 0, 0, 0xFFFFFFFF).pixels, (Pixels{kBlack}));
  EXPECT_EQ(under(0xFF, 0xFF, 0xFF, 0xFF, 0x7F).pixels, (Pixels{0x7F7F7F7F})) << "masks may lie one over another";
  EXPECT_EQ(under(1, 2, 4, 8, 0x5).pixels, (Pixels{0x00FF00FF}));
  EXPECT_EQ(under(3, 7 << 2, 0, 0, 0x2 | 3 << 2).pixels, (Pixels{0xFFAA6D00})) << "2 of 3 and 3 of 7";
  EXPECT_EQ(under(0x3FF00000, 0xFFC00, 0x3FF, 0, 0x3FF00000 | 0x201 << 10).pixels, (Pixels{0xFFFF8000}))
      << "the upper eight of ten bits";
  EXPECT_EQ(under(0xFFFFFFFF, 0, 0, 0, 0x12345678).pixels, (Pixels{0xFF120000}));
  EXPECT_EQ(under(0xFFFF0000, 0, 0xFF, 0xFF000000, 0x12, 16).pixels, (Pixels{0xFF000012}))
      << "a pixel of 16 bits has none there";
  for (const std::uint32_t hole : {0x5U, 0xFF00FFU, 0x80000001U}) {
    EXPECT_EQ(under(hole, 0, 0, 0, 0).refusal, "a mask has a hole");
    EXPECT_EQ(under(0, hole, 0, 0, 0).refusal, "a mask has a hole");
    EXPECT_EQ(under(0, 0, hole, 0, 0).refusal, "a mask has a hole");
    EXPECT_EQ(under(0, 0, 0, hole, 0).refusal, "a mask has a hole");
  }
}

TEST(BitmapTest, RunsStayInThePicture) {
  const auto runs = [](const std::string& bytes, std::uint32_t bits = 8) {
    return outcomeOf(BitmapFile{3, 2, bits, bytes, kPalette, bits == 8 ? 1U : 2U});
  };
  const char* const kLeaves = "a run leaves the picture";
  EXPECT_EQ(runs("\3\1\0\1"s).refusal, "");
  EXPECT_EQ(runs("\4\1\0\1"s).refusal, kLeaves);
  EXPECT_EQ(runs("\4\1\0\1"s, 4).refusal, kLeaves);
  EXPECT_EQ(runs("\2\1\2\1\0\1"s).refusal, kLeaves);
  EXPECT_EQ(runs("\0\4\1\1\1\1\0\1"s).refusal, kLeaves);
  EXPECT_EQ(runs("\0\2\2\1\1\1\0\1"s).refusal, "");
  EXPECT_EQ(runs("\0\2\3\1\1\1\0\1"s).refusal, kLeaves);
  EXPECT_EQ(runs("\0\2\2\2\1\1\0\1"s).refusal, kLeaves);
  EXPECT_EQ(runs("\0\0\0\0\1\1\0\1"s).refusal, kLeaves);
  EXPECT_EQ(runs("\3\1\0\0\3\1\0\0\0\1"s).refusal, "") << "behind the last row nothing is put";
  EXPECT_EQ(runs("\0\2\xFF\xFF\0\1"s).refusal, "") << "nor here";
}

TEST(BitmapTest, RunsThatEndBeforeTheirEndAreRefused) {
  for (const std::string& bytes : {""s, "\0"s, "\3\1"s, "\3\1\0"s, "\0\2"s, "\0\2\1"s, "\0\3"s, "\0\3\1"s,
                                   "\0\3\1\1\1"s, "\0\3\1\1\1\0"s, "\0\0\0\0"s}) {
    EXPECT_EQ(outcomeOf(BitmapFile{3, 2, 8, bytes, kPalette, 1}).refusal, "its pixels end early");
  }
  EXPECT_EQ(outcomeOf(BitmapFile{3, 2, 4, "\0\3\x12\x30\0\1"s, kPalette, 2}).refusal, "");
  EXPECT_EQ(outcomeOf(BitmapFile{3, 2, 4, "\0\3\x12"s, kPalette, 2}).refusal, "its pixels end early");
}

TEST(BitmapTest, DamagedBitmapsAreTakenWholeOrRefused) {
  std::mt19937 random(932);
  const auto upTo = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
  int taken = 0;
  int refused = 0;
  for (const Sample& sample : samples()) {
    SCOPED_TRACE(sample.name);
    for (int round = 0; round < 300; ++round) {
      std::string bytes = sample.file.bytes();
      for (std::size_t faults = upTo(2); faults > 0; --faults)
        bytes[upTo(bytes.size() - 1)] = static_cast<char>(upTo(255));
      std::string refusal;
      const std::optional<Bitmap> bitmap = readBitmap(bytes, refusal);
      ++(bitmap ? taken : refused);
      ASSERT_NE(bitmap.has_value(), !refusal.empty());
      if (!bitmap) continue;
      ASSERT_GE(std::min(bitmap->width, bitmap->height), 1);
      ASSERT_LE(std::max(bitmap->width, bitmap->height), kLongestSide);
      ASSERT_EQ(bitmap->pixels.size(),
                static_cast<std::size_t>(bitmap->width) * static_cast<std::size_t>(bitmap->height));
    }
  }
  EXPECT_GT(taken, 1000);
  EXPECT_GT(refused, 1000);
}

}  // namespace
}  // namespace zelvs
