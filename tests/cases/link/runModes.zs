# RUN, STOP, SLOW and 1-Time
expect runMode 0
expect frmMDI.timTick.Interval 20
expect frmMDI.lblRunMode(0).Caption " RUN "
expect frmMDI.lblRunMode(0).BackColor 0xC0E0FF
expect frmMDI.lblRunMode(1).BackColor 0xC0FFFF
set chk1LedTimer 5000
wait 20
expect chk1LedTimer 4933
wait 40
expect chk1LedTimer 4799
click frmMDI.lblRunMode(1)
expect runMode 1
expect frmMDI.timTick.Interval 0
expect frmMDI.shpTick.Width 9
expect frmMDI.lblRunMode(1).BackColor 0xC0E0FF
wait 5000
expect chk1LedTimer 4799
click frmMDI.lblRunMode(2)
expect frmMDI.timTick.Interval 300
wait 299
expect chk1LedTimer 4799
wait 1
expect chk1LedTimer 4798
expect beeps 0
click frmMDI.lblRunMode(3)
expect chk1LedTimer 4797
expect beeps 1
click frmMDI.lblRunMode(3)
expect chk1LedTimer 4796
expect beeps 2
wait 5000
expect chk1LedTimer 4796
# the mouse over a label lets the windows catch up, in 1-Time only
poke 0x584 0xA5
move frmMDI.lblRunMode(0)
expect chk1LedTimer 4796
expect frmRegister.lblValL(3).Caption A5
click frmMDI.lblRunMode(1)
poke 0x584 0x5A
move frmMDI.lblRunMode(0)
expect frmRegister.lblValL(3).Caption A5
click frmMDI.lblRunMode(0)
wait 20
expect chk1LedTimer 4729
expect frmRegister.lblValL(3).Caption 5A
expect frmRegister.lblBinL(3).Caption 0101_1010
