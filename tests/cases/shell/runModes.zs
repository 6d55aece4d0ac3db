# The four run modes: colours, marker, pace.
expect runMode 0
expect frmMDI.lblRunMode(0).BackColor 0xC0E0FF
expect frmMDI.timTick.Interval 20
expect frmMDI.shpTick.Width 51
expect frmMDI.shpTick.Left 0
wait 20
expect frmMDI.shpTick.Left 51
wait 20
expect frmMDI.shpTick.Left 102
wait 20
expect frmMDI.shpTick.Left 0

# STOP: the scan stands where it is
click frmMDI.lblRunMode(1)
expect runMode 1
expect frmMDI.timTick.Interval 0
expect frmMDI.lblRunMode(0).BackColor 0xC0FFFF
expect frmMDI.lblRunMode(1).BackColor 0xC0E0FF
set chk1LedTimer 1000
wait 5000
expect chk1LedTimer 1000

# SLOW: one step every 300 ms
click frmMDI.lblRunMode(2)
expect frmMDI.timTick.Interval 300
expect frmMDI.shpTick.Width 9
wait 299
expect chk1LedTimer 1000
wait 1
expect chk1LedTimer 999
wait 3000
expect chk1LedTimer 989
expect beeps 0

# RUN: 67 steps every 20 ms
click frmMDI.lblRunMode(0)
wait 20
expect chk1LedTimer 922
wait 40
expect chk1LedTimer 788
