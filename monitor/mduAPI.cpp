#include "monitor/mduAPI.h"

#include "ui/desk.h"

namespace zelvs {

void setWindowFloating(Form& form, bool onTop) {
  const double direction = onTop ? 1 : -1;
  form.hide();
  form.setFloating(onTop);
  form.Top = form.Top + direction * (desk().frame()->barHeight() + kClientEdge);
  form.Left = form.Left + direction * kClientEdge;
  form.show();
}

}  // namespace zelvs
