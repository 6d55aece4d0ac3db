#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# CLR stops the latching and RESET the whole board
click frmMDI.lblRunMode(1)
poke 0x084 0xFF 0xFF
step 5
expect frmHard.picPO(16).Tag O1
dblpress frmHard.picCLR(1)
expect frmHard.picCLR(1).Picture "ilsCount 4"
expect frmHard.picPO(16).Tag O0
expect frmHard.picPO(31).Tag O0
step 5
expect boardDo(2) 0
expect peek 0x005 00
release frmHard.picCLR(1)
expect frmHard.picCLR(1).Picture "ilsCount 3"
step 5
expect boardDo(2) 65535
dblpress frmHard.picReset(1)
step 5
expect peek 0x003 14
expect peek 0x005 00
release frmHard.picReset(1)
step 5
expect peek 0x003 00
# the handshake switch: without it the first DI after a failure waits
click frmHard.picPI(0)
set boardResetHeld(1) -1
step 5
expect peek 0x003 14
set boardResetHeld(1) 0
step 5
expect peek 0x102 00 00
expect peek 0x003 00
step 5
expect peek 0x102 01 00
dblclick frmHard.picSSB(0)
expect frmHard.picSSB(0).Tag 1
set boardResetHeld(1) -1
click frmHard.picPI(1)
step 5
set boardResetHeld(1) 0
step 5
expect peek 0x102 03 00
