#pragma once

#include <functional>
#include <string>

#include "chip/frmEditMemory.h"
#include "chip/frmEditRegister.h"
#include "chip/frmMemoryRead.h"
#include "dialogs/frmDialog.h"
#include "link/simulation.h"
#include "monitor/frmRegister.h"
#include "shell/frmMDI.h"
#include "support/program.h"
#include "support/userFixture.h"

namespace zelvs {

/// The started program in STOP with all registers of the scan at rest. What the user does inside a dialog is set in
/// inside; boxes are answered at once and remembered.
class DialogTest : public ProgramTest {
 protected:
  void startIdle(int cpu = 0) {
    start({{"CPUTYPE", std::to_string(cpu)}});
    frmMDI->lblRunMode_Click(kStop);
    chipMemory[kScrLow] = 0;
    platform.onModal = [this](Form& form) {
      if (&form == frmDialog.form()) {
        boxes.push_back(frmDialog->lblMessage.Caption.get());
        titles.push_back(frmDialog->lblDialogTitle.Caption.get());
        EXPECT_FALSE(frmDialog->cmdAction(1).Visible);
        gesture::click(*frmDialog, &frmDialog->cmdAction(0));
        return;
      }
      ++opened;
      if (inside) inside();
      if (form.visible()) {
        EXPECT_EQ(gesture::close(form), "");
      }
      EXPECT_FALSE(form.visible());
      EXPECT_TRUE(FormPlace::named(form.name())->loaded()) << "hidden, not unloaded";
    };
  }

  std::function<void()> inside;
  int opened = 0;
  std::vector<std::string> boxes;
  std::vector<std::string> titles;
};

}  // namespace zelvs
