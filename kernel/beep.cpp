#include "kernel/beep.h"

#include "kernel/state.h"
#include "panel/frmHard.h"
#include "ui/platform.h"

namespace zelvs {

void openBeepDevice() {
  Sound& device = frmHard->mmcBeep;
  device.DeviceType = "WaveAudio";
  device.FileName = programFolder + "/BEEP.WAV";
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
