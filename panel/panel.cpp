// The panel as a whole: who attaches its hands, what its load does in which order, its width.

#include "panel/panel.h"

#include "bench/frmHard.h"
#include "panel/frmKAIROZU.h"
#include "panel/panelParts.h"
#include "state/state.h"

namespace zelvs {

namespace {

void loadPanel() {
  initIntPicture();
  initSwitches();
  initSACombo();
  initCPUCombo();
  initIOSCombo();
  initModeCombo();
  initCombo();
  applyDefaults();
  initMousePointers();
  setFormWidth();
}

}  // namespace

void attachPanel(FrmHard& panel) {
  panel.onLoad = loadPanel;
  panel.onActivate = printRXDLabels;
  attachLists(panel);
  attachCabling(panel);
  attachPins(panel);
  attachButtons(panel);
  attachSwitches(panel);
  attachSerialInput(panel);
  panel.picQVT.on(&Control::onDblClick, [](int board) { frmKAIROZU->setKAIROZU(board); });
  panel.picPWM.onDblClick = [] { frmKAIROZU->setKAIROZU(kIoBoard); };
}

void setFormWidth() {
  constexpr int kFirstMotorMode = 6;
  FrmHard& panel = *frmHard;
  panel.showShadows();
  panel.hide();
  const bool rightColumn = isOn(panel.picBoard(2)) || isOn(panel.picBoard(4)) || ioBoardMode >= kFirstMotorMode;
  panel.Width = rightColumn ? kWidePanel : kNarrowPanel;
  panel.show();
  chkSADup();
}

}  // namespace zelvs
