#include "dialogs/frmDialog.h"

#include "ui/desk.h"

namespace zelvs {

namespace {

void cmdAction_Click(int index) {
  frmDialog->dialogResult = static_cast<std::int16_t>(index + 1);
  frmDialog->hide();
}

}  // namespace

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
  cmdAction(1).Cancel = true;
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

}  // namespace zelvs
