#include "dialogs/beep.h"

#include "bench/frmHard.h"
#include "state/state.h"
#include "ui/platform.h"

namespace zelvs {

std::string beepPath() {
  return programFolder + "/BEEP.WAV";
}

void openBeepDevice() {
  Sound& device = frmHard->mmcBeep;
  device.DeviceType = "WaveAudio";
  device.FileName = beepPath();
  if (device.command("Open")) beepDeviceOpen = kTrue;
}

void playBeep() {
  if (beepDeviceOpen != kTrue) {
    platform().systemBeep();
    return;
  }
  frmHard->mmcBeep.command("Prev");
  yieldToEvents();
  frmHard->mmcBeep.command("Play");
  yieldToEvents();
}

}  // namespace zelvs
