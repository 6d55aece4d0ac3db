#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# the full/half jumper
wait 20
dblclick frmHard.picJumper(0)
expect frmMessage.Visible True
expect frmMessage.lblMessage.Caption "スキャン中の変更は禁止です。"
expect boardFullHalf 16
wait 2000
expect frmMessage.Visible False
click frmMDI.lblRunMode(1)
poke 0x580 0
step 5
dblclick frmHard.picJumper(3)
expect frmDialog.lblDialogTitle.Caption 切り替え確認
expect frmDialog.lblMessage.Caption "すべてのボードの通信方式を切り替えます。\r\nよろしいですか？\r\n"
expect frmDialog.cmdAction(1).Visible True
click frmHard.picJumper(0)
expect error
click frmDialog.cmdAction(0)
expect frmDialog.lblDialogTitle.Caption "   警 告"
expect frmDialog.lblMessage.Caption "設定がＱＶＴ６０のレジスタ設定と一致していません。\r\n"
click frmDialog.cmdAction(0)
expect boardFullHalf 0
expect frmHard.lblHF(0).Caption JMP-H
expect frmHard.picJumper(2).Picture "ilsJumper 2"
expect frmHard.picPTR(3).Visible False
expect frmHard.picPTR(2).Visible True
# answering no still warns
dblclick frmHard.picJumper(1)
click frmDialog.cmdAction(1)
expect frmDialog.lblDialogTitle.Caption "   警 告"
click frmDialog.cmdAction(0)
expect boardFullHalf 0
