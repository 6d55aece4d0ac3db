#ini OPENWINDOW2=0
# The drop-down of the tool bar opens the windows and goes away by itself.
click frmMDI.lblMemoryWindow
expect frmDumpSel.Visible True
expect frmDumpSel.Left 4425
expect frmDumpSel.Top 0
click frmDumpSel.cmdAREA(1)
expect frmDumpSel.Visible False
expect frmDumpC17.Visible True
expect frmDumpC17.lblAdr(0).Caption 18x
move frmDumpC17.lblData(113)
expect frmDumpC17.lblPointSA.Caption " Pointing SA = 3FH  (63)"
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(2)
expect frmDumpDRC.Visible True
click frmMDI.lblMemoryWindow
click frmMDI.lblRunMode(2)
expect frmDumpSel.Visible False
click frmMDI.lblMemoryWindow
activate frmDumpCDIO
expect frmDumpSel.Visible False
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(3)
expect frmMessage.lblMessage.Caption "８ビットバス選択時のみ機能します"
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(4)
expect frmDumpCDIO.Visible False
expect frmDumpC17.Visible False
expect frmDumpDRC.Visible False
expect frmRegister.Visible False
expect frmHard.Visible True
