# Values that SCR does not take.
click frmMDI.lblRunMode(1)
poke 0x580 0
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0505
click frmEditRegister.cmdAction(0)
expect frmEditRegister.Visible False
expect frmMessage.Visible True
expect frmMessage.lblMessage.Caption 入力された値が不適切であるため、書き込まれません。
expect beeps 1
expect peek 0x580 00 00
expect frmRegister.lblValL(1).ForeColor 0
expect frmRegister.lblValH(1).ForeColor 0
wait 2000
expect frmMessage.Visible False
# a scan to station 1 needs half duplex
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0001
click frmEditRegister.cmdAction(0)
expect beeps 2
expect peek 0x580 00 00
# six bits count: 41H is station 1
dblclick frmRegister.lblValH(1)
click frmEditRegister.opnAccess(1)
expect frmEditRegister.editAccess 1
expect frmEditRegister.lblAdr.Caption "581H SCR 15-8"
type frmEditRegister.txtWriteData 41
click frmEditRegister.cmdAction(0)
expect beeps 3
expect peek 0x580 00 00
