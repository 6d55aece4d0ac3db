#ini TRANSFER=1
# Half duplex from the start: the setting goes to every board and the chip comes up with it.
expect transferSetting(0) 1
expect transferSetting(4) 1
expect boardFullHalf 0
expect peek 0x58E 03
expect peek 0x580 05
expect peek 0x590 51 56 54 36 30 20
