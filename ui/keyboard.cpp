#include "ui/keyboard.h"

#include <algorithm>
#include <string>
#include <vector>

#include "ui/desk.h"
#include "ui/form.h"
#include "ui/gesture.h"
#include "ui/listRows.h"
#include "ui/runTimeError.h"
#include "ui/tabOrder.h"
#include "ui/textEditing.h"

namespace zelvs {

namespace {

std::vector<CommandButton*> buttonsOf(const Form& form) {
  std::vector<CommandButton*> buttons;
  for (Control* control : form.controls()) {
    if (control->kind() == ControlKind::CommandButton && control->shown()) {
      buttons.push_back(static_cast<CommandButton*>(control));
    }
  }
  return buttons;
}

CommandButton* buttonWith(const Form& form, Property<bool> CommandButton::*role) {
  for (CommandButton* button : buttonsOf(form)) {
    if (button->*role && button->usable()) return button;
  }
  return nullptr;
}

/// The character that a key types without Shift; 0 for a key that types none.
char32_t characterOf(int code) {
  const bool digit = code >= '0' && code <= '9';
  const bool letter = code >= 'A' && code <= 'Z';
  if (letter) return static_cast<char32_t>(code - 'A' + 'a');
  if (digit || code == key::kBackspace || code == key::kEnter || code == key::kEscape || code == key::kSpace) {
    return static_cast<char32_t>(code);
  }
  return 0;
}

bool isArrow(int code) {
  return code >= key::kLeft && code <= key::kDown;
}

void moveFocus(Form& form, bool backwards) {
  const Control* from = desk().focused() != nullptr ? desk().focused() : form.activeControl();
  if (Control* next = nextInTabOrder(form, from, backwards)) desk().focus(next);
}

/// In an open list the keys only move the mark: a row that was picked would close it.
void markRow(ComboBox& list, int code, char32_t character) {
  if (code == key::kEnter) {
    if (list.Marked >= 0) pickRow(list, list.Marked);
  } else {
    list.Marked = rowByKey(list, list.Marked, code, character);
  }
}

void stepRow(Control& control, int code, char32_t character) {
  const int next = rowByKey(control, selectedRowOf(control), code, character);
  if (next != selectedRowOf(control)) pickRow(control, next);
}

void pushOrStep(Control& control, int code) {
  if (code == key::kSpace) {
    gesture::clicked(control.form(), &control);
  } else if (isArrow(code)) {
    moveFocus(control.form(), code == key::kLeft || code == key::kUp);
  }
}

/// The key as the control alone takes it.
void keyInControl(Control& control, int code, char32_t character) {
  switch (control.kind()) {
    case ControlKind::TextBox: {
      auto& text = static_cast<TextBox&>(control);
      editByKey(text, code);
      if (character != 0) typeInto(text, character);
      break;
    }
    case ControlKind::ComboBox:
      if (isOpenList(&control)) {
        markRow(static_cast<ComboBox&>(control), code, character);
        break;
      }
      [[fallthrough]];
    case ControlKind::ListBox:
    case ControlKind::TabStrip:
      stepRow(control, code, character);
      break;
    case ControlKind::CommandButton:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      pushOrStep(control, code);
      break;
    default:
      break;
  }
}

/// Enter and Escape are the window's before they are the control's, but a field's Escape is its own.
bool keyOfWindow(Control& control, int code) {
  Form& form = control.form();
  if (code == key::kEnter) {
    CommandButton* button = answersEnter(form);
    if (button != nullptr) gesture::clicked(form, button);
    return button != nullptr;
  }
  return code == key::kEscape && control.kind() != ControlKind::TextBox && leaveByEscape(form);
}

void keyForControl(Control& control, int code, char32_t character) {
  const Deed deed("taking a key in", control);
  if (control.onKeyDown) control.onKeyDown(code);
  if (code == 0 || !control.form().visible() || keyOfWindow(control, code)) return;
  keyInControl(control, code, character);
}

/// A field takes every key but those with Control or Alt that it has no use for.
bool keyInText(TextBox& text, const Key& key) {
  if (key.alt) return false;
  if (!key.control) {
    if (key.character >= U' ') {
      typeInto(text, key.character);
    } else {
      keyForControl(text, key.code, characterOf(key.code));
    }
    return true;
  }
  const bool moves =
      key.code == key::kLeft || key.code == key::kRight || key.code == key::kHome || key.code == key::kEnd;
  if (moves) keyForControl(text, key.code, 0);
  if (key.code == 'A') keyForControl(text, key::kHome, 0);
  return moves || key.code == 'A';
}

}  // namespace

CommandButton* answersEnter(const Form& form) {
  const Control* focused =
      desk().focused() != nullptr && &desk().focused()->form() == &form ? desk().focused() : form.activeControl();
  if (focused != nullptr && focused->kind() == ControlKind::CommandButton && focused->shown() && focused->usable()) {
    return static_cast<CommandButton*>(const_cast<Control*>(focused));
  }
  const bool kept =
      focused != nullptr && focused->kind() == ControlKind::TextBox && static_cast<const TextBox*>(focused)->KeepsEnter;
  return kept ? nullptr : buttonWith(form, &CommandButton::Default);
}

bool leaveByEscape(Form& form) {
  if (form.kind() == FormKind::Frame) return false;
  CommandButton* button = buttonWith(form, &CommandButton::Cancel);
  const std::vector<CommandButton*> buttons = buttonsOf(form);
  if (button == nullptr && !form.hasCloseBox() && buttons.size() == 1 && buttons[0]->usable()) button = buttons[0];
  if (button != nullptr) {
    gesture::clicked(form, button);
    return true;
  }
  return form.hasCloseBox() && gesture::close(form).empty();
}

bool keyInForm(Form& form, const Key& key) {
  if (!gesture::refusal(form, nullptr).empty()) return false;
  if (key.code == key::kTab && !key.control && !key.alt) {
    moveFocus(form, key.shift);
    return true;
  }
  Control* control = desk().focused();
  if (control != nullptr && &control->form() == &form) {
    if (control->kind() == ControlKind::TextBox) return keyInText(static_cast<TextBox&>(*control), key);
    if (key.control || key.alt) return false;
    keyForControl(*control, key.code, key.character);
    return true;
  }
  if (key.control || key.alt) return false;
  if (key.code == key::kEscape) return leaveByEscape(form);
  CommandButton* button = key.code == key::kEnter ? answersEnter(form) : nullptr;
  if (button != nullptr) gesture::clicked(form, button);
  return button != nullptr;
}

std::string gesture::type(Control& control, char32_t character) {
  const Desk::Event event;
  std::string why = focus(control);
  if (!why.empty()) return why;
  if (control.kind() != ControlKind::TextBox) return control.fullName() + " takes no text";
  typeInto(static_cast<TextBox&>(control), character);
  return {};
}

std::string gesture::keyDown(Control& control, int code) {
  const Desk::Event event;
  std::string why = focus(control);
  if (why.empty()) keyForControl(control, code, characterOf(code));
  return why;
}

}  // namespace zelvs
