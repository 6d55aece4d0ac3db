#include "ui/hand.h"

#include <algorithm>
#include <utility>

#include "ui/desk.h"
#include "ui/gesture.h"
#include "ui/keyboard.h"
#include "ui/listRows.h"
#include "ui/windowFrame.h"

namespace zelvs {

namespace {

Form& formOf(const Hand::Target& target) {
  return const_cast<Form&>(*target.form);
}

Control* controlOf(const Hand::Target& target) {
  return const_cast<Control*>(target.control);
}

Control* hitBy(const Form& form, const Spot& spot) {
  return framePartAt(form, spot) == FramePart::Inside ? form.controlAt(spot.x, spot.y) : nullptr;
}

}  // namespace

void Hand::move(Form* form, const Spot& spot) {
  const Desk::Event event;
  if (part_ == Part::Caption || part_ == Part::LeftEdge || part_ == Part::RightEdge) {
    drag(formOf(held_), spot);
  } else if (form != nullptr) {
    gesture::move(*form, hitBy(*form, spot));
  }
}

void Hand::drag(Form& form, const Spot& spot) {
  if (part_ == Part::Caption) {
    form.dragTo(form.Left + spot.x - grip_.x, form.Top + spot.y - grip_.y);
    return;
  }
  // Counted on the screen: a window that is made wider may move to stay in its corner.
  const double moved = form.insideLeft() + spot.x - grip_.x;
  form.drawWider(gripWidth_ + (part_ == Part::LeftEdge ? -moved : moved));
}

void Hand::down(Form& form, const Spot& spot, bool second, bool named) {
  const Desk::Event event;
  const FramePart part = framePartAt(form, spot);
  Control* control = hitBy(form, spot);
  if (!begin({&form, control}, second, named)) return;
  switch (part) {
    case FramePart::Caption:
      part_ = Part::Caption;
      grip_ = spot;
      break;
    case FramePart::CloseBox:
      part_ = Part::CloseBox;
      break;
    case FramePart::LeftEdge:
    case FramePart::RightEdge:
      part_ = part == FramePart::LeftEdge ? Part::LeftEdge : Part::RightEdge;
      grip_ = {form.insideLeft() + spot.x, form.insideTop() + spot.y};
      gripWidth_ = form.Width;
      break;
    case FramePart::Inside:
      part_ = Part::Inside;
      if (second) {
        gesture::pressedAgain(form, control);
      } else {
        gesture::pressed(form, control);
      }
  }
}

bool Hand::begin(const Target& target, bool second, bool named) {
  if (!named) lose();  // a release that nobody has told of
  const bool ours = named || !second || target == last_;
  last_ = second && gesture::actsOnDoubleClick(target.control) ? Target{} : target;
  if (!ours) return false;
  held_ = target;
  part_ = Part::Turning;
  named_ = named;
  Control* control = controlOf(target);
  const bool turned = gesture::turnTo(formOf(target), control).empty();
  // Turning may have shown a modal window, which took the mouse, or have taken away what was pressed. A gesture by name
  // goes on behind the modal window, whatever other gestures were made in it.
  const bool still = turned && (named || held_ == target) && gesture::refusal(formOf(target), control).empty();
  held_ = still ? target : Target{};
  named_ = named;
  return still;
}

void Hand::up(const Spot& spot) {
  const Desk::Event event;
  const Target held = std::exchange(held_, {});
  const Part part = std::exchange(part_, Part::Nothing);
  named_ = false;
  if (held.form == nullptr) return;
  Form& form = formOf(held);
  if (part == Part::Inside) {
    const bool inside = framePartAt(form, spot) == FramePart::Inside && hitBy(form, spot) == held.control;
    gesture::release(form, controlOf(held), inside);
  } else if (part == Part::CloseBox && framePartAt(form, spot) == FramePart::CloseBox) {
    gesture::close(form);
  }
}

bool Hand::downOnField(Control& field, int row, bool second, bool named) {
  const Desk::Event event;
  if (!begin({&field.form(), &field}, second, named)) return false;
  part_ = Part::Nothing;  // the field itself ends it
  const bool besideRows = !named && holdsRows(field) && row < 0;
  if (!second || besideRows || !gesture::actsOnDoubleClick(&field)) return true;
  held_ = {};
  gesture::pressedAgain(field.form(), &field);
  return false;
}

void Hand::lose() {
  if (named_) return;
  const Target held = std::exchange(held_, {});
  const bool pressed = std::exchange(part_, Part::Nothing) == Part::Inside && held.form != nullptr;
  if (!pressed) return;
  const Desk::Event event;
  gesture::letGo(held.control);
}

void Hand::windowGone(const Form& form) {
  // A press that is still turning to its window may see it hidden and shown anew.
  if (held_.form != &form || part_ == Part::Turning) return;
  if (named_) {
    held_ = {};
  } else {
    lose();
  }
}

bool Hand::key(const Key& key) {
  const Desk::Event event;
  Form* form = desk().modal() != nullptr ? desk().modal() : desk().active();
  return form != nullptr && keyInForm(*form, key);
}

}  // namespace zelvs
