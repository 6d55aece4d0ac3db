#include "ui/desk.h"

#include <algorithm>
#include <utility>

#include "ui/controls.h"
#include "ui/gesture.h"
#include "ui/platform.h"
#include "ui/runTimeError.h"
#include "ui/view.h"

namespace zelvs {

namespace {

/// Front to back; a form never leaves its layer.
int layerOf(const Form& form) {
  enum { kTopmost, kWindow, kFloatingChild, kChild, kFrame };
  if (form.kind() == FormKind::Frame) return kFrame;
  if (form.inFront()) return kTopmost;
  if (form.kind() == FormKind::Window) return kWindow;
  return form.floating() ? kFloatingChild : kChild;
}

/// Which button Enter pushes depends on who is active and who has the focus, and is seen on the button.
void markDefaultButton(const Form& form) {
  for (Control* control : form.controls()) {
    if (control->kind() == ControlKind::CommandButton && static_cast<CommandButton&>(*control).Default) {
      control->markChanged();
    }
  }
}

FormPlace& placeOf(const Form& form) {
  return *FormPlace::named(form.name());
}

bool within(const Control& control, const Control& holder) {
  for (const Control* at = &control; at != nullptr; at = at->container()) {
    if (at == &holder) return true;
  }
  return false;
}

}  // namespace

Desk& desk() {
  // Never destroyed: forms that live to the end of the program still take their timers out of it.
  static Desk& only = *new Desk;
  return only;
}

Desk::Event::Event() {
  ++desk().events_;
}

Desk::Event::~Event() {
  if (--desk().events_ == 0) desk().dropped_.clear();
}

Form* Desk::frame() const {
  return forms_.empty() || forms_.back()->kind() != FormKind::Frame ? nullptr : forms_.back();
}

void Desk::loaded(Form& form) {
  const auto behind =
      std::find_if(forms_.begin(), forms_.end(), [&](const Form* other) { return layerOf(*other) > layerOf(form); });
  forms_.insert(behind, &form);
}

void Desk::raiseWithOwned(Form& form) {
  std::erase(forms_, &form);
  const auto front =
      std::find_if(forms_.begin(), forms_.end(), [&](const Form* other) { return layerOf(*other) >= layerOf(form); });
  forms_.insert(front, &form);
  // What a window owns stays in front of it.
  const std::vector<Form*> order = forms_;
  for (auto at = order.rbegin(); at != order.rend(); ++at) {
    if ((*at)->owner() == &form && (*at)->visible() && layerOf(**at) == layerOf(form)) raiseWithOwned(**at);
  }
}

void Desk::raise(Form& form) {
  const std::vector<Form*> before = forms_;
  raiseWithOwned(form);
  if (forms_ != before) view().orderChanged();
}

void Desk::show(Form& form, ShowMode mode, Form* owner) {
  if (ended_) return;  // what runs on behind the end of the program shows nothing any more
  const Event event;
  if (mode == ShowMode::Modal && form.visible_) runTimeError(form.name() + " is visible and cannot be shown modally");
  form.owner_ = owner;
  if (form.kind() == FormKind::Child && !frame()->visible_) {
    frame()->visible_ = true;
    view().formShown(*frame());
  }
  const bool wasVisible = form.visible_;
  form.visible_ = true;
  form.modal_ = mode == ShowMode::Modal;
  if (form.modal_) {
    hand.lose();  // from here on the mouse is the modal window's
    modals_.push_back(&form);
    form.keepOnScreen();  // its buttons are the only way on
  }
  if (!wasVisible) view().formShown(form);
  fitScroll(form);
  activate(form);
  if (mode != ShowMode::Modal) return;
  while (form.visible_ && !ended_ && platform().waitForEvent()) {
  }
  clock.goOn();
}

void Desk::hide(Form& form) {
  if (!form.visible_) return;
  const Event event;
  form.visible_ = false;
  if (std::exchange(form.modal_, false)) raise(form);  // back among its like
  std::erase(modals_, &form);
  if (focused_ != nullptr && &focused_->form() == &form) focus(nullptr);
  hand.windowGone(form);
  view().formHidden(form);
  fitScroll(form);
  if (active_ != &form) return;
  active_ = nullptr;
  form.deactivated();
  if (active_ == nullptr && !ended_) activateLatest();
}

void Desk::activateLatest() {
  if (modal() != nullptr) {
    activate(*modal());
    return;
  }
  // The one that the user was at before, wherever it lies in the order of windows.
  Form* latest = nullptr;
  for (Form* form : forms_) {
    if (form->visible() && (latest == nullptr || form->lastActive_ > latest->lastActive_)) latest = form;
  }
  if (latest != nullptr) activate(*latest);
}

void Desk::activate(Form& form) {
  if (!form.visible_) return;
  raise(form);
  if (active_ == &form) return;
  const Event event;
  // A handler of the lost focus may turn the user to yet another window, which then has the focus.
  do {
    focus(nullptr);
    if (!form.visible_ || active_ == &form) return;
  } while (focused_ != nullptr);
  raise(form);  // a handler of the lost focus may have brought another window to the front
  if (active_ != nullptr) {
    Form& before = *active_;
    active_ = nullptr;
    markDefaultButton(before);
    before.deactivated();
  }
  active_ = &form;
  markDefaultButton(form);
  form.lastActive_ = ++activations_;
  view().orderChanged();
  form.activated();
  Control* control = form.activeControl_;
  if (active_ == &form && control != nullptr && control->shown() && control->usable()) focus(control);
}

void Desk::focus(Control* control) {
  if (focused_ == control) return;
  const Event event;
  if (control != nullptr && active_ != &control->form() && gesture::refusal(control->form(), control).empty()) {
    // A handler may go on behind another window that has come up meanwhile.
    activate(control->form());
    if (focused_ == control) return;
  }
  Control* before = focused_;
  const Form* active = active_;
  focused_ = nullptr;
  if (before != nullptr) {
    before->markChanged();
    markDefaultButton(before->form());
    if (before->onLostFocus) {
      const Deed deed("leaving", *before);
      leaving_.push_back(before);
      before->onLostFocus();
      leaving_.pop_back();
    }
  }
  // The handler may have given the focus away itself, turned the user to another window, or hidden the control that was
  // to have it.
  if (control == nullptr || focused_ != nullptr || leaving(*control)) return;
  if (active_ != active && active_ != &control->form()) return;
  if (!control->shown() || !control->usable()) return;
  focused_ = control;
  control->form().activeControl_ = control;
  control->markChanged();
  markDefaultButton(control->form());
  if (control->onGotFocus) control->onGotFocus();
}

bool Desk::leaving(const Control& control) const {
  return std::find(leaving_.begin(), leaving_.end(), &control) != leaving_.end();
}

void Desk::focusHidden(const Control& control) {
  if (focused_ == nullptr || !within(*focused_, control)) return;
  focused_->form().activeControl_ = nullptr;
  focus(nullptr);
}

void Desk::fitScroll(const Form& changed) {
  Form* frame = this->frame();
  if (frame == nullptr || changed.kind() == FormKind::Window || !frame->visible()) return;
  frame->scrollTo(frame->ScrollLeft, frame->ScrollTop);
  if (&changed != frame) return;
  for (Form* form : forms_)
    form->keepInReach();  // the frame may have become smaller
}

void Desk::drop(Form& form) {
  const Event event;
  hide(form);
  for (Control* control : form.controls_) {
    if (control->kind() == ControlKind::Timer) timers.stop(static_cast<Timer&>(*control));
  }
  for (Form* other : forms_) {
    if (other->owner_ == &form) other->owner_ = nullptr;
  }
  std::erase(forms_, &form);
  view().formUnloaded(form);
  dropped_.push_back(std::move(placeOf(form).form_));
}

void Desk::end() {
  const Event event;
  ended_ = true;
  while (!forms_.empty()) {
    forms_.front()->unloading();
    drop(*forms_.front());
  }
  platform().ended();
}

void Desk::clear() {
  const Event event;
  while (!forms_.empty())
    drop(*forms_.front());
  active_ = nullptr;
  focused_ = nullptr;
  ended_ = false;
  clock = {};
  hand = {};
  pressed = {};
}

}  // namespace zelvs
