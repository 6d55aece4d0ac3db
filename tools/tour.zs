# A short tour for a machine without a display: what a person would see first.
wait 500
screenshot all bench.png

# The splash, which is the about window once the program is up.
click frmMDI.lblVersion
screenshot frmVersion splash.png
click frmVersion

# A DI switch of board 1 reaches memory and raises the interrupt.
poke 0x502 0xFF 0xFF
poke 0x587 0x01
click frmHard.picPI(3)
wait 100
expect peek 0x102 08 00
screenshot all interrupt.png
