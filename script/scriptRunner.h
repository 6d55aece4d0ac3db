#pragma once

#include <iosfwd>
#include <string>

#include "script/conversation.h"

namespace zelvs {

/// Reads a script and carries it out on the running program. What it opens that holds the user, a modal window or a
/// message box, the following commands work in.
class ScriptRunner {
 public:
  /// prompt: a line ">" is printed before each command is read, and nothing printed waits in a buffer.
  ScriptRunner(std::istream& in, std::ostream& out, ScriptedPlatform& platform, Hands& hands, bool prompt);

  /// Runs to the end of the input or of the program. The result is the exit status: 0, or 1 when a command was refused
  /// or an expectation did not hold. An input that ends inside a modal window ends the process with that status.
  int run();

 private:
  /// False at the end of the input or of the program.
  bool runNext();
  void runLine(const std::string& line);
  void runInside();
  bool answered(const MessageBox& box);
  int status() const;

  std::istream& in_;
  Conversation conversation_;
  bool prompt_;
};

}  // namespace zelvs
