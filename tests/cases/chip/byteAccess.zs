#ini CPUTYPE=3
# An 8-bit bus writes bytes only; on a big-endian CPU the low byte lies at the odd address.
click frmMDI.lblRunMode(1)
dblclick frmRegister.lblValL(3)
expect frmEditRegister.opnAccess(0).Enabled False
expect frmEditRegister.opnAccess(1).Value True
expect frmEditRegister.editLowByte 1
expect frmEditRegister.lblAdr.Caption "585H HPR 7-0"
expect frmEditRegister.txtWriteData.Text 00
expect frmRegister.lblValL(3).ForeColor 255
expect frmRegister.lblValH(3).ForeColor 0
click frmEditRegister.opnAccess(0)
expect error
type frmEditRegister.txtWriteData ff
click frmEditRegister.cmdAction(0)
expect peek 0x584 10 00
dblclick frmRegister.lblBinH(3)
expect frmEditRegister.lblAdr.Caption "584H HPR 15-8"
expect frmEditRegister.lblBitInd.Caption "bit 15-8"
expect frmRegister.lblBinH(3).ForeColor 255
expect frmRegister.lblBinL(3).ForeColor 0
type frmEditRegister.txtWriteData 11
click frmEditRegister.cmdAction(0)
expect peek 0x584 10 10
expect frmRegister.lblBinH(3).ForeColor 0
