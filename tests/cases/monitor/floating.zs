#ini OPENWINDOW2=0
# A window that floats stays in front of the panel and keeps its place; cleared, it lies among the others again.
click frmDumpCDIO.chkTopMost
expect frmDumpCDIO.Left 12030
expect frmDumpCDIO.Top 255
expect frmDumpCDIO.Visible True
activate frmHard
forms
#prints frmDumpCDIO visible
move frmDumpCDIO.lblData(15)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 000H (   0) : 00"
click frmDumpCDIO.chkTopMost
expect frmDumpCDIO.Left 12000
expect frmDumpCDIO.Top 0
expect frmDumpCDIO.Visible True
click frmDumpCDIO.cmbBit(0)
expect frmDumpCDIO.Width 7350
# A click that the scan refuses.
wait 100
expect frmHard.picScanLed.Tag 1
dblclick frmDumpCDIO.lblData(256)
expect frmMessage.lblMessage.Caption "スキャン中はライトプロテクト"
