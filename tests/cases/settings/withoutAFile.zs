#no-ini
# Everything reads as 0, and saving makes the file: a dialog that is opened later would find it.
click frmMDI.lblDefault
expect frmDefault.chkDef(0).Value 0
expect frmDefault.cmbSA(2).ListIndex 0
expect frmDefault.optHF(0).Value True
click frmDefault.cmdAction(2)
expect frmDefault.Visible True
expect beeps 0
