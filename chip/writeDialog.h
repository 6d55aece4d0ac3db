#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "chip/answer.h"
#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

enum class EnterKey;

/// What the two dialogs that write as the CPU have in common: one hex value, the choice between word and byte, and two
/// buttons. Modal; hidden, not unloaded, when done, also by the close box.
class WriteDialog : public Form {
 public:
  TextBox txtWriteData{this, "txtWriteData"};
  Frame fraAccess{this, "fraAccess"};
  ControlArray<OptionButton> opnAccess{this, "opnAccess", 0, 1};  // word, byte
  Label lblAdr{this, "lblAdr"};
  Label lblBitInd{this, "lblBitInd"};
  ControlArray<CommandButton> cmdAction{this, "cmdAction", 0, 1};  // write, cancel

  /// What the opener wants done when something has been written: its windows show the bytes.
  std::function<void()> onWritten;

  bool wordAccess() const { return opnAccess(0).Value; }
  /// Allows word access on a 16-bit bus only, and selects it there.
  void chooseAccess();

 protected:
  WriteDialog(std::string_view name, FormKind kind, EnterKey enterKey);

  /// Shows what the chosen access will write. Called when the dialog is shown and when the choice changes.
  virtual void refresh() = 0;
  /// Writes, hides the dialog and tells the user what there is to tell.
  virtual void write() = 0;
  /// Takes the red off the cells of the window behind.
  virtual void unmark() = 0;

  void tellWritten() const {
    if (onWritten) onWritten();
  }
  /// Gives the field its length and fills it with a word or a byte.
  void showValue(unsigned value);
  std::uint16_t enteredWord() const;
  std::uint8_t enteredByte() const;
  /// What a write was answered, when the dialog has hidden itself: in the pop-up, in the box, or not at all.
  void tell(Answer answer);

  void activated() override;
  bool queryUnload(bool byUser) override;

 private:
  void cancel();
};

}  // namespace zelvs
