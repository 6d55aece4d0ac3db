# Colour marks: what they print, and what they leave.
#lesson NaviIndex.txt a.txt|a|
#lesson a.txt Press #Next& now
#lesson a.txt &
#lesson a.txt
#lesson a.txt abc#
#lesson a.txt x
#lesson a.txt
#lesson a.txt #\a
#lesson a.txt 表#＃\能
#lesson a.txt
dblclick frmMDI.lblNagigator
click frmNaviList.cmdStart
expect frmNavigation.picNav(0).Drawing "text 0 0 0 \"Press \"\ntext 660 0 16711680 \"Next\"\ntext 1100 0 0 \" now\""
expect frmNavigation.picNav(1).Drawing ""
expect frmNavigation.picNav(1).ForeColor 0
click frmNavigation.cmdAction(1)
expect frmNavigation.picNav(0).Drawing "text 0 0 0 \"abc\""
expect frmNavigation.picNav(0).ForeColor 16711680
expect frmNavigation.picNav(1).Drawing "text 0 0 0 \"x\""
click frmNavigation.cmdAction(1)
expect frmNavigation.picNav(0).Drawing "text 0 0 255 \"a\""
expect frmNavigation.picNav(1).Drawing "text 0 0 0 \"表\"\ntext 220 0 16711680 \"＃\"\ntext 440 0 255 \"能\""
expect frmNavigation.picNav(1).ForeColor 255
