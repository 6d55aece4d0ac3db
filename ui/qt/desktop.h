#pragma once

#include <functional>
#include <string>

namespace zelvs {

/// What the program's command line takes.
inline constexpr const char* kDesktopUsage =
    "usage: zelvs [--check | --help | --version] [ARGUMENT OF THE TOOLKIT...]\n";
/// Takes the toolkit's arguments that name a display off the command line and puts them into the environment, which
/// says the same: there it can be asked whether anything names one.
void takeDisplayArguments(int& argc, char** argv);
/// Tells on standard error that nobody knows this argument. The result is the exit status.
int refuseArgument(const char* argument);

/// The program before a person: real windows in real time. start brings the program up; then it runs until its end.
/// report keeps the text of a run-time error and tells where. The result is the exit status. Where there is no display
/// it says so and returns at once. The toolkit takes its own arguments off the command line; what is left is told with
/// the usage.
int runDesktop(int& argc, char** argv, const std::function<void()>& start, std::string (*report)(const std::string&));

}  // namespace zelvs
