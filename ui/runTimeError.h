#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

namespace zelvs {

class Control;
class Form;

/// Exit status of a program that a run-time error ended.
inline constexpr int kRunTimeErrorStatus = 3;

/// Tells the user what was being done and with which name or value, then ends the program with
/// kRunTimeErrorStatus. The one way out for everything that must not go on: an index that is not there, a list
/// position outside its list, a missing picture.
[[noreturn]] void runTimeError(const std::string& text);

/// How the user is told; the program and the script tool each install their own. Standard error at first.
using RunTimeErrorTeller = void (*)(const std::string& text);
void setRunTimeErrorTeller(RunTimeErrorTeller teller);

/// What the program is doing as long as one lives, for the words of a run-time error. They lie on the stack inside each
/// other, and to make one costs next to nothing.
class Deed {
 public:
  /// what: as it stands behind "while", "reading the lesson". name: of what it is done to, where that has one. Both
  /// outlive the deed.
  explicit Deed(std::string_view what, std::string_view name = {});
  Deed(std::string_view what, std::same_as<std::string> auto&& name) = delete;  // it would be gone at once
  /// Done to a control, or to the form itself where there is none.
  Deed(std::string_view what, const Form& form, const Control* control = nullptr);
  Deed(std::string_view what, const Control& control);
  ~Deed();
  Deed(const Deed&) = delete;
  Deed& operator=(const Deed&) = delete;

 private:
  friend std::vector<std::string> deedWords();
  std::string name() const;

  std::string_view what_;
  std::string_view name_;
  const Form* form_ = nullptr;
  const Control* control_ = nullptr;
  const Deed* around_;
};

/// What is being done, innermost first, as far as it helps: "while reading the lesson first.txt". At most kLongestTold
/// characters each.
std::vector<std::string> deedWords();

}  // namespace zelvs
