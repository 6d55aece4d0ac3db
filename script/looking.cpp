// What shows how things stand and changes nothing.

#include <ostream>

#include "script/commands.h"
#include "script/names.h"
#include "text/hexText.h"
#include "ui/desk.h"

namespace zelvs {

namespace {

std::string get(Conversation& with, const Words& words) {
  for (std::size_t i = 1; i < words.size(); ++i) {
    Value value;
    std::string why = look(words[i], value);
    if (!why.empty()) return why;
    with.out << words[i] << " = " << value.printed() << '\n';
  }
  return {};
}

std::string peek(Conversation& with, const Words& words) {
  const auto count = words.size() > 2 ? wholeNumber(words[2]) : 1;
  if (!count) return noNumber(words[2]);
  int first = 0;
  std::string why = findBytes(words[1], *count, first);
  if (!why.empty()) return why;
  with.out << "0x" << hexText(static_cast<unsigned>(first), 3) << ": " << bytesText(first, static_cast<int>(*count))
           << '\n';
  return {};
}

std::string forms(Conversation& with, const Words&) {
  for (const Form* form : desk().forms()) {
    with.out << form->name() << (form->visible() ? " visible" : " hidden") << (form->modal() ? " modal" : "")
             << (desk().active() == form ? " active" : "") << '\n';
  }
  return {};
}

std::string controls(Conversation& with, const Words& words) {
  Form* form = nullptr;
  std::string why = findForm(words[1], form);
  if (!why.empty()) return why;
  for (const Control* control : form->controls()) {
    with.out << control->fullName().substr(form->name().size() + 1) << " " << kindName(control->kind()) << '\n';
  }
  return {};
}

std::string box(Conversation& with, const Words&) {
  if (with.boxes.empty()) {
    with.out << "none\n";
    return {};
  }
  const MessageBox& open = with.boxes.back();
  const bool both = open.buttons == MessageButtons::OkCancel;
  with.out << open.title << " | " << open.text << " | " << (both ? "ok cancel" : "ok") << '\n';
  return {};
}

std::string beeps(Conversation& with, const Words&) {
  with.out << "beeps = " << with.platform.beeps() << '\n';
  return {};
}

std::string now(Conversation& with, const Words&) {
  with.out << "now = " << desk().clock.now() << '\n';
  return {};
}

std::string echo(Conversation& with, const Words& words) {
  for (std::size_t i = 1; i < words.size(); ++i)
    with.out << (i == 1 ? "" : " ") << words[i];
  with.out << '\n';
  return {};
}

std::string screenshot(Conversation& with, const Words& words) {
  if (words[1] == "all") return with.hands.screenshot(nullptr, words[2]);
  Form* form = nullptr;
  std::string why = findForm(words[1], form);
  if (why.empty() && !form->visible()) why = form->name() + " is not visible";
  return why.empty() ? with.hands.screenshot(form, words[2]) : why;
}

constexpr Command kLooking[] = {
    {"get", 1, kMany, get, "WHAT...", "prints values"},
    {"peek", 1, 2, peek, "ADDRESS [COUNT]", "prints bytes of chip memory"},
    {"forms", 0, 0, forms, "", "lists the windows, front to back"},
    {"controls", 1, 1, controls, "FORM", "lists the controls of a window"},
    {"box", 0, 0, box, "", "prints the open message box"},
    {"beeps", 0, 0, beeps, "", "prints how often it has beeped"},
    {"now", 0, 0, now, "", "prints the clock, in milliseconds"},
    {"echo", 0, kMany, echo, "[TEXT...]", "prints the text"},
    {"screenshot", 2, 2, screenshot, "FORM FILE", "writes a picture of a window, or of `all`"},
};

}  // namespace

CommandGroup lookingCommands() {
  return kLooking;
}

}  // namespace zelvs
