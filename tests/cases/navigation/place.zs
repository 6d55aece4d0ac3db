# Both windows stand in the corner of the screen.
#lesson NaviIndex.txt a.txt|a|
#lesson a.txt a
#lesson a.txt b
#lesson a.txt c
dblclick frmMDI.lblNagigator
get frmNaviList.Left frmNaviList.Top frmNaviList.Width frmNaviList.Height screen.Width screen.Height
click frmNaviList.cmdStart
expect frmNavigation.Width 11205
expect frmNavigation.Height 1785
expect frmNavigation.picNav(0).Left 105
expect frmNavigation.picNav(0).Width 10995
expect frmNavigation.picNav(1).Width 10995
expect frmNavigation.cmdAction(3).Left 9780
expect frmNavigation.cmdAction(2).Left 8315
get frmNavigation.lblIndex.Left frmNavigation.cmdAction(1).Left frmNavigation.cmdAction(1).Width
# In front of a window that the user turns to.
activate frmHard
forms
#prints frmNavigation visible
