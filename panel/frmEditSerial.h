#pragma once

#include <cstdint>
#include <string>

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/timer.h"

namespace zelvs {

/// Takes a word for the serial input of board serialEditBoard, draws the lines that carry it and plays the drawing
/// past a slit. Modal; hidden, not unloaded, also by the close box, so that its opener can read the two members.
class FrmEditSerial final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmEditSerial();

  Label Label1{this, "Label1"};
  Label lblAdr{this, "lblAdr"};  // the board's number, 1 to 4
  TextBox txtWriteData{this, "txtWriteData"};
  ControlArray<CommandButton> cmdAction{this, "cmdAction", 0, 2};  // set, cancel, start
  Shape shpBezel{this, "shpBezel"};                                // what the slit is cut into
  PictureBox picDREQ_Cover{this, "picDREQ_Cover"};                 // the slit
  PictureBox picDREQ_Data{this, "picDREQ_Data"};                   // the drawing that moves behind it, in pixels
  ControlArray<Label> Label2{this, "Label2", 0, 2};                // SDI, SCK, SLD
  Label lblSECaution{this, "lblSECaution"};
  Timer timEnter{this, "timEnter"};

  /// kTrue when the dialog ended by "Cancel" or by the close box; kFalse when the word has gone out.
  std::int16_t cancelled = 0;
  /// The field's text at "Start", up to four hexadecimal digits, high byte first.
  std::string enteredValue;

 protected:
  void load() override;
  void activated() override;
  bool queryUnload(bool byUser) override;

 private:
  void set();
  void start();
  void cancel();
  void moveDrawing();
  void stopDrawing();
};

inline FormRef<FrmEditSerial> frmEditSerial{"frmEditSerial"};

}  // namespace zelvs
