#pragma once

#include <functional>
#include <string>

namespace zelvs {

/// The program before a person: real windows in real time. start brings the program up; then it runs until its end.
/// report keeps the text of a run-time error and tells where. The result is the exit status. Where there is no display
/// it says so and returns at once.
int runDesktop(int& argc, char** argv, const std::function<void()>& start, std::string (*report)(const std::string&));

}  // namespace zelvs
