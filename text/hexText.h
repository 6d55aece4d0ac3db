#pragma once

#include <string>

namespace zelvs {

/// The last digits characters of the value's upper-case hexadecimal digits behind zeros. digits 1 to 8.
std::string hexText(unsigned value, int digits);
/// Value of leading hexadecimal digits; reading stops at the first other character. 0 when there is none.
unsigned hexValue(const std::string& text);
/// Eight binary digits with "_" between the nibbles: "0001_0011".
std::string binaryText(unsigned value);

}  // namespace zelvs
