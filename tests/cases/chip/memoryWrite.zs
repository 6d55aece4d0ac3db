#ini OPENWINDOW1=0
# A word is written into the mask of station 1 through its window, and the cells show it.
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(2)
dblclick frmDumpDRC.lblData(13)
expect frmEditMemory.Visible True
expect frmEditMemory.lblAdr.Caption 502
type frmEditMemory.txtWriteData A55A
expect frmDumpDRC.lblData(13).ForeColor 255
click frmEditMemory.cmdAction(0)
expect frmEditMemory.Visible False
expect peek 0x502 5A A5
expect frmDumpDRC.lblData(13).Caption 5A
expect frmDumpDRC.lblData(12).Caption A5
# A byte, cancelled: nothing is written.
dblclick frmDumpDRC.lblASC(13)
click frmEditMemory.opnAccess(1)
type frmEditMemory.txtWriteData FF
click frmEditMemory.cmdAction(1)
expect peek 0x502 5A A5
expect frmDumpDRC.lblData(13).ForeColor 0
