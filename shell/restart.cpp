#include "shell/restart.h"

#include <initializer_list>

#include "bench/frmHard.h"
#include "dialogs/beep.h"
#include "monitor/frmDumpC17.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/frmHint.h"
#include "monitor/frmRegister.h"
#include "monitor/mduMemoryWindow.h"
#include "panel/frmKAIROZU.h"
#include "panel/resets.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "shell/startUp.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/runTimeError.h"

namespace zelvs {

void restartSimulator() {
  const Desk::Event event;
  const Deed deed("restarting");
  runMode = kRestarting;  // no tick does anything until RUN is selected again
  startupDone = kFalse;
  for (FormPlace* window :
       std::initializer_list<FormPlace*>{&frmHard, &frmRegister, &frmDumpCDIO, &frmDumpC17, &frmDumpDRC}) {
    if (window->loaded()) window->form()->unload();
  }
  for (FormPlace* window : std::initializer_list<FormPlace*>{&frmHint, &frmDefault, &frmKAIROZU}) {
    if (window->loaded()) window->form()->hide();
  }
  prepareChipMemory();
  resetSimulationState();
  resetCenterRegisters();
  startFirstScan();
  frmHard->move(0, 0);  // loads it, and it takes the settings
  frmHard->show();
  frmHard->repaint();
  placeWindows();
  frmRegister.load();
  if (openWindow[1] != 0) {
    frmRegister->show(ShowMode::Modeless, frmMDI.get());
    frmRegister->repaint();
  }
  openDumpWindowsOfSettings();
  if (openWindow[2] != 0) showAtOnce(*frmHint);
  openBeepDevice();  // the panel and its device are new
  // A scan of the old life does not go on: SCR starts one from the first station. A one-shot scan is not ended here.
  continuousScanActive = kFalse;
  frmMDI->lblRunMode_Click(kRun);
  startupDone = kTrue;
}

}  // namespace zelvs
