#pragma once

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/timer.h"

namespace zelvs {

/// The frame: tool bar, master timer and exit question.
class FrmMDI final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Frame;
  FrmMDI();

  PictureBox ToolBox{this, "ToolBox"};  // scale: pixels
  Label lblSimulationTick{this, "lblSimulationTick"};
  ControlArray<Label> lblRunMode{this, "lblRunMode", 0, 3};  // index: RunMode
  Label lblMemoryWindow{this, "lblMemoryWindow"};
  Label lblRegisterWindow{this, "lblRegisterWindow"};
  Label lblRegisterHint{this, "lblRegisterHint"};
  Label lblVersion{this, "lblVersion"};
  Label lblDefault{this, "lblDefault"};
  Label lblNagigator{this, "lblNagigator"};
  Shape shpTick{this, "shpTick"};
  Timer timTick{this, "timTick"};

  /// Selects run mode 0 to 3; 3 also runs one step.
  void lblRunMode_Click(int index);

  double barHeight() const override { return ToolBox.Height; }

 protected:
  void load() override;
  void resized() override;
  bool queryUnload(bool byUser) override;
};

inline FormRef<FrmMDI> frmMDI{"frmMDI"};

}  // namespace zelvs
