#pragma once

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

/// The explanation of the STB signal, one picture for each setting of a board's SSA and SSB.
class FrmOsiro final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmOsiro();

  ImageList ilsOsiro{"ilsOsiro", 4};  // SSA and SSB low, SSA high, SSB high, both high
  PictureBox picSTB{this, "picSTB"};
  Label lblUntouched{this, "lblUntouched"};  // in the picture's place until the switches have been moved once

  /// Shows image 1 to 4; any other number leaves the picture.
  void initPicture(int number);
};

inline FormRef<FrmOsiro> frmOsiro{"frmOsiro"};

}  // namespace zelvs
