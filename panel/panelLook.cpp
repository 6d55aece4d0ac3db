// The look of the panel that is set up once or at each activation.

#include <string>

#include "bench/frmHard.h"
#include "bench/ilsMouse.h"
#include "panel/panelParts.h"

namespace zelvs {

namespace {

template <class T>
void setPointers(ControlArray<T>& controls, int image) {
  for (T& control : controls)
    setPointer(control, image);
}

}  // namespace

void initIntPicture() {
  frmHard->picInt.Picture = frmHard->ilsInt.image(1);
}

void initMousePointers() {
  constexpr int kDoubleClick = kDoubleClickPointer;
  constexpr int kPress = kClickPointer;
  FrmHard& panel = *frmHard;
  setPointer(panel.picCPU, kDoubleClick);
  setPointer(panel.picIOS, kDoubleClick);
  setPointer(panel.picMode, kDoubleClick);
  setPointers(panel.picJumper, kDoubleClick);
  setPointers(panel.picSTB, kDoubleClick);
  setPointers(panel.picQVT, kDoubleClick);
  setPointers(panel.picReset, kDoubleClick);
  // The center's clock cannot be worked and keeps the normal pointer.
  for (int i = 1; i <= 3; ++i)
    setPointer(panel.picClock(i), kDoubleClick);
  setPointers(panel.picBOARD1_RXD, kDoubleClick);
  setPointers(panel.picBOARD2_RXD, kDoubleClick);
  setPointers(panel.picFConn, kDoubleClick);
  setPointers(panel.picBridge, kDoubleClick);
  setPointers(panel.picSA, kDoubleClick);
  setPointers(panel.picSSA, kDoubleClick);
  setPointers(panel.picSSB, kDoubleClick);
  setPointers(panel.picSDI, kDoubleClick);
  setPointer(panel.picPWM, kDoubleClick);
  setPointer(panel.picBPSS, kDoubleClick);
  setPointer(panel.picNoise, kPress);
  setPointers(panel.picPI, kPress);
  setPointers(panel.picCounter, kPress);
}

void printRXDLabels() {
  for (PictureBox& port : frmHard->picBOARD1_RXD) {
    // Cleared first: the texts would pile up at each activation.
    port.cls();
    port.FontSize = 9;
    port.ForeColor = kWhite;
    port.CurrentX = 4;
    port.CurrentY = 7;
    port.print(std::to_string(port.index() + 1) + "RXD");
  }
}

}  // namespace zelvs
