#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "ui/hands.h"
#include "ui/headless/scriptedPlatform.h"

namespace zelvs {

/// A message box of the platform that is open.
struct MessageBox {
  std::string title;
  std::string text;
  MessageButtons buttons;
  std::optional<bool> answer;  ///< true: OK; nothing until the script has answered
};

/// What a script's commands work on: where they print, whose hands they move, the message boxes that wait for them
/// and how it went so far.
struct Conversation {
  std::ostream& out;
  ScriptedPlatform& platform;
  Hands& hands;
  std::vector<MessageBox> boxes{};  ///< the last one is in front
  bool lastRefused = false;         ///< what "expect error" asks for; other expectations leave it alone
  int refusals = 0;                 ///< those that no "expect error" has taken back
  int failures = 0;                 ///< expectations that did not hold
};

}  // namespace zelvs
