#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# the scan that runs after the start, one step at a time
click frmMDI.lblRunMode(1)
expect currentStation 0
expect peek 0x580 05 00 00 00
expect peek 0x58E 13 00 51 56 54 36 30 20
step
expect continuousScanActive -1
expect finalStation 5
expect polledStation 1
expect peek 0x582 82
expect frmHard.picScanLed.Picture "ilsLED_G 2"
expect frmHard.picScanLed.Tag 1
step 3
expect peek 0x582 85
step
expect currentStation 1
expect peek 0x582 81 00
# all five answered
expect peek 0x003 00
expect peek 0x005 00
expect peek 0x007 00
expect peek 0x009 00
expect peek 0x00B 00
expect monLedTimer 2000
expect frmHard.picB1_LED(5).Picture "ilsLED_G 2"

# a shorter scan counts from the wrap
step
poke 0x580 2
expect finalStation 5
step 4
expect finalStation 2
expect currentStation 1

# 0 stops it at the end of its cycle
poke 0x587 0x80
poke 0x580 0
step
expect continuousScanActive -1
step
expect continuousScanActive 0
expect currentStation 0
expect peek 0x582 00
expect peek 0x586 80
expect frmHard.picScanLed.Tag 0

# DO goes down with the poll
poke 0x082 0x01 0x80
poke 0x08A 0x0F 0x00
poke 0x580 5
step 5
expect boardDo(1) 0x8001
expect frmHard.picPO(0).Tag O1
expect frmHard.picPO(1).Tag O0
expect frmHard.picPO(15).Picture "ilsLED_G 2"
expect ioBoardDo 15
expect ioBoardDoLow 15
expect frmHard.picPI(67).Tag O1
expect frmHard.picPI(68).Tag O0
