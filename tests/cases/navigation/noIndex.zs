# Without an index the list is empty and says so.
#no-lessons
expect processStep 8
dblclick frmMDI.lblNagigator
expect frmNaviList.Visible True
expect frmNaviList.lstTitle.ListCount 0
expect frmNaviList.lstTitle.ListIndex -1
expect frmNaviList.lblNoFile.Visible True
expect frmNaviList.lblNoFile.Caption ナビゲーションのファイルがありません。
expect frmNaviList.cmdStart.Enabled False
click frmNaviList.cmdStart
expect error
close frmNaviList
expect frmNaviList.Visible False
dblclick frmMDI.lblNagigator
click frmNaviList.cmdCancel
expect frmNaviList.Visible False
