# A masked DI change halts the scan until the CPU writes a 1 to its status bit.
click frmMDI.lblRunMode(1)
poke 0x502 0xFF 0xFF          # DRC of station 1: every bit counts
dblclick frmRegister.lblValH(4)
expect frmEditRegister.lblAdr.Caption "586H INT0R 15-0"
type frmEditRegister.txtWriteData 0400
click frmEditRegister.cmdAction(0)
expect peek 0x586 00 04
wait 4000
step 5
click frmHard.picPI(3)
step 10
expect peek 0x586 04 04
expect currentStation 1
step 20
expect currentStation 1
expect frmHard.picInt.Visible True
expect frmHard.picInt.Picture "ilsInt 2"
tick
expect frmRegister.lblValL(4).Caption 04
click frmMDI.lblRegisterWindow
click frmMDI.lblRunMode(0)
wait 20
expect frmRegister.lblValL(4).Caption 04
expect frmRegister.lblValL(4).ForeColor 255
expect frmRegister.lblBinL(4).ForeColor 255
expect frmRegister.lblValL(4).Tag 4
click frmMDI.lblRunMode(1)
# ones in other places clear nothing
dblclick frmRegister.lblValL(4)
expect frmEditRegister.txtWriteData.Text 0404
type frmEditRegister.txtWriteData 04fb
click frmEditRegister.cmdAction(0)
step 20
expect currentStation 1
dblclick frmRegister.lblValL(4)
type frmEditRegister.txtWriteData 0404
click frmEditRegister.cmdAction(0)
expect peek 0x586 00 04
expect frmHard.picInt.Visible False
step 3
expect currentStation 4
