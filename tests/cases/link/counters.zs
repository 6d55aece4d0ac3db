#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# counters of board 1 and 2, read, swept and cleared by the center
click frmMDI.lblRunMode(1)
click frmHard.picCounter(0)
click frmHard.picCounter(0)
click frmHard.picCounter(5)
click frmHard.picCounter(6)
poke 0x002 0x01
step 5
expect peek 0x182 02 00
expect peek 0x002 01
# one sweep: DI, counters 1 to 6, and home
poke 0x002 0x30
poke 0x182 0 0
step 35
expect peek 0x002 00
expect peek 0x182 02 00
expect peek 0x402 01 00
# endless sweep stays endless
poke 0x004 0x20
step 35
expect peek 0x004 20
expect peek 0x184 01 00
# clear counter 1
poke 0x002 0x09
step 5
expect peek 0x182 00 00
expect boardCounters(0) 0
expect boardCounters(10) 1
expect peek 0x002 00
# board 5 has no counters: it answers 0
poke 0x18A 0x77 0x77
poke 0x00A 0x01
step 5
expect peek 0x18A 00 00
