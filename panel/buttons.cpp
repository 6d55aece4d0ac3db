// The buttons that a hand presses and holds: counters, CLR, RESET and NOISE.

#include "bench/frmHard.h"
#include "link/outputStage.h"
#include "panel/ioCounter.h"
#include "panel/panelParts.h"
#include "panel/resets.h"
#include "state/state.h"

namespace zelvs {

namespace {

void picCounter_MouseDown(int i) {
  frmHard->picCounter(i).Picture = frmHard->ilsCount.image(kCounterDown);
  if (i == kIoCounterClear && ioBoardCounterMode == 0) clearIoCounter();
}

void picCounter_MouseUp(int i) {
  frmHard->picCounter(i).Picture = frmHard->ilsCount.image(kCounterUp);
  if (i > kIoCounter) return;
  // 16 bits, over both bytes.
  if (++boardCounters[2 * i] == 0) ++boardCounters[2 * i + 1];
  if (i == kIoCounter) mirrorIoCounter();
}

void picCLR_DblClick(int i) {
  frmHard->picCLR(i).Picture = frmHard->ilsCount.image(kClrDown);
  const int board = i + 1;
  if (board == kIoBoard) {
    ioBoardClrHeld = kTrue;
    ioBoardDo = 0;
    driveIoBoardOutputs();
  } else {
    boardClrHeld[board] = kTrue;
    boardDo[board] = 0;
    driveBoardOutputs(board);
  }
}

void picCLR_MouseUp(int i) {
  frmHard->picCLR(i).Picture = frmHard->ilsCount.image(kClrUp);
  const int board = i + 1;
  (board == kIoBoard ? ioBoardClrHeld : boardClrHeld[board]) = kFalse;
}

void resetCenter() {
  continuousScanActive = kFalse;
  oneShotScanActive = kFalse;
  currentStation = 0;
  frmHard->picScanLed.Picture = frmHard->ilsLED_G.image(kDark);
  frmHard->picScanLed.Tag = "0";
  resetCenterRegisters();
  // The hardware comes up in full duplex whatever the jumper says: half's 3 does not survive this button.
  chipMemory[kBcrLow] = kBcrResetFull;
}

void resetIoBoard() {
  ioBoardResetHeld = kTrue;
  ioBoardDo = 0;
  clearIoCounter();
  driveIoBoardOutputs();
  frmHard->picB1_LED(kIoBoard).Picture = frmHard->ilsLED_R.image(kDark);
}

void resetQvt40(int board) {
  boardResetHeld[board] = kTrue;
  boardDo[board] = 0;
  driveBoardOutputs(board);
}

void picReset_DblClick(int board) {
  frmHard->picReset(board).Picture = frmHard->ilsRESET.image(kResetDown);
  if (board == kCenterBoard) {
    resetCenter();
  } else if (board == kIoBoard) {
    resetIoBoard();
  } else {
    resetQvt40(board);
  }
}

void picReset_MouseUp(int board) {
  frmHard->picReset(board).Picture = frmHard->ilsRESET.image(kResetUp);
  if (board == kIoBoard) {
    ioBoardResetHeld = kFalse;
  } else if (board != kCenterBoard) {
    boardResetHeld[board] = kFalse;
  }
}

void picNoise_MouseDown() {
  noiseHeld = kTrue;
  noiseHoldOff = kNoiseHoldOffSteps;
  frmHard->picNoise.Picture = frmHard->ilsNOISE.image(kNoiseDown);
}

void picNoise_MouseUp() {
  noiseHeld = kFalse;
  frmHard->picNoise.Picture = frmHard->ilsNOISE.image(kNoiseUp);
}

}  // namespace

void attachButtons(FrmHard& panel) {
  panel.picCounter.on(&Control::onMouseDown, picCounter_MouseDown);
  panel.picCounter.on(&Control::onMouseUp, picCounter_MouseUp);
  panel.picCLR.on(&Control::onDblClick, picCLR_DblClick);
  panel.picCLR.on(&Control::onMouseUp, picCLR_MouseUp);
  panel.picReset.on(&Control::onDblClick, picReset_DblClick);
  panel.picReset.on(&Control::onMouseUp, picReset_MouseUp);
  panel.picNoise.onMouseDown = picNoise_MouseDown;
  panel.picNoise.onMouseUp = picNoise_MouseUp;
}

}  // namespace zelvs
