# A short tour for a machine without a display: what a person would see first.
wait 500
screenshot all bench.png

# The about window is the splash without its progress bar.
click frmMDI.lblVersion
screenshot frmVersion about.png
click frmVersion

# While the program is coming up the same window shows how far it is.
set startupDone 0
click frmMDI.lblVersion
screenshot frmVersion splash.png
set startupDone -1
click frmVersion

# A DI switch of board 1 reaches memory and raises the interrupt.
poke 0x502 0xFF 0xFF
poke 0x587 0x01
click frmHard.picPI(3)
wait 100
expect peek 0x102 08 00
screenshot all interrupt.png
