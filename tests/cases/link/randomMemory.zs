#ini MEMORYCLEAR=0
#ini TRANSFER=1
# random bytes below the registers; half duplex in BCR
click frmMDI.lblRunMode(1)
expect peek 0x580 05 00 00 00 00 00 00 00 00 00 00 00 00 00 03 00 51 56 54 36 30 20 00 00
expect boardFullHalf 0
expect registerLowShown(8) 3
dblclick frmHard.picReset(0)
expect peek 0x58E 13
expect boardFullHalf 0
