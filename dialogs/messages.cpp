#include "dialogs/messages.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "dialogs/beep.h"
#include "dialogs/frmDialog.h"
#include "dialogs/frmMessage.h"
#include "ui/desk.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

constexpr double kTx = kTwipsPerPixel;
constexpr double kTy = kTwipsPerPixel;

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

}  // namespace

void showMessage(std::string_view text) {
  const Point pointer = platform().pointer();
  popUp(pointer.x, pointer.y, text, desk().frame());
}

void showMessageBeside(Form& window, std::string_view text) {
  popUp(static_cast<int>(window.Left / kTx), static_cast<int>(window.Top / kTy), text, &window);
}

int askDialog(std::string_view message, DialogMode mode, std::string_view title) {
  constexpr double kLeastWidth = 6060;
  desk().focus(nullptr);  // a list that lies open has its own warning first, in the same box
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
  form.show(ShowMode::Modal, desk().frame());
  return form.dialogResult;
}

}  // namespace zelvs
