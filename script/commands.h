#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "script/conversation.h"
#include "script/words.h"

namespace zelvs {

/// One command of the language. A new one is a function and a row beside its kin, in gestures.cpp, rawHands.cpp,
/// looking.cpp, settingUp.cpp or expectations.cpp, and an example in docs/script.md; a test asks for that.
struct Command {
  /// Carries the command out; words[0] is its whole name. The result is empty, or why it was refused.
  using Action = std::string (*)(Conversation& with, const Words& words);

  std::string_view name;   ///< one word or two
  std::size_t least;       ///< words behind the name
  std::size_t most;        ///< words behind the name
  Action action;           ///< called with least to most words only
  std::string_view takes;  ///< those words as the reference writes them; what may be left out stands in brackets
  std::string_view help;   ///< one line
};

/// As many words as anybody writes.
inline constexpr std::size_t kMany = 1 << 20;

using CommandGroup = std::span<const Command>;
CommandGroup gestureCommands();
CommandGroup rawHandCommands();
CommandGroup lookingCommands();
CommandGroup settingUpCommands();
CommandGroup expectationCommands();

/// The whole language.
std::array<CommandGroup, 5> commandGroups();

/// Carries out a line that has at least one word. The result is empty, or why it was refused.
std::string carryOut(Conversation& with, const Words& words);

}  // namespace zelvs
