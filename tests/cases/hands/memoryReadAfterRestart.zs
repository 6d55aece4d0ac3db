#ini CPUTYPE=1
# A start anew that brings a 16-bit bus closes the window that reads byte by byte.
wait 100
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(3)
expect frmMemoryRead.Visible True
click frmMDI.lblDefault
select frmDefault.cmbCPUType 0
click frmDefault.cmdAction(1)
expect cpuType 0
expect frmMemoryRead.Visible False

# One that keeps an 8-bit bus leaves it alone.
click frmMDI.lblDefault
select frmDefault.cmbCPUType 3
click frmDefault.cmdAction(1)
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(3)
click frmMDI.lblDefault
click frmDefault.cmdAction(1)
expect cpuType 3
expect frmMemoryRead.Visible True

# A lesson brings the maker's values, a 16-bit bus among them.
dblclick frmMDI.lblNagigator
click frmNaviList.cmdStart
expect cpuType 0
expect frmMemoryRead.Visible False
