// What brings about a state that is to be tried: time, and what no hand can do.

#include <span>
#include <vector>

#include "link/simulation.h"
#include "script/commands.h"
#include "script/names.h"
#include "shell/tick.h"
#include "state/randomSource.h"
#include "ui/desk.h"

namespace zelvs {

namespace {

/// Does a thing once, or as often as the word tells, as one event.
template <void (*thing)()>
std::string times(Conversation&, const Words& words) {
  const auto count = words.size() > 1 ? wholeNumber(words[1]) : 1;
  if (!count || *count < 0) return noNumber(words[1]);
  const Desk::Event event;
  for (std::int64_t i = 0; i < *count; ++i)
    thing();
  return {};
}

std::string wait(Conversation&, const Words& words) {
  const auto milliseconds = smallNumber(words[1]);
  if (!milliseconds || *milliseconds < 0) return noNumber(words[1]);
  desk().clock.advance(*milliseconds);
  return {};
}

std::string poke(Conversation&, const Words& words) {
  const std::span<const std::string> values(words.begin() + 2, words.end());
  int address = 0;
  std::string why = findBytes(words[1], static_cast<std::int64_t>(values.size()), address);
  if (!why.empty()) return why;
  std::vector<std::uint8_t> bytes;
  for (const std::string& value : values) {
    const auto byte = wholeNumber(value);
    if (!byte || *byte < 0 || *byte > 255) return "not a byte: " + value;
    bytes.push_back(static_cast<std::uint8_t>(*byte));
  }
  for (const std::uint8_t byte : bytes)
    chipMemory[address++] = byte;
  return {};
}

std::string set(Conversation&, const Words& words) {
  VariablePlace place;
  std::string why = findVariable(words[1], place);
  if (!why.empty()) return why;
  const auto value = wholeNumber(words[2]);
  if (!value) return noNumber(words[2]);
  if (!place.variable->holds(*value)) return words[1] + " cannot hold " + words[2];
  place.variable->write(place.index, *value);
  return {};
}

std::string random(Conversation&, const Words& words) {
  std::vector<double> numbers;
  for (std::size_t i = 1; i < words.size(); ++i) {
    const auto number = anyNumber(words[i]);
    if (!number || *number < 0 || *number > 1) return "not a number from 0 to 1: " + words[i];
    numbers.push_back(*number);
  }
  for (const double number : numbers)
    queueRandom(number);
  return {};
}

constexpr Command kSettingUp[] = {
    {"step", 0, 1, times<simulationStep>, "[N]", "the link makes one step, or N"},
    {"tick", 0, 1, times<timTick_Timer>, "[N]",
     "the simulation's timer fires once, or N times, while the clock stands"},
    {"wait", 1, 1, wait, "MS", "time goes on by that many milliseconds"},
    {"poke", 2, kMany, poke, "ADDRESS BYTE...", "writes bytes into chip memory"},
    {"set", 2, 2, set, "NAME VALUE", "writes a shared variable"},
    {"random", 1, kMany, random, "U...", "the next numbers that chance draws, from 0 to 1"},
};

}  // namespace

CommandGroup settingUpCommands() {
  return kSettingUp;
}

}  // namespace zelvs
