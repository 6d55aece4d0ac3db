#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "script/scriptRunner.h"
#include "support/program.h"
#include "ui/headless/headlessHands.h"

namespace zelvs {

/// The whole program under scripts, with the maker's values.
class ScriptTest : public ProgramTest {
 protected:
  ScriptTest() { start(); }

  /// Runs the commands; the result is what was printed.
  std::string run(const std::string& commands, bool prompt = false) {
    std::istringstream in(commands);
    std::ostringstream out;
    HeadlessHands hands;
    ScriptRunner runner(in, out, platform, hands, prompt);
    status = runner.run();
    platform.onWait = nullptr;
    platform.onMessageBox = nullptr;
    return out.str();
  }

  int status = -1;  ///< of the last run
};

struct Exchange {
  const char* commands;
  const char* printed;
};

#define EXPECT_EXCHANGES(wantedStatus, ...)                        \
  for (const Exchange& row : std::vector<Exchange>{__VA_ARGS__}) { \
    EXPECT_EQ(run(row.commands), row.printed) << row.commands;     \
    EXPECT_EQ(status, wantedStatus) << row.commands;               \
  }

}  // namespace zelvs
