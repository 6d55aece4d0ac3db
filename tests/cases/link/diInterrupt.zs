#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# a DI switch of board 1 reaches memory and raises the interrupt
poke 0x502 0xFF 0xFF          # DRC of station 1: every bit counts
poke 0x587 0x01               # INT0R enable bit 0
wait 20
click frmHard.picPI(3)
wait 20
expect peek 0x102 08 00
expect frmHard.picInt.Picture "ilsInt 2"
expect frmHard.picInt.Visible True
