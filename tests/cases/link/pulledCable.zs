#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# a pulled cable silences all behind it, and its outputs hold
click frmMDI.lblRunMode(1)
poke 0x082 1 0 1 0 1 0 1 0 1 0
step 5
dblclick frmHard.picBOARD2_RXD(1)
expect frmHard.picBOARD2_RXD(1).Tag 0
expect frmHard.picBOARD2_RXD(3).Tag 1
expect frmHard.picTermR(2).Visible True
expect frmHard.picTermR(4).Visible False
poke 0x082 2 0 2 0 2 0 2 0 2 0
step 5
expect peek 0x003 00
expect peek 0x005 00
expect peek 0x007 14
expect peek 0x009 14
expect peek 0x00B 14
expect boardDo(1) 2
expect boardDo(2) 2
expect boardDo(3) 1
expect boardDo(4) 1
expect ioBoardDo 1
expect peek 0x58A 03
expect frmHard.picChkLED(0).Picture "ilsLED_R 2"
step 10
expect peek 0x58A 03
expect peek 0x58C 03
expect peek 0x007 3C
expect frmHard.picChkLED(1).Picture "ilsLED_R 2"
expect peek 0x583 04
# plugged again, the first good answer wipes the report
dblclick frmHard.picBOARD2_RXD(2)
step 5
expect peek 0x007 00
expect boardDo(3) 2
expect ioBoardDo 2
# the lamps go out by themselves
step 5000
expect frmHard.picChkLED(0).Picture "ilsLED_R 1"
expect frmHard.picChkLED(1).Picture "ilsLED_R 1"
# the first cable cuts everybody off
click frmHard.picCableDn(0)
step 5
expect peek 0x003 14
expect peek 0x00B 14
