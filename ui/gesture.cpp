#include "ui/gesture.h"

#include <algorithm>
#include <utility>

#include "text/utf8.h"
#include "ui/desk.h"
#include "ui/form.h"
#include "ui/listRows.h"
#include "ui/runTimeError.h"
#include "ui/textExtent.h"

namespace zelvs::gesture {

namespace {

void call(const std::function<void()>& handler) {
  if (handler) handler();
}

void letUp(const Control* control) {
  if (control == nullptr) return;
  const Deed deed("releasing", *control);
  call(control->onMouseUp);
}

int caretInTheMiddle(const TextBox& text) {
  return caretAt(text, text.area().width / 2);
}

}  // namespace

int caretAt(const TextBox& text, double x) {
  constexpr double kMargin = 5 * kTwipsPerPixel;
  double left = kMargin;
  int caret = 0;
  for (const char32_t character : charactersOf(text.Text.get())) {
    const double width = textWidth(textOf({&character, 1}), text.FontSize);
    if (left + width / 2 > x) break;
    left += width;
    ++caret;
  }
  return caret;
}

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

void pressed(Form& form, Control* control) {
  const Deed deed("pressing", form, control);
  desk().pressed = {&form, control};
  if (control != nullptr) call(control->onMouseDown);
}

void pressedAgain(Form& form, Control* control) {
  if (!actsOnDoubleClick(control)) {
    pressed(form, control);
    return;
  }
  const Deed deed("double-clicking", *control);
  desk().pressed = {};
  control->onDblClick();
}

void letGo(const Control* control) {
  desk().pressed = {};
  letUp(control);
}

bool actsOnDoubleClick(const Control* control) {
  return control != nullptr && control->onDblClick != nullptr;
}

void clicked(Form& form, Control* control) {
  const Deed deed("clicking", form, control);
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
      placeCaret(text, caretInTheMiddle(text), 0);
      break;
    }
    default:
      call(control->onClick);
  }
}

std::string press(Form& form, Control* control) {
  const Desk::Event event;
  std::string why = turnTo(form, control);
  if (why.empty()) pressed(form, control);
  return why;
}

std::string release(Form& form, Control* control, bool inside) {
  // A release does not turn the user back to a form that the press has just opened another one over.
  const Desk::Event event;
  std::string why = refusal(form, control);
  const bool held = std::exchange(desk().pressed, {}) == Hand::Target{&form, control};
  if (!why.empty()) return why;
  letUp(control);
  if (held && inside) clicked(form, control);
  return {};
}

std::string pressAgain(Form& form, Control* control) {
  const Desk::Event event;
  std::string why = turnTo(form, control);
  if (why.empty()) pressedAgain(form, control);
  return why;
}

std::string move(Form& form, Control* control) {
  const Desk::Event event;
  const Deed deed("moving over", form, control);
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
    desk().pressed = {};
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
  const Deed deed("picking a row of", control);
  std::string why = refusal(control.form(), &control);
  if (!why.empty()) return why;
  if (row < 0 || row >= rowCountOf(control)) return control.fullName() + " has no row " + std::to_string(row);
  turnTo(control.form(), &control);
  pickRow(control, row);
  return {};
}

std::string placeCaret(TextBox& text, int start, int length) {
  const Desk::Event event;
  const Deed deed("clicking into", text);
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

std::string close(Form& form) {
  const Desk::Event event;
  const Deed deed("closing", form);
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
