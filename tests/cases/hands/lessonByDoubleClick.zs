#lesson NaviIndex.txt first.txt|First|
#lesson NaviIndex.txt second.txt|Second|
#lesson first.txt one
#lesson first.txt
#lesson first.txt
#lesson second.txt two
#lesson second.txt
#lesson second.txt
# A double click on a lesson starts it.
dblclick frmMDI.lblNagigator
wait 600
hand move frmNaviList.lstTitle 1
hand down
hand up
expect frmNaviList.lstTitle.ListIndex 1
wait 100
hand down
hand up
expect frmNaviList.Visible False
expect frmNavigation.Visible True
expect frmNavigation.picNav(0).Drawing "text 0 0 0 \"two\""
close frmNavigation

# One beside the rows starts none.
dblclick frmMDI.lblNagigator
wait 600
hand move frmNaviList.lstTitle
hand down
hand up
wait 100
hand down
hand up
expect frmNaviList.Visible True
expect frmNavigation.Visible False
click frmNaviList.cmdCancel

# By its name
dblclick frmMDI.lblNagigator
dblclick frmNaviList.lstTitle
expect frmNavigation.Visible True
