#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/hands.h"
#include "ui/headless/scriptedPlatform.h"
#include "ui/inspect.h"

namespace zelvs {

/// Reads commands and carries them out on the running program: gestures, looks, expectations.
class ScriptRunner {
 public:
  ScriptRunner(std::istream& in, std::ostream& out, ScriptedPlatform& platform, Hands& hands, bool prompt);

  /// Runs to the end of the input or of the program. The result is the exit status: 0 or 1.
  int run();

 private:
  using Tokens = std::vector<std::string>;
  /// Carries a command out; the result is empty, or why it was refused.
  using Command = std::function<std::string(const Tokens& words)>;
  struct Box {
    std::string title;
    std::string text;
    MessageButtons buttons;
    std::optional<bool> answer;
  };
  struct Target {
    Form* form = nullptr;
    Control* control = nullptr;
  };

  void fillCommands();
  /// False at the end of the input or of the program.
  bool runNext();
  void runLine(const std::string& line);
  std::string carryOut(const Tokens& words);
  void finishInside();
  int status() const { return refusals_ + failures_ > 0 ? 1 : 0; }

  std::string findTarget(std::string_view text, Target& target) const;
  std::string gestureTarget(std::string_view text, Target& target) const;
  std::string look(std::string_view what, Value& value) const;

  std::string get(const Tokens& words);
  std::string peek(const Tokens& words);
  std::string forms(const Tokens& words);
  std::string controls(const Tokens& words);
  std::string box(const Tokens& words);
  std::string answer(const Tokens& words);
  std::string poke(const Tokens& words);
  std::string set(const Tokens& words);
  std::string random(const Tokens& words);
  std::string screenshot(const Tokens& words);
  std::string expect(const Tokens& words);
  std::string expectBytes(const Tokens& words);
  std::string boxText() const;
  std::string judge(const std::string& what, bool held, const std::string& expected, const std::string& is);

  std::istream& in_;
  std::ostream& out_;
  ScriptedPlatform& platform_;
  Hands& hands_;
  bool prompt_;
  std::map<std::string, Command, std::less<>> commands_;
  std::vector<Box> boxes_;
  bool lastRefused_ = false;
  int refusals_ = 0;
  int failures_ = 0;
};

}  // namespace zelvs
