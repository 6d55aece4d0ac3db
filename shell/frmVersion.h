#pragma once

#include <string_view>

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/timer.h"

namespace zelvs {

/// Its digits, as the splash shows them.
std::string_view programVersion();

/// The splash during start-up, the about window afterwards.
class FrmVersion final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmVersion();

  ImageList ilsLogo{"ilsLogo", 1};

  ControlArray<Label> Label1{this, "Label1", 0, 1};
  ControlArray<Label> Label2{this, "Label2", 0, 12};
  Label lblVer{this, "lblVer"};
  Label lblCopyright{this, "lblCopyright"};
  ControlArray<PictureBox> Picture1{this, "Picture1", 0, 1};
  PictureBox Picture2{this, "Picture2"};
  PictureBox picProgress{this, "picProgress"};
  ControlArray<Label> lblProcess{this, "lblProcess", 0, 1};  // the bar's ground, and the bar over it
  Timer timTimer{this, "timTimer"};

  /// Asks the window to close: at once when start-up is done, else half a second later, again and again.
  void hideVersion();

  void click() override { hideVersion(); }

 protected:
  void load() override;
  void activated() override;
  void unloading() override;

 private:
  std::int16_t secondsLeft_ = 0;
};

inline FormRef<FrmVersion> frmVersion{"frmVersion"};

}  // namespace zelvs
