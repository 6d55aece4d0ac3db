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

}  // namespace

std::array<CommandGroup, 4> commandGroups() {
  return {gestureCommands(), lookingCommands(), settingUpCommands(), expectationCommands()};
}

std::string carryOut(Conversation& with, const Words& words) {
  const Command* command = commandNamed(words[0]);
  if (command == nullptr) return "unknown command: " + words[0];
  if (words.size() - 1 < command->least) return words[0] + ": too few words";
  if (words.size() - 1 > command->most) return words[0] + ": too many words";
  return command->action(with, words);
}

}  // namespace zelvs
