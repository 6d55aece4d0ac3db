#pragma once

#include <functional>

namespace zelvs {

/// The program before a person: real windows in real time. start brings the program up; then it runs until its end.
/// The result is its exit status. Where there is no display it says so and returns at once.
int runDesktop(int& argc, char** argv, const std::function<void()>& start);

}  // namespace zelvs
