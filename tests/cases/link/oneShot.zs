#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# the one-shot scan
click frmMDI.lblRunMode(1)
poke 0x580 0
click frmHard.picPI(0)
poke 0x587 0x88
poke 0x581 3
step
expect oneShotScanActive -1
expect finalStation 3
expect peek 0x582 82
expect peek 0x102 01 00
step
expect peek 0x586 00
step
expect oneShotScanActive 0
expect peek 0x580 00 00 00 00
expect peek 0x586 88
expect currentStation 3
expect frmHard.picScanLed.Tag 0
expect frmHard.picInt.Picture "ilsInt 2"
click frmHard.picPI(0)
step 10
expect peek 0x102 01 00
# a single station ends on its only step
poke 0x586 0
poke 0x589 0x80
poke 0x581 1
step
expect oneShotScanActive 0
expect peek 0x588 80
expect peek 0x102 00 00
expect frmHard.picInt.Picture "ilsInt 4"
