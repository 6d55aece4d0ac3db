#pragma once

#include "monitor/frmDumpWindow.h"

namespace zelvs {

/// The memory window over the masks of the DI changes.
class FrmDumpDRC final : public FrmDump {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  FrmDumpDRC() : FrmDump(2) {}
};

inline FormRef<FrmDumpDRC> frmDumpDRC{"frmDumpDRC"};

}  // namespace zelvs
