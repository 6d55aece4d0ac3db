#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvs {

/// The longest side of a bitmap that is read, in pixels: more than two of the widest screens.
inline constexpr int kLongestSide = 8192;
/// The largest file of one, in bytes: four for each of its pixels, and a mebibyte for its heads and for what a program
/// may have put in beside the pixels.
inline constexpr std::size_t kLargestBitmapFile = std::size_t{4} * kLongestSide * kLongestSide + (std::size_t{1} << 20);

/// Rows from the top, pixels from the left. A pixel is 0xAARRGGBB, where AA is 0xFF for an opaque one.
struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// Decodes the bytes of a Windows bitmap: a head of 12, 40, 52, 56, 108 or 124 bytes; 1, 4, 8, 16, 24 or 32 bits a
/// pixel, plain, as runs (4 and 8 bits) or under masks (16 and 32 bits); rows from the bottom or from the top. A pixel
/// that runs skip has colour 0; a colour that the palette lacks is black.
///
/// Refused, with a few words that tell why: any other head or kind of pixels, a side of no pixels or of more than
/// kLongestSide, a mask with a hole, a run that leaves the picture, and pixels that end early, even if all they lack is
/// the filling behind the last row or the mark behind the last run.
std::optional<Bitmap> readBitmap(std::string_view bytes, std::string& refusal);

}  // namespace zelvs
