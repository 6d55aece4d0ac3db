#pragma once

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

/// The drop-down of the tool bar's "Memory Window": which memory window to open.
class FrmDumpSel final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  FrmDumpSel();

  ControlArray<CommandButton> cmdAREA{this, "cmdAREA", 0, 4};
};

inline FormRef<FrmDumpSel> frmDumpSel{"frmDumpSel"};

/// The user has turned to something else.
inline void hideDumpSel() {
  if (frmDumpSel.visible()) frmDumpSel->hide();
}

}  // namespace zelvs
