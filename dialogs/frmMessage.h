#pragma once

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/timer.h"

namespace zelvs {

/// The yellow pop-up of every refusal. Its Tag holds the seconds left.
class FrmMessage final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmMessage();

  Label lblMessage{this, "lblMessage"};
  Timer timErase{this, "timErase"};

  void click() override;

 protected:
  void activated() override;
};

inline FormRef<FrmMessage> frmMessage{"frmMessage"};

}  // namespace zelvs
