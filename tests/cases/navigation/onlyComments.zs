# An index of comments is an empty one.
#lesson NaviIndex.txt ; nothing yet
#lesson NaviIndex.txt ;a.txt|a|
dblclick frmMDI.lblNagigator
expect frmNaviList.lstTitle.ListCount 0
expect frmNaviList.cmdStart.Enabled False
