# A memory window that floats and is closed comes back floating, with its caption bar below the tool bar. Closed twice
# and by both ways it does not wander.
click frmDumpCDIO.chkTopMost
expect frmDumpCDIO.Top 255
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(4)
expect frmDumpCDIO.Visible False
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(0)
expect frmDumpCDIO.Visible True
expect frmDumpCDIO.chkTopMost.Value 1
expect frmDumpCDIO.Left 12030
expect frmDumpCDIO.Top 255
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(4)
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(0)
expect frmDumpCDIO.Top 255
# Its box unloads it: the next one lies among the others.
close frmDumpCDIO
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(0)
expect frmDumpCDIO.chkTopMost.Value 0
expect frmDumpCDIO.Top 0
