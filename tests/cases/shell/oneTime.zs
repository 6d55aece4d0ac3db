# 1-Time: each click is one step and one beep; the mouse refreshes without a step.
click frmMDI.lblRunMode(1)
set chk1LedTimer 100
click frmMDI.lblRunMode(3)
expect chk1LedTimer 99
expect beeps 1
click frmMDI.lblRunMode(3)
expect chk1LedTimer 98
expect beeps 2
wait 5000
expect chk1LedTimer 98

poke 0x584 0x5A
expect frmRegister.lblValL(3).Caption 00
move frmMDI.lblRunMode(0)
expect frmRegister.lblValL(3).Caption 5A
expect frmRegister.lblBinL(3).Caption 0101_1010
poke 0x584 0xA5
move frmMDI.lblRunMode(3)
expect frmRegister.lblValL(3).Caption A5
expect chk1LedTimer 98
expect beeps 2

# In STOP the same move does nothing.
click frmMDI.lblRunMode(1)
poke 0x584 0x11
move frmMDI.lblRunMode(3)
expect frmRegister.lblValL(3).Caption A5

# A move in the other modes neither.
click frmMDI.lblRunMode(2)
move frmMDI.lblRunMode(3)
expect frmRegister.lblValL(3).Caption A5
wait 300
expect frmRegister.lblValL(3).Caption 11
