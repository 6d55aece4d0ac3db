#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# interrupt factors at the end of a cycle, and the halt
click frmMDI.lblRunMode(1)
poke 0x502 0xFF 0xFF
poke 0x587 0x06
poke 0x589 0x08
step 5
expect peek 0x586 00
expect peek 0x588 08
expect frmHard.picInt.Picture "ilsInt 3"
poke 0x588 0
poke 0x589 0
click frmHard.picPI(0)
step
expect peek 0x003 02
expect diChangedThisCycle -1
expect peek 0x586 00
step 4
expect peek 0x586 06
expect peek 0x583 01
expect diChangedThisCycle 0
# bit 2 holds the scan until the CPU clears it
click frmHard.picPI(0)
step 50
expect currentStation 1
expect peek 0x102 01 00
poke 0x586 0
step
expect currentStation 2
expect peek 0x102 00 00
# a masked-out change moves the byte and tells nobody
poke 0x502 0 0
poke 0x587 0xFF
step 4
poke 0x586 0
click frmHard.picPI(1)
step
expect peek 0x102 02 00
expect peek 0x003 00
expect peek 0x586 00
# failures: check counters as factors
poke 0x587 0x60
step 4
poke 0x586 0
dblclick frmHard.picBOARD2_RXD(3)
step 5
expect peek 0x586 20
step 5
expect peek 0x586 20
step 5
expect peek 0x586 60
expect peek 0x00B 3C
