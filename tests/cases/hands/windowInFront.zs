# The takeover of the IOS list makes the panel's window anew in its width. The memory window that the user has turned to
# lies in front all the same: a hand reaches the cell that the panel would cover.
wait 100
dblclick frmHard.picIOS
expect frmHard.cmbIOS.Visible True
click frmDumpCDIO.cmbBit(0)
expect frmHard.cmbIOS.Visible False
hand move frmDumpCDIO.lblData(128)
hand down
hand up
hand down
hand up
expect frmEditMemory.Visible True
expect frmEditMemory.lblAdr.Caption 08E
click frmEditMemory.cmdAction(1)
