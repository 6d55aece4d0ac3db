# What the lesson FirstLink.txt lets the user do, page by page, and what it promises.
# It starts with the maker's values whatever the bench was like.
#ini CPUTYPE=3
#ini CABLECONNECTION=0
#ini OPENWINDOW1=0
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(0)
click frmDumpCDIO.chkTopMost
expect frmDumpCDIO.chkTopMost.Value 1
dblclick frmMDI.lblNagigator
expect frmNaviList.lstTitle.List(0) "レッスン1  はじめての Zelmar リンク (約10分)"
select frmNaviList.lstTitle 0
click frmNaviList.cmdStart
expect frmNavigation.lblIndex.Caption 1/16
wait 100
expect frmRegister.Visible True
expect frmDumpCDIO.Visible True
expect cpuType 0
# 2: five boards answer
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 2/16
expect frmHard.lblBoardName(0).Caption QVT60
expect frmHard.lblBoardName(1).Caption QVT40
expect frmHard.lblBoardName(4).Caption QVT40
expect frmHard.lblBoardName(5).Caption QVT50
expect frmHard.lblSatteliteNo(0).Caption Board-1
expect frmHard.lblSatteliteNo(4).Caption Board-5
expect frmHard.picBoard(2).Visible True
expect frmHard.picBoard(4).Visible True
expect peek 0x000 00 00 00 00 00 00 00 00 00 00 00 00
# 3: station addresses on the dials; the slaves have none and take the next one
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 3/16
expect saSetting(0) 1
expect saSetting(1) 3
expect saSetting(2) 5
expect frmHard.picSA(0).Picture "ilsRSW 1"
expect frmHard.picSA(1).Picture "ilsRSW 2"
expect frmHard.picSA(3).Picture "ilsRSW 4"
expect frmHard.picSA(5).Picture "ilsRSW 6"
expect frmHard.picBridge(0).Visible True
expect frmHard.picBridge(1).Visible True
# 4: the scan from 01 to 05 runs
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 4/16
expect frmHard.picScanLed.Picture "ilsLED_G 2"
expect continuousScanActive -1
expect finalStation 5
# 5: STOP holds, SLOW goes round from 81 to 85
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 5/16
expect frmMDI.lblRunMode(1).Caption STOP
expect frmMDI.lblRunMode(2).Caption SLOW
click frmMDI.lblRunMode(1)
wait 1000
expect currentStation 1
click frmMDI.lblRunMode(2)
wait 300
expect frmRegister.lblValL(2).Caption 82
wait 300
expect frmRegister.lblValL(2).Caption 83
wait 300
expect frmRegister.lblValL(2).Caption 84
wait 300
expect frmRegister.lblValL(2).Caption 85
wait 300
expect frmRegister.lblValL(2).Caption 81
# 6: 1-Time, a station and a sound a click; then RUN
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 6/16
expect frmMDI.lblRunMode(3).Caption 1-Time
click frmMDI.lblRunMode(3)
expect frmRegister.lblValL(2).Caption 82
expect beeps 1
click frmMDI.lblRunMode(3)
expect frmRegister.lblValL(2).Caption 83
expect beeps 2
click frmMDI.lblRunMode(0)
expect runMode 0
# 7: the memory window, brought to the front and kept there
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 7/16
expect frmDumpCDIO.Caption "Memory dump - Control + DI + DO"
activate frmDumpCDIO
expect frmDumpCDIO.chkTopMost.Caption 常に手前に表示
expect frmDumpCDIO.chkTopMost.Value 0
click frmDumpCDIO.chkTopMost
expect frmDumpCDIO.chkTopMost.Value 1
# 8: the headings of rows and of words
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 8/16
expect frmDumpCDIO.piMode 1
expect frmDumpCDIO.lblAdr(0).Caption 00x
expect frmDumpCDIO.lblAdr(8).Caption 08x
expect frmDumpCDIO.lblAdr(16).Caption 10x
expect frmDumpCDIO.lblOff(12).Caption "-3"
expect frmDumpCDIO.lblOff(13).Caption ",2"
move frmDumpCDIO.lblData(140)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 083H ( 131) : 00"
move frmDumpCDIO.lblData(141)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 082H ( 130) : 00"
# 9: DI 0 of board 1 in row 10x, columns -3 and ,2
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 9/16
click frmHard.picPI(0)
expect frmHard.picPI(0).Tag I1
wait 100
expect frmDumpCDIO.lblData(268).Caption 00
expect frmDumpCDIO.lblData(269).Caption 01
# 10: red for some five seconds; the other switches
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 10/16
expect frmDumpCDIO.lblData(269).ForeColor 255
wait 3800
expect frmDumpCDIO.lblData(269).ForeColor 255
wait 1200
expect frmDumpCDIO.lblData(269).ForeColor 0
click frmHard.picPI(0)
click frmHard.picPI(1)
wait 100
expect frmDumpCDIO.lblData(269).Caption 02
click frmHard.picPI(2)
wait 100
expect frmDumpCDIO.lblData(269).Caption 06
# 11: pointing; board 5 is station 05, in the columns -B and ,A
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 11/16
move frmDumpCDIO.lblData(269)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 102H ( 258) : 06"
expect frmDumpCDIO.lblPointSA.Caption " Pointing SA = 01H  ( 1)"
expect frmHard.picPI(64).Tag I0
expect frmHard.picPI(79).Tag I0
click frmHard.picPI(64)
wait 100
expect frmDumpCDIO.lblOff(4).Caption "-B"
expect frmDumpCDIO.lblOff(5).Caption ",A"
expect frmDumpCDIO.lblData(261).Caption 01
move frmDumpCDIO.lblData(261)
expect frmDumpCDIO.lblPointSA.Caption " Pointing SA = 05H  ( 5)"
# 12: a DO word lights an LED
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 12/16
dblclick frmDumpCDIO.lblData(141)
expect frmEditMemory.Caption "Memory Write"
expect frmEditMemory.cmdAction(0).Caption Write
type frmEditMemory.txtWriteData 0001
click frmEditMemory.cmdAction(0)
wait 100
expect frmHard.picPO(0).Tag O1
expect frmHard.picPO(1).Tag O0
# 13: every other LED, all sixteen, by the bits that are 1
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 13/16
dblclick frmDumpCDIO.lblData(140)
type frmEditMemory.txtWriteData 5555
click frmEditMemory.cmdAction(0)
wait 100
expect boardDo(1) 0x5555
expect frmHard.picPO(14).Tag O1
expect frmHard.picPO(15).Tag O0
dblclick frmDumpCDIO.lblData(141)
type frmEditMemory.txtWriteData FFFF
click frmEditMemory.cmdAction(0)
wait 100
expect frmHard.picPO(0).Tag O1
expect frmHard.picPO(1).Tag O1
expect frmHard.picPO(15).Tag O1
# 14: DI is protected; the yellow word on that goes away by itself
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 14/16
dblclick frmDumpCDIO.lblData(269)
expect frmMessage.lblMessage.Caption スキャン中はライトプロテクト
expect frmEditMemory.Visible False
expect frmMessage.BackColor 65535
wait 1900
expect frmMessage.Visible True
wait 200
expect frmMessage.Visible False
# 15: CLR, held in the second press of a double click; a first press does nothing
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 15/16
press frmHard.picCLR(0)
wait 500
expect frmHard.picPO(0).Tag O1
release frmHard.picCLR(0)
dblpress frmHard.picCLR(0)
expect frmHard.picPO(0).Tag O0
expect frmHard.picPO(15).Tag O0
wait 500
expect boardDo(1) 0
expect peek 0x082 FF FF
release frmHard.picCLR(0)
wait 100
expect frmHard.picPO(0).Tag O1
expect frmHard.picPO(15).Tag O1
# 16: the end
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 16/16
expect frmNavigation.cmdAction(1).Enabled False
