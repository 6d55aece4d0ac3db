#pragma once

#include "chip/bus.h"
#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

/// Reads one byte at a typed address, as the CPU of an 8-bit bus does. Hidden, not unloaded, also by the close box:
/// the second half of a word may still wait in its buffer.
class FrmMemoryRead final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmMemoryRead();

  TextBox txtAddress{this, "txtAddress"};
  ControlArray<CommandButton> cmdAction{this, "cmdAction", 0, 1};  // read, close
  Label lblAdr{this, "lblAdr"};
  Label lblData{this, "lblData"};
  Label lblBitInd{this, "lblBitInd"};
  Label lblGuide{this, "lblGuide"};
  ControlArray<Label> Label1{this, "Label1", 0, 1};

  /// Puts size and texts back to the start; the buffer stays.
  void initReadMemory();

 protected:
  void load() override;
  bool queryUnload(bool byUser) override;

 private:
  void askForAddress();
  void read();
  void finish();

  ReadBuffer buffer_{};
};

inline FormRef<FrmMemoryRead> frmMemoryRead{"frmMemoryRead"};

/// Shows the form over the panel on an 8-bit bus; tells the user on a 16-bit bus.
void openMemoryRead();

}  // namespace zelvs
