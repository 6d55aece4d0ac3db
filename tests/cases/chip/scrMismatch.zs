# BCR against the jumpers: the value stands, and no scan starts until they agree.
click frmMDI.lblRunMode(1)
poke 0x580 0
step 5
dblclick frmRegister.lblValL(8)
expect frmEditRegister.lblAdr.Caption "58EH BCR 15-0"
expect frmEditRegister.txtWriteData.Text 0013
type frmEditRegister.txtWriteData FF0F
click frmEditRegister.cmdAction(0)
expect frmEditRegister.Visible False
expect frmDialog.Visible True
expect frmDialog.lblDialogTitle.Caption "   警 告"
expect frmDialog.lblMessage.Caption "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\nハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。\r\n"
expect peek 0x58E 03 07
click frmDialog.cmdAction(0)
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0005
click frmEditRegister.cmdAction(0)
expect frmDialog.lblMessage.Caption "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\nハードウェアの設定を変更するか、ＢＣＲの値を変更してください。\r\n"
click frmDialog.cmdAction(0)
dblclick frmRegister.lblValL(1)
click frmEditRegister.opnAccess(1)
type frmEditRegister.txtWriteData 05
click frmEditRegister.cmdAction(0)
expect frmDialog.lblMessage.Caption "通信設定がハードウェア設定と一致していません。\r\n\r\nハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。\r\n"
click frmDialog.cmdAction(0)
dblclick frmRegister.lblValH(1)
click frmEditRegister.opnAccess(1)
type frmEditRegister.txtWriteData 05
click frmEditRegister.cmdAction(0)
expect frmDialog.lblMessage.Caption "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\nハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。\r\n"
click frmDialog.cmdAction(0)
expect peek 0x580 00 00
