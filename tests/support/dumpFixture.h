#pragma once

#include <string>

#include "monitor/frmDumpC17.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/frmDumpSel.h"
#include "monitor/mduMemoryWindow.h"
#include "shell/frmMDI.h"
#include "support/program.h"
#include "support/userFixture.h"
#include "text/hexText.h"

namespace zelvs {

enum CpuType { kWordLittle, kByteLittle, kWordBig, kByteBig };

/// The stopped program with all three memory windows open and nothing red.
class DumpTest : public ProgramTest {
 protected:
  DumpTest() {
    start({{"OPENWINDOW4", "1"}, {"OPENWINDOW5", "1"}, {"OPENWINDOW2", "0"}});
    frmMDI->lblRunMode_Click(kStop);
  }

  /// The program once more, with other settings.
  void startAnew(const std::map<std::string, std::string>& changes) {
    desk().clear();
    clearState();
    programFolder = folder.path();
    start(changes);
  }
  static FrmDump& form(int window) {
    FrmDump* const forms[] = {frmDumpCDIO.get(), frmDumpC17.get(), frmDumpDRC.get()};
    return *forms[window];
  }
  /// As the user would: at the list on the panel.
  static void chooseCpu(int type) {
    doubleClick(frmHard->picCPU);
    EXPECT_EQ(gesture::pick(frmHard->cmbCPUType, type), "");
    EXPECT_EQ(cpuType, type);
  }
  static void pointAt(Control& control) { EXPECT_EQ(gesture::move(control.form(), &control), ""); }
  static bool red(const Control& control) { return control.ForeColor == kRed; }
  static int redCells(const FrmDump& form) {
    int count = 0;
    for (const Label& cell : form.lblData)
      count += red(cell) ? 1 : 0;
    return count;
  }
};

}  // namespace zelvs
