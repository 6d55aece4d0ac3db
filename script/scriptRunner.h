#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

#include "script/conversation.h"

namespace zelvs {

/// Exit status of a script that could not be read to its end, or whose answers could not be written.
inline constexpr int kBrokenOffStatus = 4;
/// Bytes of a line, its end not counted. A longer one is a refused command; what of it is too much is never kept.
inline constexpr std::size_t kLongestScriptLine = 65536;

/// Reads a script and carries it out on the running program. What it opens that holds the user, a modal window or a
/// message box, the following commands work in.
class ScriptRunner {
 public:
  /// prompt: a line ">" is printed before each command is read, and nothing printed waits in a buffer.
  ScriptRunner(std::istream& in, std::ostream& out, ScriptedPlatform& platform, Hands& hands, bool prompt);

  /// Runs to the end of the input or of the program. The result is the exit status: 0, or 1 when a command was refused
  /// or an expectation did not hold, or kBrokenOffStatus once a stream is bad, which ends the script as well. An input
  /// that ends inside a modal window ends the process with that status.
  int run();

 private:
  /// False at the end of the input or of the program.
  bool runNext();
  /// False at the end of the input. tooLong: line holds as much of it as a line may have.
  bool readLine(std::string& line, bool& tooLong);
  void runLine(const std::string& line);
  void refuse(const std::string& why);
  void runInside();
  bool answered(const MessageBox& box);
  int status();

  std::istream& in_;
  Conversation conversation_;
  bool prompt_;
  int lines_ = 0;  // read so far
};

}  // namespace zelvs
