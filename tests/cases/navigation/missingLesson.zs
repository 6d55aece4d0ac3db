# A lesson that was missing at the start is listed and refused; the list stays.
#lesson NaviIndex.txt none.txt|なし|
#lesson NaviIndex.txt a.txt|あり|
#lesson a.txt a
#lesson a.txt b
#lesson a.txt c
#ini CPUTYPE=1
dblclick frmMDI.lblNagigator
click frmNaviList.cmdStart
expect box ファイルが見つかりません。
box
click frmNaviList.cmdCancel
expect error
answer cancel
expect error
answer ok
expect frmNaviList.Visible True
expect cpuType 1
click frmNaviList.cmdStart
answer ok
select frmNaviList.lstTitle 1
click frmNaviList.cmdStart
expect frmNavigation.Visible True
expect cpuType 0
#prints 確認 | ファイルが見つかりません。 | ok
