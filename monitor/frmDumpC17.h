#pragma once

#include "monitor/frmDumpWindow.h"

namespace zelvs {

/// The memory window over the counters and what else C1 to C7 hold.
class FrmDumpC17 final : public FrmDump {
 public:
  static constexpr FormKind kKind = FormKind::Child;
  FrmDumpC17() : FrmDump(1) {}
};

inline FormRef<FrmDumpC17> frmDumpC17{"frmDumpC17"};

}  // namespace zelvs
