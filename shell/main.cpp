// zelvs: the program.

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/beep.h"
#include "shell/check.h"
#include "shell/frmVersion.h"
#include "shell/ownFolder.h"
#include "shell/report.h"
#include "shell/startUp.h"
#include "shell/writeSignals.h"
#include "state/state.h"
#include "ui/qt/desktop.h"
#include "ui/qt/desktopCheck.h"

namespace {

constexpr const char* kHelp =
    "\n"
    "  --check    looks over this installation and says what is right and what is wrong;\n"
    "             the exit status is 0 when nothing is wrong\n"
    "  --help     says this\n"
    "  --version  says which version this is\n"
    "\n"
    "The toolkit takes its own arguments, -style and -display among them.\n";

/// Takes an argument off the command line. False when it is not there.
bool take(int& argc, char** argv, std::string_view argument) {
  char** const end = std::remove(argv + 1, argv + argc, argument);
  const bool there = end != argv + argc;
  *end = nullptr;
  argc = static_cast<int>(end - argv);
  return there;
}

int tell(const std::string& text) {
  return std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0 ? 0 : 1;
}

int check(int& argc, char** argv) {
  std::vector<zelvs::Finding> findings = zelvs::checkFolder();
  for (zelvs::Finding& finding : zelvs::checkDesktop(argc, argv, zelvs::beepPath()))
    findings.push_back(std::move(finding));
  return argc > 1 ? zelvs::refuseArgument(argv[1]) : zelvs::tellFindings(findings);
}

}  // namespace

int main(int argc, char** argv) {
  zelvs::ignoreWriteSignals();
  zelvs::programFolder = zelvs::ownFolder(argv[0]);
  if (take(argc, argv, "--help")) return tell(std::string(zelvs::kDesktopUsage) + kHelp);
  if (take(argc, argv, "--version")) return tell("ZELVS " + std::string(zelvs::programVersion()) + "\n");
  if (take(argc, argv, "--check")) return check(argc, argv);
  return zelvs::runDesktop(argc, argv, zelvs::startUp, zelvs::keepReport);
}
