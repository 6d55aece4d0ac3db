#pragma once

#include <string_view>

namespace zelvs {

class Control;

/// Width of a text in twips. The program draws all text in one fixed-width family whose ASCII is half as wide as its
/// ideographs, so that the model knows every width without asking the screen: half the font's height for ASCII, the
/// whole height otherwise (half-width kana, which are narrower, get the same room). The widest line counts.
double textWidth(std::string_view text, double fontSize);
/// Height of one line, in twips, the gap to the next one included.
double lineHeight(double fontSize);
/// Lines of a text, split at CR LF or LF. An empty text is one line.
int lineCount(std::string_view text);

/// Finds the font size in points for a height in the target's scale: starting at 2.0, going up by
/// 0.2, it stops at the first size in which the letter "A" is higher than height, or else at 76.0. The target keeps
/// that size.
float setFontSizePt(short height, Control& target);

}  // namespace zelvs
