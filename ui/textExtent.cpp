#include "ui/textExtent.h"

#include <algorithm>
#include <cmath>

#include "text/utf8.h"
#include "ui/control.h"

namespace zelvs {

namespace {

bool halfWidth(char32_t character) {
  return character < 0x80;
}

}  // namespace

double textWidth(std::string_view text, double fontSize) {
  const double whole = fontSize * kTwipsPerPoint;
  double widest = 0;
  double width = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = nextCharacter(text, at);
    if (character == U'\n') {
      width = 0;
    } else if (character != U'\r') {
      width += halfWidth(character) ? whole / 2 : whole;
    }
    widest = std::max(widest, width);
  }
  return widest;
}

double lineHeight(double fontSize) {
  constexpr double kLeading = 1.25;
  return fontSize * kTwipsPerPoint * kLeading;
}

int lineCount(std::string_view text) {
  return 1 + static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

float setFontSizePt(short height, Control& target) {
  constexpr int kSmallest = 20;
  constexpr int kLargest = 760;
  constexpr int kStep = 2;
  // Counted in tenths of a point: repeated addition of 0.2 would drift past the last size.
  int tenths = kSmallest;
  for (; tenths < kLargest; tenths += kStep) {
    if (lineHeight(tenths / 10.0) > height * target.unit()) break;
  }
  target.FontSize = tenths / 10.0;
  return static_cast<float>(tenths / 10.0);
}

}  // namespace zelvs
