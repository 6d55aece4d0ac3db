#pragma once

#include "monitor/frmDumpWindow.h"

namespace zelvs {

/// The memory window over the control words, DO and DI.
class FrmDumpCDIO final : public FrmDump {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  FrmDumpCDIO() : FrmDump(0) {}
};

inline FormRef<FrmDumpCDIO> frmDumpCDIO{"frmDumpCDIO"};

}  // namespace zelvs
