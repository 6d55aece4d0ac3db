# A lesson from the list to its end.
#lesson NaviIndex.txt ; file|title|third field
#lesson NaviIndex.txt first.txt|第１章　表を見る|
#lesson NaviIndex.txt ;old.txt|第０章|
#lesson NaviIndex.txt part2\second.txt|第２章　ｶｳﾝﾀ|more|and more
#lesson first.txt 「表示」#ソフト&です。
#lesson first.txt 二行目
#lesson first.txt for the author
#lesson first.txt 三\四
#lesson first.txt
#lesson first.txt
#lesson first.txt never shown
#lesson first.txt never shown
#lesson part2/second.txt a
#lesson part2/second.txt b
#lesson part2/second.txt c
#ini CPUTYPE=2
#ini MEMORYCLEAR=0
#ini OPENWINDOW4=1
wait 100
click frmMDI.lblRunMode(1)
click frmMDI.lblMemoryWindow
dblclick frmMDI.lblNagigator
expect frmDumpSel.Visible False
expect frmNaviList.Caption "Navigator List"
expect frmNaviList.lstTitle.ListCount 2
expect frmNaviList.lstTitle.List(0) 第１章　表を見る
expect frmNaviList.lstTitle.List(1) 第２章　ｶｳﾝﾀ
expect frmNaviList.lstTitle.ListIndex 0
expect frmNaviList.lblNoFile.Visible False
click frmMDI.lblRunMode(0)
expect error
click frmNaviList.cmdCancel
expect frmNaviList.Visible False
expect cpuType 2
expect runMode 1

# The start forces the maker's settings and RUN.
dblclick frmMDI.lblNagigator
click frmNaviList.cmdStart
expect frmNaviList.Visible False
expect cpuType 0
expect memoryClear 1
expect openWindow(1) 1
expect openWindow(2) 1
expect openWindow(3) 1
expect openWindow(4) 0
expect openWindow(5) 0
expect ioBoardMode 0
expect frmHard.cmbIOS.ListIndex 0
expect runMode 0
expect frmHard.Visible True
expect frmRegister.Visible True
expect frmDumpCDIO.Visible True
expect frmNavigation.Visible True
expect frmNavigation.currentPage 1
expect frmNavigation.pageCount 2
expect frmNavigation.lblIndex.Caption 1/2
expect frmNavigation.cmdAction(0).Enabled False
expect frmNavigation.cmdAction(1).Enabled True
get frmNavigation.picNav(0).Drawing
expect frmNavigation.picNav(1).Drawing "text 0 0 0 \"二行目\""
expect frmNavigation.picNav(0).ForeColor 0

# The bench is worked while the lesson is there; the label does nothing.
click frmHard.picPI(3)
dblclick frmMDI.lblNagigator
expect frmNaviList.Visible False

click frmNavigation.cmdAction(1)
expect frmNavigation.currentPage 2
expect frmNavigation.lblIndex.Caption 2/2
expect frmNavigation.cmdAction(0).Enabled True
expect frmNavigation.cmdAction(1).Enabled False
expect frmNavigation.picNav(0).ForeColor 255
expect frmNavigation.picNav(1).Drawing ""
expect frmNavigation.picNav(1).ForeColor 0
click frmNavigation.cmdAction(1)
expect error
click frmNavigation.cmdAction(0)
expect frmNavigation.lblIndex.Caption 1/2

# The list and Cancel leave no lesson; the next one starts on the same window.
click frmNavigation.cmdAction(2)
expect frmNavigation.Visible False
expect frmNaviList.Visible True
expect frmNaviList.lstTitle.ListIndex 0
click frmNaviList.cmdCancel
expect frmNavigation.Visible False
expect boardDi(0) 8
dblclick frmMDI.lblNagigator
select frmNaviList.lstTitle 1
click frmNaviList.cmdStart
expect boardDi(0) 0
expect frmNavigation.lblIndex.Caption 1/1
expect frmNavigation.cmdAction(0).Enabled False
expect frmNavigation.cmdAction(1).Enabled False
expect frmNavigation.picNav(0).Drawing "text 0 0 0 \"a\""

# From the list behind a lesson to the other one, several times.
click frmNavigation.cmdAction(2)
select frmNaviList.lstTitle 0
click frmNaviList.cmdStart
expect frmNavigation.pageCount 2
wait 200
click frmNavigation.cmdAction(2)
select frmNaviList.lstTitle 1
click frmNaviList.cmdStart
expect frmNavigation.pageCount 1
wait 200

click frmNavigation.cmdAction(3)
get frmNavigation.pageCount
expect error
dblclick frmMDI.lblNagigator
expect frmNaviList.lstTitle.ListIndex 1
click frmNaviList.cmdStart
close frmNavigation
forms
get frmNavigation.pageCount
expect error
#prints frmNavigation.picNav(0).Drawing = "text 0 0 0 \"「表示」\"\ntext 880 0 16711680 \"ソフト\"\ntext 1540 0 0 \"です。\""
