# What the lesson ScanAndInterrupts.txt lets the user do, page by page, and what it promises.
# It starts with the maker's values whatever the bench was like.
#ini CPUTYPE=3
#ini CABLECONNECTION=0
#ini OPENWINDOW1=0
dblclick frmMDI.lblNagigator
expect frmNaviList.lstTitle.List(2) "レッスン3  スキャンと割り込み (約20分)"
select frmNaviList.lstTitle 2
click frmNaviList.cmdStart
expect frmNavigation.lblIndex.Caption 1/16
wait 100
# 1: eight registers
expect frmRegister.Visible True
expect frmRegister.lblReg(1).Caption SCR
expect frmRegister.lblReg(8).Caption BCR
# 2: the hints, and the memory window kept in front
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 2/16
expect frmHint.Visible True
activate frmDumpCDIO
expect frmDumpCDIO.chkTopMost.Value 0
click frmDumpCDIO.chkTopMost
expect frmDumpCDIO.chkTopMost.Value 1
# 3: 0 into SCR
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 3/16
expect frmRegister.lblValL(1).Caption 05
dblclick frmRegister.lblValL(1)
expect frmEditRegister.Caption "Register Write"
expect frmHint.tabHint.TabCaption(0) SCR
expect frmHint.tabHint.Tab 0
expect frmEditRegister.cmdAction(0).Caption Write
type frmEditRegister.txtWriteData 0000
click frmEditRegister.cmdAction(0)
# 4: it has ended the scan behind station 05
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 4/16
wait 100
expect frmHard.picScanLed.Picture "ilsLED_G 1"
expect frmRegister.lblValH(2).Caption 00
expect frmRegister.lblValL(2).Caption 00
# 5: no scan, no DI
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 5/16
click frmHard.picPI(0)
wait 500
expect frmHard.picPI(0).Tag I1
expect frmDumpCDIO.lblData(269).Caption 00
# 6: one cycle
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 6/16
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0500
click frmEditRegister.cmdAction(0)
wait 100
expect frmDumpCDIO.lblAdr(16).Caption 10x
expect frmDumpCDIO.lblOff(12).Caption "-3"
expect frmDumpCDIO.lblData(268).Caption 00
expect frmDumpCDIO.lblData(269).Caption 01
expect frmRegister.lblValH(1).Caption 00
expect frmRegister.lblValL(1).Caption 00
expect frmHard.picScanLed.Picture "ilsLED_G 1"
# 7: both at once are refused; then the continuous scan again
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 7/16
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0505
click frmEditRegister.cmdAction(0)
expect frmMessage.lblMessage.Caption 入力された値が不適切であるため、書き込まれません。
expect frmMessage.BackColor 65535
wait 1900
expect frmMessage.Visible True
wait 200
expect frmMessage.Visible False
expect peek 0x580 00 00
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0005
click frmEditRegister.cmdAction(0)
wait 100
expect frmHard.picScanLed.Picture "ilsLED_G 2"
# 8: refused registers
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 8/16
dblclick frmRegister.lblValL(2)
expect frmMessage.lblMessage.Caption このレジスタはリードオンリーです。
expect frmEditRegister.Visible False
dblclick frmRegister.lblValL(8)
expect frmMessage.lblMessage.Caption スキャン中はライトプロテクト。
expect frmEditRegister.Visible False
# 9: the mask, in a window kept in front too, lets DI 0 of station 01 through
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 9/16
expect frmMDI.lblMemoryWindow.Caption "Memory Window"
click frmMDI.lblMemoryWindow
expect frmDumpSel.cmdAREA(2).Caption DRC
click frmDumpSel.cmdAREA(2)
expect frmDumpDRC.chkTopMost.Value 0
click frmDumpDRC.chkTopMost
expect frmDumpDRC.chkTopMost.Value 1
expect frmDumpDRC.lblAdr(0).Caption 50x
expect frmDumpDRC.lblOff(12).Caption "-3"
dblclick frmDumpDRC.lblData(13)
type frmEditMemory.txtWriteData 0001
click frmEditMemory.cmdAction(0)
expect peek 0x500 00 00 01 00 00 00
# 10: the interrupt
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 10/16
dblclick frmRegister.lblValL(4)
expect frmHint.tabHint.TabCaption(3) INT0R
expect frmHint.tabHint.Tab 3
type frmEditRegister.txtWriteData 0100
click frmEditRegister.cmdAction(0)
wait 100
expect frmHard.picInt.Visible False
click frmHard.picPI(0)
wait 100
expect frmRegister.lblValH(4).Caption 01
expect frmRegister.lblValL(4).Caption 01
expect frmHard.picInt.Visible True
expect frmHard.picInt.Picture "ilsInt 2"
# 11: a 1 clears
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 11/16
dblclick frmRegister.lblValL(4)
type frmEditRegister.txtWriteData 0101
click frmEditRegister.cmdAction(0)
wait 100
expect peek 0x586 00 01
expect frmHard.picInt.Visible False
# 12: DI 1 is masked out
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 12/16
click frmHard.picPI(1)
wait 100
expect frmDumpCDIO.lblData(269).Caption 02
expect peek 0x586 00 01
# 13: the halt
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 13/16
dblclick frmRegister.lblValL(4)
type frmEditRegister.txtWriteData 0400
click frmEditRegister.cmdAction(0)
wait 100
click frmHard.picPI(0)
wait 100
expect frmRegister.lblValH(4).Caption 04
expect frmRegister.lblValL(4).Caption 04
expect frmRegister.lblValL(2).Caption 81
wait 1000
expect frmRegister.lblValL(2).Caption 81
expect currentStation 1
expect frmHard.picScanLed.Picture "ilsLED_G 2"
expect frmDumpCDIO.lblData(269).Caption 03
# 14: nothing moves in the halt; then it goes on with what has waited
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 14/16
click frmHard.picPI(1)
wait 500
expect frmDumpCDIO.lblData(269).Caption 03
dblclick frmRegister.lblValL(4)
type frmEditRegister.txtWriteData 0404
click frmEditRegister.cmdAction(0)
wait 100
expect peek 0x586 00 04
expect frmDumpCDIO.lblData(269).Caption 01
expect peek 0x583 00
# 15: the end of the scan as an interrupt
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 15/16
dblclick frmRegister.lblValL(4)
type frmEditRegister.txtWriteData 8000
click frmEditRegister.cmdAction(0)
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0000
click frmEditRegister.cmdAction(0)
wait 100
expect frmRegister.lblValH(4).Caption 80
expect frmRegister.lblValL(4).Caption 80
expect frmHard.picScanLed.Picture "ilsLED_G 1"
dblclick frmRegister.lblValL(4)
type frmEditRegister.txtWriteData 8080
click frmEditRegister.cmdAction(0)
wait 20
expect peek 0x586 00 80
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0005
click frmEditRegister.cmdAction(0)
wait 100
expect frmHard.picScanLed.Picture "ilsLED_G 2"
expect continuousScanActive -1
# 16: INT1R has no bits 0 to 2
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 16/16
dblclick frmRegister.lblValL(5)
type frmEditRegister.txtWriteData FF00
click frmEditRegister.cmdAction(0)
expect peek 0x589 F8
