#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelvs {

// Decimal numbers as text: the same in every locale that the process may have been put into, and right to the last bit.

/// The nearest number to a text like "-12.5", ".5", "5." or "1e-7". Nothing when there is anything else in the text (a
/// blank, a "+" in front, "inf"), and when a double cannot hold the number: too large, or so small that it would be 0.
std::optional<double> readNumber(std::string_view text);

/// The shortest text that readNumber() takes back to the same number, with an exponent only where that is shorter:
/// "0.1", "1e+16", "-0". Whole numbers without an exponent have all their digits: "123456789012345683968". What is no
/// number is "inf" or "nan" behind its sign.
std::string shortestNumber(double number);

/// The same without an exponent, however long: "0.00000015", "10000000000000000".
std::string plainNumber(double number);

}  // namespace zelvs
