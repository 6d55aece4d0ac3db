#pragma once

#include <cstdint>

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

/// The modal warning or question box.
class FrmDialog final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmDialog();

  Label lblMessage{this, "lblMessage"};
  Label lblDialogTitle{this, "lblDialogTitle"};
  ControlArray<CommandButton> cmdAction{this, "cmdAction", 0, 1};  // OK, cancel

  std::int16_t dialogResult = 0;  ///< 1 OK, 2 cancel

 protected:
  void activated() override;
};

inline FormRef<FrmDialog> frmDialog{"frmDialog"};

}  // namespace zelvs
