#include "link/outputStage.h"

#include <algorithm>
#include <cmath>

#include "bench/frmHard.h"
#include "state/state.h"

namespace zelvs {

namespace {

// The two direction bits of board 5's low byte.
constexpr std::uint8_t kDirectionBits = 0xC0;
constexpr std::uint8_t kForward = 0x40;
constexpr std::uint8_t kBackward = 0x80;
constexpr int kDutyRange = 64;

void drivePin(PictureBox& pin, bool lit) {
  pin.Picture = frmHard->ilsLED_G.image(lit ? kLit : kDark);
  pin.Tag = lit ? "O1" : "O0";
}

void showBelt() {
  frmHard->imgBelt.Picture = frmHard->ilsMotor.image(beltFrame);
  frmHard->picTriangle.Picture = frmHard->ilsTriangle.image((1 - motorReverse) * 4 + triangleFrame);
}

int dutyOf(std::uint8_t direction) {
  // Two equal direction bits mean stop; the plain PWM mode knows one direction only.
  if (direction == 0 || direction == kDirectionBits) return 0;
  if (ioBoardMode == 6 && direction != kForward) return 0;
  return ioBoardDo % kDutyRange;
}

int beltInterval(int duty) {
  constexpr int kFullDutyInterval = 125;
  if (duty == 0) return 0;
  // Full duty is kept a little slower than the duty below it.
  if (duty > 62) return kFullDutyInterval;
  return static_cast<int>(std::nearbyint((63 - duty) * 14.5 + 100));
}

}  // namespace

void driveBoardOutputs(int board) {
  for (int bit = kPinsOfBoard - 1; bit >= 0; --bit) {
    drivePin(frmHard->picPO((board - 1) * kPinsOfBoard + bit), (boardDo[board] >> bit & 1) != 0);
  }
}

void driveIoBoardOutputs() {
  for (int bit = kPinsOfBoard - 1; bit >= 0; --bit) {
    PictureBox& pin = frmHard->picPI(kFirstIoPin + bit);
    if (pin.Tag.get().starts_with('O')) drivePin(pin, (ioBoardDo >> bit & 1) != 0);
  }
  if (ioBoardMode >= 6) drivePwm();
}

void drivePwm() {
  const std::uint8_t direction = ioBoardDoLow & kDirectionBits;
  const int duty = dutyOf(direction);
  for (int bit = 0; bit < 6; ++bit) {
    frmHard->picPower(bit).Picture = frmHard->ilsLED_G.image((duty >> bit & 1) != 0 ? kLit : kDark);
  }
  if (ioBoardMode == 6) {
    const int level = std::min(duty / 8, 7);
    frmHard->imgBelt.Picture = frmHard->ilsMotor.image(level + 4);
  }
  if (ioBoardMode == 7) {
    if (direction == kForward) {
      motorReverse = 0;
      triangleFrame = 4;
    } else if (direction == kBackward) {
      motorReverse = 1;
      triangleFrame = 1;
    }
    beltFrame = 1;
    frmHard->timMotor.Interval = beltInterval(duty);
    showBelt();
  }
}

void turnBelt() {
  if ((ioBoardDoLow & kBackward) == 0) {
    beltFrame = beltFrame <= 1 ? 3 : beltFrame - 1;
    triangleFrame = triangleFrame <= 1 ? 4 : triangleFrame - 1;
  } else {
    beltFrame = beltFrame >= 3 ? 1 : beltFrame + 1;
    triangleFrame = triangleFrame >= 4 ? 1 : triangleFrame + 1;
  }
  showBelt();
}

}  // namespace zelvs
