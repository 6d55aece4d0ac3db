#pragma once

#include <string>

namespace zelvs {

/// Exit status of a program that a run-time error ended.
inline constexpr int kRunTimeErrorStatus = 3;

/// Tells the user what was being done and with which name or value, then ends the program with
/// kRunTimeErrorStatus. The one way out for everything that must not go on: an index that is not there, a list
/// position outside its list, a missing picture.
[[noreturn]] void runTimeError(const std::string& text);

/// How the user is told; the program and the script tool each install their own. Standard error at first.
using RunTimeErrorTeller = void (*)(const std::string& text);
void setRunTimeErrorTeller(RunTimeErrorTeller teller);

}  // namespace zelvs
