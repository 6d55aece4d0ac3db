// docs/script.md tells every command as the table has it, with an example of each. That the examples run is shown by
// the cases that are made of them.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "script/commands.h"

namespace zelvs {
namespace {

std::string textOfFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::string tableOf(const CommandGroup& group) {
  std::string table = "| Command | What it does |\n|---|---|\n";
  for (const Command& command : group) {
    const std::string words = command.takes.empty() ? "" : " " + std::string(command.takes);
    table += "| `" + std::string(command.name) + words + "` | " + std::string(command.help) + " |\n";
  }
  return table + "\n";
}

/// The names that begin the lines of the examples.
std::set<std::string> commandsOfExamples() {
  std::set<std::string> names;
  for (const auto& example : std::filesystem::directory_iterator(ZELVS_EXAMPLES)) {
    std::istringstream lines(textOfFile(example.path()));
    for (std::string line; std::getline(lines, line);) {
      const auto words = wordsOf(line);
      if (words && !words->empty()) names.insert(words->front());
      if (words && words->size() > 1) names.insert(words->front() + " " + (*words)[1]);
    }
  }
  return names;
}

TEST(ReferenceTest, EachGroupStandsThereAsItIs) {
  const std::string reference = textOfFile(ZELVS_REFERENCE);
  for (const CommandGroup& group : commandGroups()) {
    EXPECT_NE(reference.find(tableOf(group)), std::string::npos) << "not in " ZELVS_REFERENCE ":\n" << tableOf(group);
  }
}

TEST(ReferenceTest, EachCommandHasAnExample) {
  const std::set<std::string> shown = commandsOfExamples();
  for (const CommandGroup& group : commandGroups()) {
    for (const Command& command : group)
      EXPECT_TRUE(shown.contains(std::string(command.name))) << command.name << " has no example in " ZELVS_REFERENCE;
  }
}

}  // namespace
}  // namespace zelvs
