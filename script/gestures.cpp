// What a user's hands do.

#include "script/commands.h"
#include "script/names.h"
#include "text/utf8.h"

namespace zelvs {

namespace {

/// Finds what a gesture is made at; the result tells why no hand gets there.
std::string reach(const Conversation& with, const std::string& text, Target& target) {
  std::string why = findTarget(text, target);
  if (!why.empty()) return why;
  if (!with.boxes.empty()) return "the message box " + quoted(with.boxes.back().title) + " is open";
  return gesture::refusal(*target.form, target.control);
}

/// A gesture at a form or a control.
template <std::string (Hands::*hand)(Form&, Control*)>
std::string atTarget(Conversation& with, const Words& words) {
  Target target;
  std::string why = reach(with, words[1], target);
  return why.empty() ? (with.hands.*hand)(*target.form, target.control) : why;
}

/// A gesture at a form alone.
template <std::string (Hands::*hand)(Form&)>
std::string atForm(Conversation& with, const Words& words) {
  Target target;
  std::string why = reach(with, words[1], target);
  if (!why.empty()) return why;
  if (target.control != nullptr) return "not a form: " + words[1];
  return (with.hands.*hand)(*target.form);
}

/// A gesture at a control alone.
template <std::string (*action)(Conversation&, Control&, const Words&)>
std::string atControl(Conversation& with, const Words& words) {
  Target target;
  std::string why = reach(with, words[1], target);
  if (!why.empty()) return why;
  if (target.control == nullptr) return "not a control: " + words[1];
  return action(with, *target.control, words);
}

template <bool lastRelease>
std::string doubleClick(Conversation& with, const Words& words) {
  Target target;
  std::string why = reach(with, words[1], target);
  return why.empty() ? with.hands.doubleClick(*target.form, target.control, lastRelease) : why;
}

/// The centre of a target on the screen, in pixels.
Point centreOf(const Target& target) {
  const Form& form = *target.form;
  const Area inside{0, 0, form.clientWidth(), form.clientHeight()};
  const Area area = target.control != nullptr ? target.control->area() : inside;
  return {static_cast<int>((form.insideLeft() + area.left + area.width / 2) / kTwipsPerPixel),
          static_cast<int>((form.insideTop() + area.top + area.height / 2) / kTwipsPerPixel)};
}

std::string move(Conversation& with, const Words& words) {
  Target target;
  std::string why = reach(with, words[1], target);
  if (!why.empty()) return why;
  with.platform.setPointer(centreOf(target));
  return with.hands.move(*target.form, target.control);
}

std::string pointer(Conversation& with, const Words& words) {
  const auto x = smallNumber(words[1]);
  const auto y = smallNumber(words[2]);
  if (!x || !y) return noNumber(x ? words[2] : words[1]);
  with.platform.setPointer({*x, *y});
  return {};
}

std::string select(Conversation& with, Control& control, const Words& words) {
  const auto row = smallNumber(words[2]);
  return row ? with.hands.pick(control, *row) : noNumber(words[2]);
}

std::string focus(Conversation& with, Control& control, const Words&) {
  return with.hands.focus(control);
}

std::string type(Conversation& with, Control& control, const Words& words) {
  std::string why = with.hands.focus(control);
  for (const char32_t character : charactersOf(words[2])) {
    if (why.empty()) why = with.hands.type(control, character);
  }
  return why;
}

std::string pressKey(Conversation& with, Control& control, const Words& words) {
  const auto code = smallNumber(words[2]);
  return code ? with.hands.keyDown(control, *code) : noNumber(words[2]);
}

std::string answer(Conversation& with, const Words& words) {
  if (with.boxes.empty()) return "no message box is open";
  const bool cancel = words[1] == "cancel";
  if (!cancel && words[1] != "ok") return "no such button: " + words[1];
  MessageBox& box = with.boxes.back();
  if (cancel && box.buttons == MessageButtons::Ok) return "the message box has no cancel";
  box.answer = !cancel;
  return {};
}

constexpr Command kGestures[] = {
    {"click", 1, 1, atTarget<&Hands::click>, "TARGET", "the mouse button goes down and up: a click"},
    {"dblclick", 1, 1, doubleClick<true>, "TARGET", "two clicks that are one double click"},
    {"dblpress", 1, 1, doubleClick<false>, "TARGET", "the same, with the button still down at the end"},
    {"press", 1, 1, atTarget<&Hands::press>, "TARGET", "the mouse button goes down"},
    {"release", 1, 1, atTarget<&Hands::release>, "TARGET", "the mouse button goes up"},
    {"move", 1, 1, move, "TARGET", "the pointer moves to the middle of the target"},
    {"pointer", 2, 2, pointer, "X Y", "the pointer is put at a place on the screen, in pixels"},
    {"select", 2, 2, atControl<select>, "TARGET N", "picks row N (from 0) of a list, or tab N"},
    {"focus", 1, 1, atControl<focus>, "TARGET", "the control takes the focus"},
    {"type", 2, 2, atControl<type>, "TARGET TEXT", "types the text into a field, key by key"},
    {"key", 2, 2, atControl<pressKey>, "TARGET CODE", "presses one key, given by its code"},
    {"close", 1, 1, atForm<&Hands::close>, "FORM", "presses the close box of a window"},
    {"activate", 1, 1, atForm<&Hands::activate>, "FORM", "turns to a window"},
    {"answer", 1, 1, answer, "BUTTON", "presses `ok` or `cancel` of the open message box"},
};

}  // namespace

CommandGroup gestureCommands() {
  return kGestures;
}

}  // namespace zelvs
