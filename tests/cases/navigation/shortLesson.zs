# Two lines are no whole page, but they are there to be shown.
#lesson NaviIndex.txt a.txt|a|
#lesson a.txt a
#lesson a.txt b
dblclick frmMDI.lblNagigator
click frmNaviList.cmdStart
expect frmNavigation.pageCount 0
expect frmNavigation.lblIndex.Caption 1/0
expect frmNavigation.picNav(1).Drawing "text 0 0 0 \"b\""
expect frmNavigation.cmdAction(1).Enabled True
click frmNavigation.cmdAction(1)
expect frmNavigation.currentPage 1
