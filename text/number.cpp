#include "text/number.h"

#include <algorithm>
#include <cmath>
#include <ios>
#include <limits>
#include <locale>
#include <sstream>

// Streams, since std::from_chars and std::to_chars do not know floating-point numbers in every standard library.

namespace zelvs {

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kNonzeroDigits = "123456789";

bool skipOne(std::string_view& text, std::string_view ofThese) {
  if (text.empty() || ofThese.find(text.front()) == std::string_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

/// How many digits were skipped.
std::size_t skipDigits(std::string_view& text) {
  const std::size_t count = std::min(text.find_first_not_of(kDigits), text.size());
  text.remove_prefix(count);
  return count;
}

bool isDecimal(std::string_view text) {
  skipOne(text, "-");
  std::size_t digits = skipDigits(text);
  if (skipOne(text, ".")) digits += skipDigits(text);
  if (digits == 0) return false;
  if (skipOne(text, "eE")) {
    skipOne(text, "+-");
    if (skipDigits(text) == 0) return false;
  }
  return text.empty();
}

/// A text that isDecimal(): streams would take more, and not all of them the same.
double valueOf(std::string_view decimal) {
  std::istringstream in{std::string(decimal)};
  in.imbue(std::locale::classic());
  double number = 0;
  in >> number;
  // A number too large fails and is the largest here, infinite there; a small one that has lost digits may fail too.
  const bool tooLarge = in.fail() && std::abs(number) > 1;
  return tooLarge ? std::numeric_limits<double>::infinity() : number;
}

std::string written(double number, std::ios::fmtflags form, int decimals) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out.setf(form, std::ios::floatfield);
  out.precision(decimals);
  out << number;
  return out.str();
}

/// "1.25e-07": the fewest digits that read back to the same, which must be a number.
std::string shortestWithExponent(double number) {
  for (int decimals = 0;; ++decimals) {
    std::string text = written(number, std::ios::scientific, decimals);
    if (valueOf(text) == number) return text;
    // Below a power of two numbers lie closer than above: the nearest text may miss it where the next one does not.
    char& lastDigit = text[text.find('e') - 1];
    if (lastDigit == '9') continue;
    ++lastDigit;
    if (valueOf(text) == number) return text;
  }
}

/// "1.25e-07" without its exponent, which leaves a fraction: "0.000000125".
std::string withoutExponent(std::string text) {
  const std::size_t e = text.find('e');
  const int exponent = std::stoi(text.substr(e + 1));
  text.resize(e);
  const std::string sign = text.front() == '-' ? "-" : "";
  text.erase(0, sign.size());
  std::erase(text, '.');
  if (exponent < 0) return sign + "0." + std::string(-exponent - 1, '0') + text;
  return sign + text.insert(exponent + 1, ".");
}

bool isFraction(double number) {
  return std::isfinite(number) && number != std::floor(number);
}

/// A whole number to its last digit; "inf" and "nan" too.
std::string wholeText(double number) {
  return written(number, std::ios::fixed, 0);
}

}  // namespace

std::optional<double> readNumber(std::string_view text) {
  if (!isDecimal(text)) return std::nullopt;
  const double number = valueOf(text);
  const bool zero = text.substr(0, text.find_first_of("eE")).find_first_of(kNonzeroDigits) == std::string_view::npos;
  if (std::isinf(number) || (number == 0 && !zero)) return std::nullopt;
  return number;
}

std::string shortestNumber(double number) {
  if (!std::isfinite(number)) return wholeText(number);
  std::string withExponent = shortestWithExponent(number);
  std::string plain = isFraction(number) ? withoutExponent(withExponent) : wholeText(number);
  return withExponent.size() < plain.size() ? withExponent : plain;
}

std::string plainNumber(double number) {
  return isFraction(number) ? withoutExponent(shortestWithExponent(number)) : wholeText(number);
}

}  // namespace zelvs
