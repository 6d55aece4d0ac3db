// The mouse and the keyboard themselves: they go to whatever lies there, and nothing is refused them.

#include <array>
#include <utility>

#include "script/commands.h"
#include "script/names.h"
#include "text/utf8.h"

namespace zelvs {

namespace {

constexpr std::array<std::pair<std::string_view, int>, 14> kKeyNames = {{
    {"Backspace", key::kBackspace},
    {"Tab", key::kTab},
    {"Enter", key::kEnter},
    {"Escape", key::kEscape},
    {"Space", key::kSpace},
    {"PageUp", key::kPageUp},
    {"PageDown", key::kPageDown},
    {"End", key::kEnd},
    {"Home", key::kHome},
    {"Left", key::kLeft},
    {"Up", key::kUp},
    {"Right", key::kRight},
    {"Down", key::kDown},
    {"Delete", key::kDelete},
}};

bool takePrefix(std::string_view& text, std::string_view prefix) {
  // "+" alone is a key too.
  if (!text.starts_with(prefix) || text.size() == prefix.size()) return false;
  text.remove_prefix(prefix.size());
  return true;
}

/// One character: a digit or letter has a key code as well.
void takeCharacter(Key& key, char32_t character) {
  const bool small = character >= U'a' && character <= U'z';
  const bool known = small || (character >= U'A' && character <= U'Z') || (character >= U'0' && character <= U'9');
  if (known) key.code = static_cast<int>(small ? character - U'a' + U'A' : character);
  if (character == U' ') key.code = key::kSpace;
  if (!key.control && !key.alt) key.character = character;
}

/// "a", "Tab", "ctrl+Left", "shift+F2". Nothing for a name that no key has.
std::optional<Key> keyNamed(std::string_view name) {
  Key key;
  for (bool more = true; more;) {
    more = false;
    for (const auto& [prefix, held] : {std::pair<std::string_view, bool Key::*>{"ctrl+", &Key::control},
                                       {"alt+", &Key::alt},
                                       {"shift+", &Key::shift}}) {
      if (!takePrefix(name, prefix)) continue;
      key.*held = true;
      more = true;
    }
  }
  for (const auto& [known, code] : kKeyNames) {
    if (known != name) continue;
    key.code = code;
    if (code == key::kSpace && !key.control && !key.alt) key.character = U' ';
    return key;
  }
  constexpr int kFunctionKeys = 12;
  const auto number = name.starts_with('F') ? smallNumber(name.substr(1)) : std::nullopt;
  if (number && *number >= 1 && *number <= kFunctionKeys) {
    key.code = key::kF1 + *number - 1;
    return key;
  }
  const std::u32string characters = charactersOf(name);
  if (characters.size() != 1) return std::nullopt;
  takeCharacter(key, characters[0]);
  return key;
}

/// Where the hand goes: a place of the screen in pixels, or the middle of what is named.
std::string placeFor(Conversation& with, const Words& words, Point& place) {
  if (const auto x = smallNumber(words[1])) {
    const auto y = words.size() > 2 ? smallNumber(words[2]) : std::nullopt;
    if (!y) return words.size() > 2 ? noNumber(words[2]) : words[0] + ": too few words";
    place = {*x, *y};
    return {};
  }
  Target target;
  std::string why = findTarget(words[1], target);
  if (!why.empty()) return why;
  std::optional<int> row;
  if (words.size() > 2) {
    row = smallNumber(words[2]);
    if (!row) return noNumber(words[2]);
    if (target.control == nullptr) return "not a control: " + words[1];
  }
  const auto found = with.hands.placeOf(*target.form, target.control, row);
  if (!found) return target.control->fullName() + " has no row " + std::to_string(*row);
  place = *found;
  return {};
}

std::string move(Conversation& with, const Words& words) {
  Point place;
  std::string why = placeFor(with, words, place);
  if (!why.empty()) return why;
  with.platform.setPointer(place);
  // A message box shuts the mouse out of all that lies around it.
  if (with.boxes.empty()) with.hands.handMove(place);
  return {};
}

template <void (Hands::*button)()>
std::string push(Conversation& with, const Words&) {
  if (with.boxes.empty()) (with.hands.*button)();
  return {};
}

/// Enter and Escape push the buttons of a message box; it has no other keys.
void keyInBox(MessageBox& box, const Key& key) {
  if (key.code == key::kEnter) box.answer = true;
  if (key.code == key::kEscape) box.answer = box.buttons == MessageButtons::Ok;
}

std::string pressKey(Conversation& with, const Words& words) {
  const auto key = keyNamed(words[1]);
  if (!key) return "no such key: " + words[1];
  if (with.boxes.empty()) {
    with.hands.handKey(*key);
  } else {
    keyInBox(with.boxes.back(), *key);
  }
  return {};
}

constexpr Command kRawHands[] = {
    {"hand move", 1, 2, move, "X/TARGET [Y/ROW]",
     "moves the mouse to a place of the screen, or to the middle of something"},
    {"hand down", 0, 0, push<&Hands::handDown>, "", "the left button goes down, over whatever lies there"},
    {"hand up", 0, 0, push<&Hands::handUp>, "", "the left button goes up"},
    {"hand key", 1, 1, pressKey, "NAME", "presses a key for whatever has the keyboard"},
};

}  // namespace

CommandGroup rawHandCommands() {
  return kRawHands;
}

}  // namespace zelvs
