# The CPU starts, changes and stops the scan by words into SCR.
click frmMDI.lblRunMode(1)
poke 0x580 0
dblclick frmRegister.lblValL(1)
expect frmEditRegister.Visible True
expect frmEditRegister.Caption "Register Write"
expect frmEditRegister.lblAdr.Caption "580H SCR 15-0"
expect frmEditRegister.lblBitInd.Caption "bit 15-0"
expect frmEditRegister.txtWriteData.Text 0000
expect frmEditRegister.editRegisterName SCR
expect frmEditRegister.editRow 1
expect frmRegister.lblBinH(1).ForeColor 255
type frmEditRegister.txtWriteData 0005
click frmEditRegister.cmdAction(0)
expect frmEditRegister.Visible False
expect peek 0x580 05 00
expect continuousScanActive 0
step
expect continuousScanActive -1
expect finalStation 5
# a new final station counts from the next round on
dblclick frmRegister.lblBinL(1)
type frmEditRegister.txtWriteData 00c3
expect frmEditRegister.txtWriteData.Text 00C3
click frmEditRegister.cmdAction(0)
expect peek 0x580 03 00
expect finalStation 5
step 5
expect finalStation 3
# a single cycle has to wait
dblclick frmRegister.lblValH(1)
type frmEditRegister.txtWriteData 0500
click frmEditRegister.cmdAction(0)
expect frmMessage.lblMessage.Caption 入力された値が不適切であるため、書き込まれません。
expect peek 0x580 03 00
# 0 stops
dblclick frmRegister.lblValL(1)
expect frmMessage.Visible False
type frmEditRegister.txtWriteData 0000
click frmEditRegister.cmdAction(0)
step 5
expect continuousScanActive 0
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0500
click frmEditRegister.cmdAction(0)
step
expect oneShotScanActive -1
step 5
expect peek 0x580 00 00
