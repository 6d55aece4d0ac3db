// The boards' serial inputs: a word from the generator, kept until the center has read it.

#include <array>
#include <cstdlib>
#include <string>

#include "bench/frmHard.h"
#include "dialogs/frmMessage.h"
#include "dialogs/messages.h"
#include "panel/besideBoard.h"
#include "panel/frmEditSerial.h"
#include "panel/panelParts.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/desk.h"

namespace zelvs {

namespace {

// Index: picSDI.
constexpr std::array<BesideBoard, 4> kEditorPlaces = {{{2800, 7500}, {2800, 12600}, {5900, 7500}, {5900, 12600}}};

/// The word is four hexadecimal digits, high byte first; of a shorter text the missing digits count as none.
void sendWord(int i, const std::string& digits) {
  frmHard->picSE(i).Picture = frmHard->ilsLED_G.image(kLit);
  serialPending[i] = kTrue;
  const std::string high = digits.substr(0, 2);
  const std::string low = digits.substr(high.size(), 2);
  serialData[2 * i + 1] = static_cast<std::uint8_t>(hexValue(high));
  serialData[2 * i] = static_cast<std::uint8_t>(hexValue(low));
}

void picSDI_DblClick(int i) {
  if (serialPending[i] == kTrue) {
    showMessage("SEがローレベル(LED点灯)中は入力できません。");
    return;
  }
  serialEditBoard = static_cast<std::int16_t>(i);
  FrmEditSerial& dialog = *frmEditSerial;
  dialog.lblAdr.Caption = std::to_string(i + 1);
  dialog.lblSECaution.Visible = false;
  if (frmMessage.visible()) frmMessage->hide();
  moveBesideBoard(dialog, kEditorPlaces[static_cast<std::size_t>(i)]);
  dialog.show(ShowMode::Modal, desk().frame());
  frmHard->picSerialInt(i).Visible = false;
  if (dialog.cancelled == kFalse) sendWord(i, dialog.enteredValue);
}

/// Would end the animation of a serial line by itself. Nothing enables the timer, since the generator that shows the
/// line hides it as well; it stands ready as the panel's given second way.
void timSE_Timer() {
  for (PictureBox& line : frmHard->picSerialInt) {
    int seconds = std::atoi(line.Tag.get().c_str());
    if (seconds > 0) {
      --seconds;
      if (seconds == 0) {
        line.Visible = false;
        frmHard->picSE(line.index()).Picture = frmHard->ilsLED_G.image(kLit);
      }
    }
    line.Tag = std::to_string(seconds);  // one that was empty becomes "0", which countDown() would not do
  }
  frmHard->picSerialInt(serialEditBoard).Visible = false;
  frmHard->timSE.Enabled = false;
}

}  // namespace

void attachSerialInput(FrmHard& panel) {
  panel.picSDI.on(&Control::onDblClick, picSDI_DblClick);
  panel.timSE.onTimer = timSE_Timer;
  panel.timSE.Enabled = false;
  panel.timSE.Interval = 1000;
}

}  // namespace zelvs
