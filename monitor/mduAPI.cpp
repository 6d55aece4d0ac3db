#include "monitor/mduAPI.h"

#include "shell/frmMDI.h"
#include "ui/form.h"

namespace zelvs {

void setWindowFloating(Form& form, bool onTop) {
  const double direction = onTop ? 1 : -1;
  form.hide();
  form.setFloating(onTop);
  form.Top = form.Top + direction * (frmMDI->ToolBox.Height + kClientEdge);
  form.Left = form.Left + direction * kClientEdge;
  form.show();
}

}  // namespace zelvs
