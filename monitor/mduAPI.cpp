#include "monitor/mduAPI.h"

#include "ui/desk.h"

namespace zelvs {

namespace {

/// What a place of the client area counts more when it is counted from the frame.
struct Shift {
  double left, top;
};

Shift toFrame() {
  const Form& frame = *desk().frame();
  return {kClientEdge - frame.ScrollLeft, frame.barHeight() + kClientEdge - frame.ScrollTop};
}

}  // namespace

void setWindowFloating(Form& form, bool onTop) {
  const double direction = onTop ? 1 : -1;
  const Shift shift = toFrame();
  form.hide();
  form.setFloating(onTop);
  form.move(form.Left + direction * shift.left, form.Top + direction * shift.top);
  form.keepInReach();
  form.show();
}

void moveInClientArea(Form& form, double left, double top) {
  const Shift shift = form.floating() ? toFrame() : Shift{0, 0};
  form.move(left + shift.left, top + shift.top);
  form.keepInReach();
}

}  // namespace zelvs
