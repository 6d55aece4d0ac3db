# What the lesson CablesAndErrors.txt lets the user do, page by page, and what it promises.
# It starts with the maker's values whatever the bench was like.
#ini CPUTYPE=3
#ini CABLECONNECTION=0
#ini OPENWINDOW1=0
dblclick frmMDI.lblNagigator
expect frmNaviList.lstTitle.List(1) "レッスン2  ケーブルと局番、通信エラー (約15分)"
select frmNaviList.lstTitle 1
click frmNaviList.cmdStart
expect frmNavigation.lblIndex.Caption 1/16
wait 100
# 1: one road of three cables, two slaves with the next addresses
expect frmHard.picBOARD2_RXD(0).Tag 1
expect frmHard.picBOARD2_RXD(1).Tag 1
expect frmHard.picBOARD2_RXD(3).Tag 1
expect frmHard.picBridge(0).Visible True
expect frmHard.picBridge(1).Visible True
# 2: the memory window kept in front; control words, all 0
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 2/16
activate frmDumpCDIO
expect frmDumpCDIO.chkTopMost.Value 0
click frmDumpCDIO.chkTopMost
expect frmDumpCDIO.chkTopMost.Value 1
expect frmDumpCDIO.lblAdr(0).Caption 00x
expect frmDumpCDIO.lblAdr(7).Caption 07x
expect peek 0x000 00 00 00 00 00 00 00 00 00 00 00 00
# 3: orders and reports
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 3/16
# 4: where the plugs are; the ring between them takes no click
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 4/16
expect frmHard.picCableUp(1).Visible True
expect frmHard.picCableDn(1).Visible True
click frmHard.picCableRole(1)
expect frmHard.picBOARD2_RXD(1).Tag 1
# 5: the cable from board 1 to board 3 out: both check lamps, for one and a half seconds
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 5/16
click frmHard.picCableUp(1)
wait 100
expect frmHard.picChkLED(0).Picture "ilsLED_R 2"
expect frmHard.picChkLED(1).Picture "ilsLED_R 2"
wait 1300
expect frmHard.picChkLED(0).Picture "ilsLED_R 2"
wait 200
expect frmHard.picChkLED(0).Picture "ilsLED_R 1"
expect frmHard.picChkLED(1).Picture "ilsLED_R 1"
# 6: the reports of stations 03, 04 and 05, in the columns -7, -9 and -B
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 6/16
expect peek 0x002 00 00 00 00 00 7C 00 7C 00 7C
expect frmDumpCDIO.lblOff(8).Caption "-7"
expect frmDumpCDIO.lblData(8).Caption 7C
expect frmDumpCDIO.lblData(9).Caption 00
expect frmDumpCDIO.lblOff(6).Caption "-9"
expect frmDumpCDIO.lblData(6).Caption 7C
expect frmDumpCDIO.lblOff(4).Caption "-B"
expect frmDumpCDIO.lblData(4).Caption 7C
# 7: both counts
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 7/16
expect frmRegister.lblReg(6).Caption C1CR
expect frmRegister.lblValL(6).Caption 03
expect frmRegister.lblReg(7).Caption C2CR
expect frmRegister.lblValL(7).Caption 03
wait 2000
expect peek 0x58A 03 00 03 00
# 8: plugged again; the other end does as well
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 8/16
click frmHard.picCableUp(1)
wait 100
expect peek 0x002 00 00 00 00 00 00 00 00 00 00
expect peek 0x58A 03 00 03 00
click frmHard.picCableDn(1)
expect frmHard.picBOARD2_RXD(1).Tag 0
click frmHard.picCableDn(1)
expect frmHard.picBOARD2_RXD(1).Tag 1
wait 100
expect peek 0x58A 03 00 03 00
# 9: a 1 in bit 0 clears a count, 0000 does not
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 9/16
dblclick frmRegister.lblValL(6)
expect frmEditRegister.txtWriteData.Text 0003
type frmEditRegister.txtWriteData 0001
click frmEditRegister.cmdAction(0)
expect peek 0x58A 00 00 03 00
dblclick frmRegister.lblValL(7)
type frmEditRegister.txtWriteData 0000
click frmEditRegister.cmdAction(0)
expect peek 0x58C 03
dblclick frmRegister.lblValL(7)
type frmEditRegister.txtWriteData 0001
click frmEditRegister.cmdAction(0)
expect peek 0x58C 00
# 10: the failures of station 05, one a round of five times 0.3 seconds
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 10/16
click frmMDI.lblRunMode(2)
click frmHard.picCableUp(2)
wait 1500
expect frmDumpCDIO.lblData(4).Caption 14
expect peek 0x58A 01 00 00 00
wait 1500
expect frmDumpCDIO.lblData(4).Caption 24
expect peek 0x58A 01 00 00 00
wait 1500
expect frmDumpCDIO.lblData(4).Caption 3C
# 11: C1CR at the first, C2CR at the third; the report stops at 7C
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 11/16
expect peek 0x58A 01 00 01 00
wait 1500
expect frmDumpCDIO.lblData(4).Caption 4C
wait 4500
expect frmDumpCDIO.lblData(4).Caption 7C
wait 1500
expect frmDumpCDIO.lblData(4).Caption 7C
expect peek 0x58A 01 00 01 00
expect frmHard.picChkLED(0).Picture "ilsLED_R 2"
click frmHard.picCableUp(2)
click frmMDI.lblRunMode(0)
wait 2000
expect peek 0x00B 00
expect frmHard.picChkLED(0).Picture "ilsLED_R 1"
# 12: board 5 moves to address 06, which nobody polls
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 12/16
expect frmHard.picB1_LED(5).Picture "ilsLED_G 2"
dblclick frmHard.picSA(5)
expect frmHard.cmbSA(2).List(5) 0x06
select frmHard.cmbSA(2) 5
wait 1000
expect peek 0x00B 7C
expect frmHard.picB1_LED(5).Picture "ilsLED_R 1"
expect frmRegister.lblValL(1).Caption 05
# 13: the final station follows
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 13/16
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0006
click frmEditRegister.cmdAction(0)
wait 100
expect finalStation 6
expect frmHard.picB1_LED(5).Picture "ilsLED_G 2"
expect peek 0x00B 7C 00 00
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0005
click frmEditRegister.cmdAction(0)
wait 100
dblclick frmHard.picSA(5)
select frmHard.cmbSA(2) 4
wait 100
expect peek 0x000 00 00 00 00 00 00 00 00 00 00 00 00 00 00
# 14: two boards on one address
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 14/16
dblclick frmHard.picSA(3)
select frmHard.cmbSA(1) 0
expect frmDialog.lblDialogTitle.Caption "   警 告"
expect frmDialog.cmdAction(0).Caption OK
click frmDialog.cmdAction(0)
wait 100
expect peek 0x002 00 7C 00 7C 00 7C 00 7C 00 00
# 15: back, and noise: eleven hits in known places, then some on one station in a row
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 15/16
dblclick frmHard.picSA(3)
select frmHard.cmbSA(1) 2
wait 100
expect peek 0x002 00 00 00 00 00 00 00 00 00 00
expect peek 0x58A 06 00 06 00
random 0.005 0.9 0.005 0.9 0.005 0.005 0.9 0.005 0.9 0.005 0.005 0.9 0.005 0.9 0.005 0.9 0.9 0.005 0.9 0.005 0.9 0.9 0.9 0.9 0.9 0.9 0.9 0.9 0.9 0.9
press frmHard.picNoise
wait 160
expect peek 0x58A 0A 00 09 00
expect frmHard.picChkLED(0).Picture "ilsLED_R 2"
expect frmHard.picChkLED(1).Picture "ilsLED_R 2"
release frmHard.picNoise
wait 100
expect peek 0x002 00 00 00 00 00 00 00 00 00 00
# 16: the end
click frmNavigation.cmdAction(1)
expect frmNavigation.lblIndex.Caption 16/16
expect frmNavigation.cmdAction(1).Enabled False
