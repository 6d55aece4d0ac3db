# A count is cleared by a 1 in bit 0 of its low byte and by nothing else.
click frmMDI.lblRunMode(1)
poke 0x58A 0x77
dblclick frmRegister.lblValL(6)
expect frmEditRegister.txtWriteData.Text 0077
type frmEditRegister.txtWriteData 0100
click frmEditRegister.cmdAction(0)
expect peek 0x58A 77 00
dblclick frmRegister.lblValH(6)
click frmEditRegister.opnAccess(1)
expect frmEditRegister.lblAdr.Caption "58BH C1CR 15-8"
type frmEditRegister.txtWriteData FF
click frmEditRegister.cmdAction(0)
expect peek 0x58A 77 00
expect frmMessage.Visible False
dblclick frmRegister.lblValL(6)
type frmEditRegister.txtWriteData 0001
click frmEditRegister.cmdAction(0)
expect peek 0x58A 00 00
