#include "ui/gesture.h"

#include <algorithm>

#include "text/utf8.h"
#include "ui/desk.h"
#include "ui/form.h"
#include "ui/textExtent.h"

namespace zelvs::gesture {

namespace {

/// The press that a click is still waiting for its release of.
struct Held {
  const Form* form = nullptr;
  const Control* control = nullptr;
  friend bool operator==(const Held&, const Held&) = default;
};
Held theHeld;

void call(const std::function<void()>& handler) {
  if (handler) handler();
}

bool isOpenList(const Control* control) {
  return control != nullptr && control->kind() == ControlKind::ComboBox &&
         static_cast<const ComboBox*>(control)->Unrolled;
}

std::string turnTo(Form& form, Control* control) {
  std::string why = refusal(form, control);
  if (!why.empty()) return why;
  desk().activate(form);
  if (control != nullptr && control->takesFocus()) {
    desk().focus(control);
  } else if (isOpenList(desk().focused())) {
    // A list that lies open closes at a press beside it, also where nothing else can take the focus.
    desk().focus(nullptr);
  }
  return {};
}

/// Where a click in the middle of a field puts the caret.
int caretInTheMiddle(const TextBox& text) {
  constexpr double kMargin = 5 * kTwipsPerPixel;
  const double middle = text.area().width / 2 - kMargin;
  double left = 0;
  int caret = 0;
  for (const char32_t character : charactersOf(text.Text.get())) {
    const double width = textWidth(textOf({&character, 1}), text.FontSize);
    if (left + width / 2 > middle) break;
    left += width;
    ++caret;
  }
  return caret;
}

void clicked(Form& form, Control* control) {
  if (control == nullptr) {
    form.click();
    return;
  }
  switch (control->kind()) {
    case ControlKind::CheckBox: {
      auto& box = static_cast<CheckBox&>(*control);
      box.Value = box.Value == 0 ? 1 : 0;
      break;
    }
    case ControlKind::OptionButton:
      static_cast<OptionButton&>(*control).Value = true;
      control->markChanged();  // a view that lets go of the chosen one has to take it back
      break;
    case ControlKind::TextBox: {
      auto& text = static_cast<TextBox&>(*control);
      gesture::placeCaret(text, caretInTheMiddle(text), 0);
      break;
    }
    default:
      call(control->onClick);
  }
}

void edit(TextBox& text, const std::u32string& characters, int caret) {
  text.SelStart = caret;
  text.SelLength = 0;
  const std::string next = textOf(characters);
  // Typing a character over its like is a change too: the field's own rules hang on it.
  if (text.Text == next) {
    if (text.onChange) text.onChange();
  } else {
    text.Text = next;
  }
}

void erase(TextBox& text, int from, int count) {
  std::u32string characters = charactersOf(text.Text.get());
  const int length = static_cast<int>(characters.size());
  if (from < 0 || from >= length || count < 1) return;
  characters.erase(static_cast<std::size_t>(from), static_cast<std::size_t>(count));
  edit(text, characters, from);
}

void insert(TextBox& text, char32_t character) {
  std::u32string characters = charactersOf(text.Text.get());
  const auto start = static_cast<std::size_t>(text.SelStart.get());
  const auto length = static_cast<std::size_t>(text.SelLength.get());
  if (text.MaxLength > 0 && characters.size() - length >= static_cast<std::size_t>(text.MaxLength.get())) return;
  characters.replace(start, length, 1, character);
  edit(text, characters, text.SelStart + 1);
}

void keyPress(TextBox& text, char32_t character) {
  if (text.onKeyPress) text.onKeyPress(character);
  if (character == key::kBackspace) {
    if (text.SelLength > 0) {
      erase(text, text.SelStart, text.SelLength);
    } else {
      erase(text, text.SelStart - 1, 1);
    }
  } else if (character >= U' ') {
    insert(text, character);
  }
}

void moveCaret(TextBox& text, int to) {
  const int length = static_cast<int>(charactersOf(text.Text.get()).size());
  text.SelLength = 0;
  text.SelStart = std::clamp(to, 0, length);
}

/// What a field does by itself with a key that no handler has swallowed.
void editKey(TextBox& text, int code) {
  switch (code) {
    case key::kLeft:
      moveCaret(text, text.SelLength > 0 ? text.SelStart.get() : text.SelStart - 1);
      break;
    case key::kRight:
      moveCaret(text, text.SelLength > 0 ? text.SelStart + text.SelLength : text.SelStart + 1);
      break;
    case key::kHome:
      moveCaret(text, 0);
      break;
    case key::kEnd:
      moveCaret(text, static_cast<int>(text.Text.get().size()));
      break;
    case key::kDelete:
      erase(text, text.SelStart, std::max<int>(1, text.SelLength));
      break;
    default:
      break;
  }
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

CommandButton* defaultButton(const Form& form) {
  for (Control* control : form.controls()) {
    if (control->kind() != ControlKind::CommandButton) continue;
    auto& button = static_cast<CommandButton&>(*control);
    if (button.Default && button.shown() && button.usable()) return &button;
  }
  return nullptr;
}

void pickRow(Control& control, int row) {
  if (control.kind() == ControlKind::TabStrip) {
    static_cast<TabStrip&>(control).Tab = row;
    return;
  }
  auto& list = static_cast<ListControl&>(control);
  if (list.ListIndex == row) {
    call(list.onClick);
  } else {
    list.ListIndex = row;
  }
}

int rowCount(const Control& control) {
  switch (control.kind()) {
    case ControlKind::TabStrip:
      return static_cast<const TabStrip&>(control).Tabs;
    case ControlKind::ComboBox:
    case ControlKind::ListBox:
      return static_cast<const ListControl&>(control).ListCount();
    default:
      return 0;
  }
}

int rowOf(const Control& control) {
  return control.kind() == ControlKind::TabStrip ? static_cast<const TabStrip&>(control).Tab.get()
                                                 : static_cast<const ListControl&>(control).ListIndex.get();
}

void stepRow(Control& control, int code) {
  const int last = rowCount(control) - 1;
  const int next = rowOf(control) + (code == key::kDown || code == key::kRight ? 1 : -1);
  if (next >= 0 && next <= last) pickRow(control, next);
}

/// In an open list the arrows only move the mark: a row that was picked would close it.
void markRow(ComboBox& list, int code) {
  if (code == key::kEnter) {
    if (list.Marked >= 0) pickRow(list, list.Marked);
  } else if (code == key::kUp) {
    list.Marked = std::max(list.Marked - 1, 0);
  } else if (code == key::kDown) {
    list.Marked = std::min(list.Marked + 1, list.ListCount() - 1);
  }
}

}  // namespace

std::string refusal(const Form& form, const Control* control) {
  const Form* modal = desk().modal();
  if (modal != nullptr && modal != &form) return modal->name() + " is modal";
  if (!form.visible()) return form.name() + " is not visible";
  if (control == nullptr) return {};
  if (control->kind() == ControlKind::Timer || control->kind() == ControlKind::Sound) {
    return control->fullName() + " has no face";
  }
  if (!control->shown()) return control->fullName() + " is not visible";
  if (!control->usable()) return control->fullName() + " is not enabled";
  return {};
}

std::string press(Form& form, Control* control) {
  const Desk::Event event;
  std::string why = turnTo(form, control);
  if (!why.empty()) return why;
  theHeld = {&form, control};
  if (control != nullptr) call(control->onMouseDown);
  return {};
}

std::string release(Form& form, Control* control, bool inside) {
  // A release does not turn the user back to a form that the press has just opened another one over.
  const Desk::Event event;
  std::string why = refusal(form, control);
  const bool held = theHeld == Held{&form, control};
  theHeld = {};
  if (!why.empty()) return why;
  if (control != nullptr) call(control->onMouseUp);
  if (held && inside) clicked(form, control);
  return {};
}

std::string pressAgain(Form& form, Control* control) {
  if (control == nullptr || !control->onDblClick) return press(form, control);
  const Desk::Event event;
  std::string why = turnTo(form, control);
  if (!why.empty()) return why;
  theHeld = {};
  control->onDblClick();
  return {};
}

std::string move(Form& form, Control* control) {
  const Desk::Event event;
  std::string why = refusal(form, control);
  if (why.empty() && control != nullptr) call(control->onMouseMove);
  return why;
}

std::string click(Form& form, Control* control) {
  const Desk::Event event;
  std::string why = press(form, control);
  if (!why.empty()) return why;
  // The press may have taken the control away: then there is nothing left to release.
  if (refusal(form, control).empty()) {
    release(form, control);
  } else {
    theHeld = {};
  }
  return {};
}

std::string doubleClick(Form& form, Control* control, bool lastRelease) {
  const Desk::Event event;
  std::string why = click(form, control);
  if (!why.empty() || !refusal(form, control).empty()) return why;
  pressAgain(form, control);
  if (lastRelease && refusal(form, control).empty()) release(form, control);
  return {};
}

std::string pick(Control& control, int row) {
  const Desk::Event event;
  std::string why = refusal(control.form(), &control);
  if (!why.empty()) return why;
  if (row < 0 || row >= rowCount(control)) return control.fullName() + " has no row " + std::to_string(row);
  turnTo(control.form(), &control);
  pickRow(control, row);
  return {};
}

std::string placeCaret(TextBox& text, int start, int length) {
  const Desk::Event event;
  std::string why = turnTo(text.form(), &text);
  if (!why.empty()) return why;
  const int last = static_cast<int>(charactersOf(text.Text.get()).size());
  text.SelStart = std::clamp(start, 0, last);
  text.SelLength = std::clamp(length, 0, last - text.SelStart);
  call(text.onClick);
  return {};
}

std::string focus(Control& control) {
  std::string why = refusal(control.form(), &control);
  if (!why.empty()) return why;
  if (!control.takesFocus()) return control.fullName() + " cannot have the focus";
  return turnTo(control.form(), &control);
}

std::string type(Control& control, char32_t character) {
  const Desk::Event event;
  std::string why = focus(control);
  if (!why.empty()) return why;
  if (control.kind() != ControlKind::TextBox) return control.fullName() + " takes no text";
  keyPress(static_cast<TextBox&>(control), character);
  return {};
}

std::string keyDown(Control& control, int code) {
  const Desk::Event event;
  std::string why = focus(control);
  if (!why.empty()) return why;
  if (control.onKeyDown) control.onKeyDown(code);
  if (code == 0) return {};
  CommandButton* button = control.kind() == ControlKind::CommandButton ? &static_cast<CommandButton&>(control)
                                                                       : defaultButton(control.form());
  if (code == key::kEnter && button != nullptr) {
    clicked(control.form(), button);
    return {};
  }
  switch (control.kind()) {
    case ControlKind::TextBox: {
      auto& text = static_cast<TextBox&>(control);
      editKey(text, code);
      if (characterOf(code) != 0) keyPress(text, characterOf(code));
      break;
    }
    case ControlKind::ComboBox:
      if (isOpenList(&control)) {
        markRow(static_cast<ComboBox&>(control), code);
        break;
      }
      [[fallthrough]];
    case ControlKind::ListBox:
    case ControlKind::TabStrip:
      if (code >= key::kLeft && code <= key::kDown) stepRow(control, code);
      break;
    case ControlKind::CommandButton:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      if (code == key::kSpace) clicked(control.form(), &control);
      break;
    default:
      break;
  }
  return {};
}

std::string close(Form& form) {
  const Desk::Event event;
  std::string why = turnTo(form, nullptr);
  if (!why.empty()) return why;
  if (!form.hasCloseBox()) return form.name() + " has no close box";
  form.close(true);
  return {};
}

std::string activate(Form& form) {
  return turnTo(form, nullptr);
}

}  // namespace zelvs::gesture
