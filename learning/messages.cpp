#include "learning/messages.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "kernel/beep.h"
#include "kernel/tagCountdown.h"
#include "learning/frmDialog.h"
#include "learning/frmMessage.h"
#include "shell/frmMDI.h"
#include "ui/desk.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

constexpr Colour kYellow = 0x00FFFF;
constexpr double kTx = kTwipsPerPixel;
constexpr double kTy = kTwipsPerPixel;

void timErase_Timer() {
  if (!countDown(frmMessage->Tag)) return;
  frmMessage->timErase.Enabled = false;
  frmMessage->hide();
}

/// x and y in pixels of the screen.
void popUp(int x, int y, std::string_view text, Form* owner) {
  FrmMessage& form = *frmMessage;
  form.lblMessage.Left = 2 * kTx;
  form.lblMessage.Top = 2 * kTy;
  form.lblMessage.Caption = text;
  form.Width = form.lblMessage.Width + 4 * kTx;
  form.Height = form.lblMessage.Height + 4 * kTy;
  form.move(x * kTx - std::nearbyint(form.Width / 2), (y + 3) * kTy + form.Height);
  form.Tag = "2";
  playBeep();
  form.show(ShowMode::Modeless, owner);
}

void cmdAction_Click(int index) {
  frmDialog->dialogResult = static_cast<std::int16_t>(index + 1);
  frmDialog->hide();
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

FrmDialog::FrmDialog() : Form("frmDialog", kKind, Border::None) {
  BackColor = kYellow;
  addMember("dialogResult", &dialogResult);
  lblDialogTitle.move(0, 0, 6060, 330);
  lblDialogTitle.FontSize = 10;
  lblDialogTitle.FontBold = true;
  lblDialogTitle.Transparent = false;
  lblDialogTitle.BackColor = 0x00C8F0;
  lblMessage.AutoSize = true;
  lblMessage.FontSize = 10;
  lblMessage.Left = 240;
  lblMessage.Top = 450;
  cmdAction(0).Caption = "OK";
  cmdAction(0).Default = true;
  cmdAction(1).Caption = "ｷｬﾝｾﾙ";
  for (CommandButton& button : cmdAction) {
    button.Width = 1215;
    button.Height = 375;
  }
  cmdAction.on(&Control::onClick, cmdAction_Click);
}

void FrmDialog::activated() {
  desk().focus(&cmdAction(0));  // the keyboard answers at once
}

void showMessage(std::string_view text) {
  const Point pointer = platform().pointer();
  popUp(pointer.x, pointer.y, text, frmMDI.get());
}

void showMessageBeside(Form& window, std::string_view text) {
  popUp(static_cast<int>(window.Left / kTx), static_cast<int>(window.Top / kTy), text, &window);
}

int askDialog(std::string_view message, DialogMode mode, std::string_view title) {
  constexpr double kLeastWidth = 6060;
  FrmDialog& form = *frmDialog;
  form.lblMessage.Caption = std::string(message) + "\r\n";
  const double width = std::max(form.lblMessage.Width + 480, kLeastWidth);
  const double height = form.lblMessage.Height + 450 + 700;
  form.Width = width;
  form.Height = height;
  form.lblDialogTitle.Width = width;
  form.lblDialogTitle.Caption = title;
  const double half = std::nearbyint(width / 2);
  const double buttonWidth = form.cmdAction(0).Width;
  for (CommandButton& button : form.cmdAction)
    button.Top = height - button.Height - 8 * kTy;
  const bool two = mode == DialogMode::TwoButtons;
  form.cmdAction(0).Left = two ? half - 1.125 * buttonWidth : half - buttonWidth / 2;
  if (two) form.cmdAction(1).Left = half + 0.125 * buttonWidth;
  form.cmdAction(1).Visible = two;
  const Screen screen = platform().screen();
  form.move((screen.width * kTx - width) / 2, (screen.height * kTy - height) / 2);
  playBeep();
  form.show(ShowMode::Modal, frmMDI.get());
  return form.dialogResult;
}

}  // namespace zelvs
