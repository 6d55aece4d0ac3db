# The shipped hints: a double click on a register turns to its own, one on a control word to the seventh.
wait 100
expect frmHint.Visible True
expect frmHint.tabHint.Tabs 9
expect frmHint.tabHint.TabCaption(1) SSR
expect frmHint.tabHint.TabCaption(6) コントロール
# SSR and, during a scan, BCR open no dialog and turn to no hint.
dblclick frmRegister.lblValL(2)
dblclick frmRegister.lblValL(8)
expect frmHint.tabHint.Tab 0
dblclick frmRegister.lblValL(3)
expect frmHint.tabHint.Tab 2
expect frmHint.tabHint.TabCaption(2) HPR
click frmEditRegister.cmdAction(1)
dblclick frmRegister.lblValL(4)
expect frmHint.tabHint.Tab 3
expect frmHint.tabHint.TabCaption(3) INT0R
click frmEditRegister.cmdAction(1)
dblclick frmRegister.lblValL(5)
expect frmHint.tabHint.Tab 4
expect frmHint.tabHint.TabCaption(4) INT1R
click frmEditRegister.cmdAction(1)
dblclick frmRegister.lblValL(6)
expect frmHint.tabHint.Tab 7
expect frmHint.tabHint.TabCaption(7) C1CR
click frmEditRegister.cmdAction(1)
dblclick frmRegister.lblValL(7)
expect frmHint.tabHint.Tab 8
expect frmHint.tabHint.TabCaption(8) C2CR
click frmEditRegister.cmdAction(1)
dblclick frmRegister.lblValL(1)
expect frmHint.tabHint.Tab 0
expect frmHint.tabHint.TabCaption(0) SCR
type frmEditRegister.txtWriteData 0000
click frmEditRegister.cmdAction(0)
wait 100
dblclick frmRegister.lblValL(8)
expect frmHint.tabHint.Tab 5
expect frmHint.tabHint.TabCaption(5) BCR
click frmEditRegister.cmdAction(1)
dblclick frmDumpCDIO.lblData(13)
expect frmHint.tabHint.Tab 6
click frmEditMemory.cmdAction(1)
