#include "dialogs/frmMessage.h"

#include "ui/tagCountdown.h"

namespace zelvs {

namespace {

void timErase_Timer() {
  if (!countDown(frmMessage->Tag)) return;
  frmMessage->timErase.Enabled = false;
  frmMessage->hide();
}

}  // namespace

FrmMessage::FrmMessage() : Form("frmMessage", kKind, Border::None) {
  BackColor = kYellow;
  lblMessage.AutoSize = true;
  lblMessage.FontSize = 10;
  lblMessage.onClick = [] { frmMessage->click(); };
  timErase.Enabled = false;
  timErase.onTimer = timErase_Timer;
}

void FrmMessage::activated() {
  timErase.Enabled = false;  // one that still runs for the message before would cut this one short
  timErase.Interval = 1000;
  timErase.Enabled = true;
}

void FrmMessage::click() {
  Tag = "1";
  timErase_Timer();
}

}  // namespace zelvs
