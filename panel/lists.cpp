// The settings that are made with a list: station address, clock, CPU bus, IOS and counter mode; and BPSS.
//
// A list opens at the double click of its picture and is hidden by the picture's click, by its own Click, by Escape
// or by losing the focus. The setting is taken over when the focus is lost, which the hiding itself brings about.

#include <array>
#include <string>
#include <string_view>

#include "chip/frmMemoryRead.h"
#include "kernel/hexText.h"
#include "kernel/outputStage.h"
#include "kernel/state.h"
#include "learning/frmKAIROZU.h"
#include "learning/messages.h"
#include "monitor/mduMemoryWindow.h"
#include "panel/frmHard.h"
#include "panel/panelSetup.h"
#include "panel/pinModes.h"
#include "panel/settingLists.h"
#include "shell/frmMDI.h"
#include "ui/desk.h"
#include "ui/gesture.h"

namespace zelvs {

namespace {

// The center's own list is never opened; its odd spellings stay.
constexpr std::array<std::string_view, 3> kCenterClocks = {"48Mhz", "24MHz", "12Mhz"};

// Images of ilsMouse.
constexpr int kClickPointer = 1;
constexpr int kDoubleClickPointer = 2;

void setPointer(PictureBox& picture, int image) {
  picture.MouseIcon = frmMDI->ilsMouse.image(image);
}

void setSAPointers(int list, int image) {
  setPointer(frmHard->picSA(2 * list), image);
  setPointer(frmHard->picSA(2 * list + 1), image);
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
  frmHard->chkSADup();
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
  setPointer(frmHard->picClock(list), kDoubleClickPointer);
  combo.Visible = false;
  constexpr int kIoBoardClock = 3;
  const bool bpssHigh = list == kIoBoardClock && frmHard->picBPSS.Tag == "1";
  clockSetting[list] = static_cast<std::int16_t>(combo.ListIndex + (bpssHigh ? 1 : 0));
}

void takeCPUType() {
  cpuType = static_cast<std::int16_t>(frmHard->cmbCPUType.ListIndex);
  frmHard->cmbCPUType.Visible = false;
  setPointer(frmHard->picCPU, kDoubleClickPointer);
  // It reads byte by byte, as a 16-bit bus never does.
  if (wideBus() && frmMemoryRead.visible()) frmMemoryRead->hide();
  resetDumpLayout(kAllDumpWindows);
  changeKAIROZU(0);
}

void takeIOS() {
  ioBoardMode = static_cast<std::int16_t>(frmHard->cmbIOS.ListIndex);
  setIOMode();
  driveIoBoardOutputs();
  setPointer(frmHard->picIOS, kDoubleClickPointer);
  frmHard->cmbIOS.Visible = false;
  changeKAIROZU(5);
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

void picBPSS_DblClick() {
  PictureBox& input = frmHard->picBPSS;
  const bool high = !(input.Tag == "1");
  input.Picture = frmHard->ilsDIP1.image(high ? 4 : 3);
  input.Tag = high ? "1" : "0";
  frmHard->lblPBPSS.Caption = high ? "BPSS-H" : "BPSS-L";
  if (high) {
    ++clockSetting[3];
  } else if (clockSetting[3] != 0) {
    --clockSetting[3];
  }
}

}  // namespace

void attachLists(FrmHard& panel) {
  for (ComboBox& list : panel.cmbClock) {
    fillList(list, list.index() == 0 ? kCenterClocks : kClocks);
    closesOnPick(list);
  }
  for (Label& label : panel.lblClock)
    label.Caption = label.index() == 0 ? "48MHz" : "24MHz";
  panel.lblPBPSS.Caption = "BPSS-L";
  for (ComboBox& list : panel.cmbSA)
    closesOnPick(list);
  closesOnPick(panel.cmbCPUType);
  closesOnPick(panel.cmbIOS);
  closesOnPick(panel.cmbMode);

  for (PictureBox& picture : panel.picClock) {
    const int i = picture.index();
    if (i == 0) continue;
    picture.onDblClick = [i] {
      openList(frmHard->cmbClock(i));
      setPointer(frmHard->picClock(i), kClickPointer);
    };
    picture.onClick = [i] {
      if (!frmHard->cmbClock(i).Visible) return;
      frmHard->cmbClock(i).Visible = false;
      setPointer(frmHard->picClock(i), kDoubleClickPointer);
    };
  }
  for (ComboBox& list : panel.cmbClock)
    list.onLostFocus = [i = list.index()] { takeClock(i); };

  for (PictureBox& picture : panel.picSA) {
    const int list = picture.index() / 2;
    picture.onDblClick = [list] {
      openList(frmHard->cmbSA(list));
      setSAPointers(list, kClickPointer);
    };
    picture.onClick = [list] {
      frmHard->cmbSA(list).Visible = false;
      setSAPointers(list, kDoubleClickPointer);
    };
  }
  for (ComboBox& list : panel.cmbSA)
    list.onLostFocus = [i = list.index()] { takeSA(i); };

  const auto opens = [](PictureBox& picture, ComboBox& list, bool pointers) {
    picture.onDblClick = [&picture, &list, pointers] {
      openList(list);
      if (pointers) setPointer(picture, kClickPointer);
    };
    picture.onClick = [&picture, &list, pointers] {
      if (!list.Visible) return;
      list.Visible = false;
      if (pointers) setPointer(picture, kDoubleClickPointer);
    };
  };
  opens(panel.picCPU, panel.cmbCPUType, true);
  opens(panel.picIOS, panel.cmbIOS, true);
  opens(panel.picMode, panel.cmbMode, false);
  panel.cmbCPUType.onLostFocus = takeCPUType;
  panel.cmbIOS.onLostFocus = takeIOS;
  panel.cmbMode.onLostFocus = takeMode;
  panel.picBPSS.onDblClick = picBPSS_DblClick;
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

void FrmHard::initCombo() {
  selectSetting(cmbCPUType, "CPUTYPE", cpuType);
  constexpr std::array<std::string_view, 3> kAddressKeys = {"SA-QVT40-1", "SA-QVT40-3", "SA-QVT50"};
  for (int i = 0; i < 3; ++i) {
    selectSetting(cmbSA(i), kAddressKeys[static_cast<std::size_t>(i)], saSetting[i]);
    takeSA(i);  // the list position becomes a station number
  }
  constexpr std::array<std::string_view, 4> kClockKeys = {"CLOCK-QVT60", "CLOCK-QVT40-1", "CLOCK-QVT40-3",
                                                          "CLOCK-QVT50"};
  for (int i = 0; i < 4; ++i) {
    selectSetting(cmbClock(i), kClockKeys[static_cast<std::size_t>(i)], clockSetting[i]);
    takeClock(i);
  }
  selectSetting(cmbIOS, "IOS-QVT50", ioBoardMode);
  selectSetting(cmbMode, "MODE-QVT50", ioBoardCounterMode);
  takeIOS();
}

void FrmHard::chkSADup() {
  constexpr int kOffLine = 65535;
  const auto station = [this](int list, int connector) {
    return picBOARD2_RXD(connector).Tag == "1" ? cmbSA(list).ListIndex + 1 : kOffLine;
  };
  const auto slaveStation = [this](int master, int bridge) {
    return master != kOffLine && picBridge(bridge).Visible ? master + 1 : kOffLine;
  };
  std::array<int, 6> cells{};  // 1 to 5, by board
  cells[1] = station(0, 0);
  cells[2] = slaveStation(cells[1], 0);
  cells[3] = station(1, 1);
  cells[4] = slaveStation(cells[3], 1);
  cells[5] = station(2, 3);
  for (std::size_t i = 1; i <= 5; ++i) {
    for (std::size_t j = i + 1; j <= 5 && cells[i] != kOffLine; ++j) {
      if (cells[i] != cells[j]) continue;
      if (startupDone == kTrue) {
        askDialog("ボード" + std::to_string(i) + "と、ボード" + std::to_string(j) +
                      "のＳＡが重複しています｡正常な通信が行えません｡ ",
                  DialogMode::OneButton, kWarningTitle);
      }
      return;  // only the first pair is told
    }
  }
}

}  // namespace zelvs
