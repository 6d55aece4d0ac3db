// What a script claims: "ok", or "FAILED" with what is so instead.

#include <ostream>
#include <span>

#include "script/commands.h"
#include "script/names.h"

namespace zelvs {

namespace {

std::string judge(Conversation& with, const std::string& what, bool held, const std::string& expected,
                  const std::string& is) {
  if (held) {
    with.out << "ok\n";
  } else {
    with.out << "FAILED " << what << ": expected " << expected << ", is " << is << '\n';
    ++with.failures;
  }
  return {};
}

std::string wrongCount(const Words& words) {
  if (words.size() == 3) return {};
  return words.size() < 3 ? "expect: too few words" : "expect: too many words";
}

std::string expectError(Conversation& with, const Words& words) {
  if (words.size() != 2) return "expect error: too many words";
  const bool refused = with.lastRefused;
  if (refused) --with.refusals;
  with.lastRefused = false;
  return judge(with, "error", refused, "a refusal", "none");
}

/// Bytes are compared as peek prints them.
std::string expectBytes(Conversation& with, const Words& words) {
  if (words.size() < 4) return "expect peek: too few words";
  const std::span<const std::string> bytes(words.begin() + 3, words.end());
  int first = 0;
  std::string why = findBytes(words[2], static_cast<std::int64_t>(bytes.size()), first);
  if (!why.empty()) return why;
  std::string expected;
  for (std::size_t i = 0; i < bytes.size(); ++i)
    expected += (i == 0 ? "" : " ") + bytes[i];
  const std::string is = bytesText(first, static_cast<int>(bytes.size()));
  return judge(with, "peek " + words[2], expected == is, expected, is);
}

std::string expectBox(Conversation& with, const Words& words) {
  std::string why = wrongCount(words);
  if (!why.empty()) return why;
  const bool open = !with.boxes.empty();
  const std::string text = open ? with.boxes.back().text : "none";
  return judge(with, "box", open && words[2] == text, quoted(words[2]), quoted(text));
}

/// A number is compared as a number however it is written, all else as text without quotes and escapes.
std::string judgeValue(Conversation& with, const Words& words, const Value& value) {
  const std::string& wanted = words[2];
  const auto number = anyNumber(wanted);
  const bool held = value.kind == Value::Kind::Number && number ? *number == value.number : wanted == value.plain();
  const bool text = value.kind == Value::Kind::Text;
  return judge(with, words[1], held, text ? quoted(wanted) : wanted, value.printed());
}

std::string expectBeeps(Conversation& with, const Words& words) {
  std::string why = wrongCount(words);
  return why.empty() ? judgeValue(with, words, Value::ofNumber(with.platform.beeps())) : why;
}

std::string expectValue(Conversation& with, const Words& words) {
  Value value;
  std::string why = wrongCount(words);
  if (why.empty()) why = look(words[1], value);
  return why.empty() ? judgeValue(with, words, value) : why;
}

/// What can be expected that get does not look at.
constexpr std::pair<std::string_view, Command::Action> kKinds[] = {
    {"error", expectError},
    {"peek", expectBytes},
    {"box", expectBox},
    {"beeps", expectBeeps},
};

std::string expect(Conversation& with, const Words& words) {
  for (const auto& [name, kind] : kKinds) {
    if (name == words[1]) return kind(with, words);
  }
  return expectValue(with, words);
}

constexpr Command kExpectations[] = {
    {"expect", 1, kMany, expect, "WHAT [VALUE...]", "prints `ok` when it is so, else `FAILED` and what is"},
};

}  // namespace

CommandGroup expectationCommands() {
  return kExpectations;
}

}  // namespace zelvs
