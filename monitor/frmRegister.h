#pragma once

#include <string>
#include <string_view>

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/timer.h"

namespace zelvs {

/// Where the window first stands, in twips of the screen.
struct WindowPlace {
  double left, top;
};
inline constexpr WindowPlace kRegisterPlace = {6800, 1100};

/// The eight registers of the center chip, live. Rows count from 1; row 9 stands below the visible part without
/// function.
class FrmRegister final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmRegister();

  Label lblVal{this, "lblVal"};
  Label lblBin{this, "lblBin"};
  ControlArray<Label> lblReg{this, "lblReg", 0, 9};  // 0: the heading
  ControlArray<Label> lblValH{this, "lblValH", 1, 9};
  ControlArray<Label> lblValL{this, "lblValL", 1, 9};
  ControlArray<Label> lblBinH{this, "lblBinH", 1, 9};
  ControlArray<Label> lblBinL{this, "lblBinL", 1, 9};
  Timer timRegister{this, "timRegister"};

 protected:
  void load() override;
};

inline FormRef<FrmRegister> frmRegister{"frmRegister"};

/// Brings the register window to the front. One that was not there comes back with what the registers hold.
void openRegisterWindow();

/// Three hexadecimal digits of a register's even address; empty for a name that no register has.
std::string regAddressText(std::string_view name);

/// A value cell was double clicked: opens the register write dialog below its row, or tells why not. row from 1,
/// name: that row's; cell 0: the high byte, 1: the low byte.
void openRegisterEditor(FrmRegister& form, std::string_view name, int row, int cell);

}  // namespace zelvs
