#pragma once

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

/// The dialog of the bench's settings: what ZELVS.INI holds, edited without regard to what runs. It is loaded once, at
/// which it reads the file, and then keeps what its controls show, hidden or not.
class FrmDefault final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmDefault();

  // Containers first: what stands inside lies in front of them.
  ControlArray<Frame> Frame1{this, "Frame1", 0, 1};  // 0 the bench, 1 the windows
  Frame Frame2{this, "Frame2"};                      // the memory windows
  ControlArray<Frame> frmBoard{this, "frmBoard", {0, 1, 3, 5}};
  ControlArray<Label> lblName{this, "lblName", 0, 10};  // what the fields without a text of their own are

  ControlArray<CheckBox> chkDef{this, "chkDef", 0, 6};
  ControlArray<CheckBox> chkCascade{this, "chkCascade", 0, 1};
  ControlArray<OptionButton> optHF{this, "optHF", 0, 1};  // full, half duplex
  ComboBox cmbCPUType{this, "cmbCPUType"};
  ControlArray<ComboBox> cmbClock{this, "cmbClock", {0, 1, 3, 5}};  // by board; the center's cannot be changed
  ControlArray<ComboBox> cmbSA{this, "cmbSA", {0, 2, 4}};
  ComboBox cmbIOS{this, "cmbIOS"};
  ComboBox cmbMode{this, "cmbMode"};

  ControlArray<CommandButton> cmdAction{this, "cmdAction", 0, 3};  // close, set now, save, the maker's values
  ControlArray<Label> lblDesc{this, "lblDesc", 0, 1};              // beside save, set now

 protected:
  void load() override;
  void activated() override;
};

inline FormRef<FrmDefault> frmDefault{"frmDefault"};

/// Writes what the dialog shows into the file; the running bench stays as it is.
void saveDialogSettings();
/// Makes what the dialog shows the settings of the next restart, but for the center's clock and the counter mode, which
/// become 0 whatever their lists show.
void applyDialogSettings();

}  // namespace zelvs
