#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/form.h"

namespace zelvs {

/// A value as the script looks at it.
struct Value {
  enum class Kind { Number, Truth, Text, Name };
  Kind kind = Kind::Number;
  double number = 0;
  std::string text;

  static Value ofNumber(double number) { return {Kind::Number, number, {}}; }
  static Value ofTruth(bool truth) { return {Kind::Truth, truth ? 1.0 : 0.0, truth ? "True" : "False"}; }
  static Value ofText(std::string text) { return {Kind::Text, 0, std::move(text)}; }
  /// A text that is printed without quotes.
  static Value ofName(std::string text) { return {Kind::Name, 0, std::move(text)}; }

  /// Without quotes and escapes.
  std::string plain() const;
  /// As printed: texts in double quotes with escapes.
  std::string printed() const;
};

/// Whole numbers without a decimal point.
std::string numberText(double number);
std::string quoted(std::string_view text);

/// A property by its name; argument is the N of List(N). Nothing when the control or form has no such property; a
/// row or tab that is not there has none either.
std::optional<Value> inspect(const Control& control, std::string_view property, std::optional<int> argument);
std::optional<Value> inspect(const Form& form, std::string_view property);

}  // namespace zelvs
