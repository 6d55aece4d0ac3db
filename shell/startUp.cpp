#include "shell/startUp.h"

#include <cmath>
#include <string>

#include "bench/frmHard.h"
#include "dialogs/beep.h"
#include "lessons/frmNaviList.h"
#include "lessons/naviIndex.h"
#include "monitor/frmDumpC17.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/frmHint.h"
#include "monitor/frmRegister.h"
#include "monitor/mduMemoryWindow.h"
#include "panel/panel.h"
#include "panel/resets.h"
#include "shell/frmMDI.h"
#include "shell/frmVersion.h"
#include "shell/iniFile.h"
#include "shell/restart.h"
#include "state/state.h"
#include "text/utf8.h"
#include "ui/desk.h"
#include "ui/platform.h"
#include "ui/runTimeError.h"

namespace zelvs {

bool showAtOnce(Form& form, Form* owner) {
  form.show(ShowMode::Modeless, owner);
  form.repaint();
  yieldToEvents();
  return !desk().ended();
}

void startFirstScan() {
  constexpr std::uint8_t kFirstFinalStation = 5;
  chipMemory[kScrLow] = kFirstFinalStation;
}

namespace {

/// What stands below in the list of folders and is worked from above.
void attachFromAbove() {
  frmHard.whenMade(attachPanel);
  beforeLesson = [] {
    Mdef_Set();
    restartSimulator();
  };
}

}  // namespace

void startUp() {
  const Desk::Event event;
  const Deed deed("starting up");
  attachFromAbove();
  readIniFile();
  openBeepDevice();  // the first touch of the panel, which loads here with its frame and takes the settings
  setFormWidth();
  frmVersion->show();
  frmVersion->repaint();
  frmVersion->lblProcess(0).Visible = true;
  frmVersion->lblProcess(1).Width = 0;
  frmVersion->lblProcess(1).Visible = true;
  yieldToEvents();
  if (!desk().ended()) loadWindows();
  if (desk().ended()) return;
  showProcessMessage("ナビゲーションウィンドウ設定中です。");
  readNaviIndex();
  startupDone = kTrue;
  resetCenterRegisters();
  // Until here the registers were all 0, so that ticks during the loading found no scan to run.
  startFirstScan();
  frmVersion->hideVersion();
}

void loadWindows() {
  showProcessMessage("メインウィンドウロード中です。");
  frmMDI->show();
  showProcessMessage("ハードウェアウィンドウロード中です。");
  frmHard->move(0, 0);
  if (!showAtOnce(*frmHard)) return;
  showProcessMessage("レジスタウィンドウロード中です。");
  frmRegister.load();
  if (openWindow[1] != 0 && !showAtOnce(*frmRegister, frmMDI.get())) return;
  for (FormPlace* window : std::initializer_list<FormPlace*>{&frmDumpCDIO, &frmDumpC17, &frmDumpDRC}) {
    showProcessMessage("メモリウィンドウロード中です。");
    window->load();
  }
  showProcessMessage("メモリ処理中です。");
  prepareChipMemory();
  resetSimulationState();
  placeWindows();
  openDumpWindowsOfSettings();
  if (desk().ended()) return;
  showProcessMessage("レジスタヒントウィンドウロード中です。");
  frmHint.load();
  if (openWindow[2] != 0) showAtOnce(*frmHint);
}

void placeWindows() {
  frmRegister->move(kRegisterPlace.left, kRegisterPlace.top);
  frmHint->move(12600, 6700);
  for (FrmDump* window : std::initializer_list<FrmDump*>{frmDumpCDIO.get(), frmDumpC17.get(), frmDumpDRC.get()}) {
    window->move(window->area().left, window->area().top);
  }
}

void showProcessMessage(std::string_view text) {
  constexpr int kLineLength = 33;
  constexpr std::string_view kIdeographicSpace = "\u3000";
  const int length = static_cast<int>(charactersOf(text).size());
  std::string padded;
  for (int pad = static_cast<int>(std::nearbyint((kLineLength - length) / 2.0)); pad > 0; --pad) {
    padded += kIdeographicSpace;
  }
  padded += text;
  constexpr int kLastStep = 8;
  if (processStep < kLastStep) ++processStep;
  frmVersion->lblProcess(0).Caption = padded;
  frmVersion->lblProcess(1).Caption = padded;
  frmVersion->lblProcess(1).Width = frmVersion->lblProcess(0).Width * processStep / kLastStep;
  frmVersion->repaint();
}

}  // namespace zelvs
