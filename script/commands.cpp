#include "script/commands.h"

namespace zelvs {

namespace {

const Command* commandNamed(std::string_view name) {
  for (const CommandGroup& group : commandGroups()) {
    for (const Command& command : group) {
      if (command.name == name) return &command;
    }
  }
  return nullptr;
}

/// A name of two words becomes one, so that what stands behind it counts from 1 as everywhere.
Words withWholeName(const Words& words) {
  if (words.size() < 2 || commandNamed(words[0]) != nullptr) return words;
  Words joined(words.begin() + 1, words.end());
  joined[0] = words[0] + " " + words[1];
  return commandNamed(joined[0]) != nullptr ? joined : words;
}

}  // namespace

std::array<CommandGroup, 5> commandGroups() {
  return {gestureCommands(), rawHandCommands(), lookingCommands(), settingUpCommands(), expectationCommands()};
}

std::string carryOut(Conversation& with, const Words& given) {
  const Words words = withWholeName(given);
  const Command* command = commandNamed(words[0]);
  if (command == nullptr) return "unknown command: " + words[0];
  if (words.size() - 1 < command->least) return words[0] + ": too few words";
  if (words.size() - 1 > command->most) return words[0] + ": too many words";
  return command->action(with, words);
}

}  // namespace zelvs
