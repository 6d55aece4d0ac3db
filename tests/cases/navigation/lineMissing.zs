# A lesson of one line has nothing for the lower strip: the program ends.
#lesson NaviIndex.txt a.txt|a|
#lesson a.txt a
#status 3
expect frmMDI.Visible True
dblclick frmMDI.lblNagigator
click frmNaviList.cmdStart
echo never
