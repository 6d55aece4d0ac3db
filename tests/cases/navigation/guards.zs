# While the about window is there the label does nothing at all.
#lesson NaviIndex.txt a.txt|a|
click frmMDI.lblVersion
dblclick frmMDI.lblNagigator
expect frmNaviList.Visible False
wait 5000
expect frmVersion.Visible False
dblclick frmMDI.lblNagigator
expect frmNaviList.Visible True
# The bench goes on behind the list.
set chk1LedTimer 100
wait 100
expect chk1LedTimer 0
click frmNaviList.cmdCancel
