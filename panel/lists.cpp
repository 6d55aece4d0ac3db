// The settings that are made with a list: station address, clock, CPU bus, IOS and counter mode.
//
// A list opens at the double click of its picture and is hidden by the picture's click, by its own Click, by Escape
// or by losing the focus. The setting is taken over when the focus is lost, which the hiding itself brings about.

#include <string>
#include <string_view>

#include "bench/frmHard.h"
#include "bench/ilsMouse.h"
#include "bench/settingKeys.h"
#include "bench/settingLists.h"
#include "chip/frmMemoryRead.h"
#include "dialogs/messages.h"
#include "link/outputStage.h"
#include "monitor/mduMemoryWindow.h"
#include "panel/frmKAIROZU.h"
#include "panel/panel.h"
#include "panel/panelParts.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/desk.h"
#include "ui/gesture.h"

namespace zelvs {

namespace {

void setSAPointers(int list, int image) {
  setPointerImage(frmHard->picSA(2 * list), image);
  setPointerImage(frmHard->picSA(2 * list + 1), image);
}

void openList(ComboBox& list) {
  list.Visible = true;
  list.bringToFront();
  desk().focus(&list);
}

void setSASwitch(int list, const std::string& digits) {
  const int high = static_cast<int>(hexValue(digits.substr(0, 1)));
  const int low = static_cast<int>(hexValue(digits.substr(digits.size() - 1)));
  frmHard->picSA(2 * list).Picture = frmHard->ilsRSW.image(high + 1);
  frmHard->picSA(2 * list + 1).Picture = frmHard->ilsRSW.image(low + 1);
  saSetting[list] = static_cast<std::int16_t>(hexValue(digits));
  chkSADup();
}

void takeSA(int list) {
  ComboBox& combo = frmHard->cmbSA(list);
  const std::string text = combo.Text();
  setSASwitch(list, text.substr(text.size() - 2));
  setSAPointers(list, kDoubleClickPointer);
  combo.Visible = false;
}

void takeClock(int list) {
  if (list == 0) {
    // The center's clock is fixed here; the engine takes it from the chip when a scan starts.
    frmHard->lblClock(0).Caption = kClocks[0];
    return;
  }
  ComboBox& combo = frmHard->cmbClock(list);
  frmHard->lblClock(list).Caption = combo.Text();
  setPointerImage(frmHard->picClock(list), kDoubleClickPointer);
  combo.Visible = false;
  constexpr int kIoBoardClock = 3;
  const bool bpssHigh = list == kIoBoardClock && isOn(frmHard->picBPSS);
  clockSetting[list] = static_cast<std::int16_t>(combo.ListIndex + (bpssHigh ? 1 : 0));
}

/// It reads byte by byte, as a 16-bit bus never does.
void hideMemoryReadOnWideBus() {
  if (wideBus() && frmMemoryRead.visible()) frmMemoryRead->hide();
}

void takeCPUType() {
  cpuType = static_cast<std::int16_t>(frmHard->cmbCPUType.ListIndex);
  frmHard->cmbCPUType.Visible = false;
  setPointerImage(frmHard->picCPU, kDoubleClickPointer);
  hideMemoryReadOnWideBus();
  resetDumpLayout(kAllDumpWindows);
  changeKAIROZU(kCenterBoard);
}

void takeIOS() {
  ioBoardMode = static_cast<std::int16_t>(frmHard->cmbIOS.ListIndex);
  setIOMode();
  driveIoBoardOutputs();
  setPointerImage(frmHard->picIOS, kDoubleClickPointer);
  frmHard->cmbIOS.Visible = false;
  changeKAIROZU(kIoBoard);
}

void takeMode() {
  // A dead end: the counter mode stays 0.
  frmHard->cmbMode.Visible = false;
  frmHard->cmbMode.ListIndex = 0;
  askDialog("ＱＶＴ５０のカウンタモードの、０以外の動作はユーザーズマニュアルをご参照ください。", DialogMode::OneButton,
            kWarningTitle);
}

/// A list's Click only hides it; Escape does the same.
void closesOnPick(ComboBox& list) {
  list.Unrolled = true;
  list.Visible = false;
  const auto close = [&list] { list.Visible = false; };
  list.onClick = close;
  list.onKeyDown = [close](int& code) {
    if (code == key::kEscape) close();
  };
}

enum class Pointer { Changes, Stays };

/// A list with one picture that opens it at a double click and closes it at a click.
void attachList(PictureBox& picture, ComboBox& list, Pointer pointer) {
  const auto show = [&picture, pointer](int image) {
    if (pointer == Pointer::Changes) setPointerImage(picture, image);
  };
  picture.onDblClick = [&list, show] {
    openList(list);
    show(kClickPointer);
  };
  picture.onClick = [&list, show] {
    if (!list.Visible) return;
    list.Visible = false;
    show(kDoubleClickPointer);
  };
}

/// An address has two pictures, one a digit; a click puts their pointers back in any case.
void attachAddress(FrmHard& panel, PictureBox& picture) {
  const int list = picture.index() / 2;
  picture.onDblClick = [&panel, list] {
    openList(panel.cmbSA(list));
    setSAPointers(list, kClickPointer);
  };
  picture.onClick = [&panel, list] {
    panel.cmbSA(list).Visible = false;
    setSAPointers(list, kDoubleClickPointer);
  };
}

}  // namespace

void attachLists(FrmHard& panel) {
  for (ControlArray<ComboBox>* lists : {&panel.cmbSA, &panel.cmbClock}) {
    for (ComboBox& list : *lists)
      closesOnPick(list);
  }
  for (ComboBox* list : {&panel.cmbCPUType, &panel.cmbIOS, &panel.cmbMode})
    closesOnPick(*list);
  panel.cmbCPUType.onClick = [&panel] {
    panel.cmbCPUType.Visible = false;
    hideMemoryReadOnWideBus();
  };

  for (PictureBox& picture : panel.picSA)
    attachAddress(panel, picture);
  for (PictureBox& picture : panel.picClock) {
    // The center's cannot be worked.
    if (picture.index() != 0) attachList(picture, panel.cmbClock(picture.index()), Pointer::Changes);
  }
  attachList(panel.picCPU, panel.cmbCPUType, Pointer::Changes);
  attachList(panel.picIOS, panel.cmbIOS, Pointer::Changes);
  attachList(panel.picMode, panel.cmbMode, Pointer::Stays);

  panel.cmbSA.on(&Control::onLostFocus, takeSA);
  panel.cmbClock.on(&Control::onLostFocus, takeClock);
  panel.cmbCPUType.onLostFocus = takeCPUType;
  panel.cmbIOS.onLostFocus = takeIOS;
  panel.cmbMode.onLostFocus = takeMode;
}

void initSACombo() {
  for (ComboBox& list : frmHard->cmbSA)
    fillStations(list);
}

void initCPUCombo() {
  fillList(frmHard->cmbCPUType, kCpuTypes);
}

void initIOSCombo() {
  fillIoModes(frmHard->cmbIOS);
}

void initModeCombo() {
  fillList(frmHard->cmbMode, kCounterModes);
}

void initCombo() {
  FrmHard& panel = *frmHard;
  selectSetting(panel.cmbCPUType, kCpuTypeKey, cpuType);
  for (int i = 0; i < 3; ++i) {
    selectSetting(panel.cmbSA(i), kAddressKeys[static_cast<std::size_t>(i)], saSetting[i]);
    takeSA(i);  // the list position becomes a station number
  }
  for (int i = 0; i < 4; ++i) {
    selectSetting(panel.cmbClock(i), kClockKeys[static_cast<std::size_t>(i)], clockSetting[i]);
    takeClock(i);
  }
  selectSetting(panel.cmbIOS, kIoModeKey, ioBoardMode);
  selectSetting(panel.cmbMode, kCounterModeKey, ioBoardCounterMode);
  takeIOS();
}

}  // namespace zelvs
