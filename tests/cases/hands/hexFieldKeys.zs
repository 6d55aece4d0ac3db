# A hex field has exactly one digit selected, whatever keys with Control come to it.
click frmMDI.lblRunMode(1)
dblclick frmRegister.lblValL(4)
hand key Right
hand key Right
expect frmEditRegister.txtWriteData.SelStart 2
hand key ctrl+Left
expect frmEditRegister.txtWriteData.SelStart 1
expect frmEditRegister.txtWriteData.SelLength 1
hand key ctrl+Right
expect frmEditRegister.txtWriteData.SelStart 2
expect frmEditRegister.txtWriteData.SelLength 1
hand key ctrl+End
expect frmEditRegister.txtWriteData.SelStart 3
expect frmEditRegister.txtWriteData.SelLength 1
hand key ctrl+Home
expect frmEditRegister.txtWriteData.SelStart 0
expect frmEditRegister.txtWriteData.SelLength 1
hand key ctrl+shift+Right
expect frmEditRegister.txtWriteData.SelLength 1
hand key shift+End
expect frmEditRegister.txtWriteData.SelStart 3
expect frmEditRegister.txtWriteData.SelLength 1

# All of them cannot be selected: Ctrl+A goes to the first.
hand key ctrl+A
expect frmEditRegister.txtWriteData.SelStart 0
expect frmEditRegister.txtWriteData.SelLength 1
hand key 7
expect frmEditRegister.txtWriteData.Text 7000

# Its Escape is its own; from a button beside it Escape leaves the window.
hand key Escape
expect frmEditRegister.Visible True
expect frmEditRegister.txtWriteData.SelStart 3
hand key Tab
hand key Escape
expect frmEditRegister.Visible False
expect peek 0x586 00 00
