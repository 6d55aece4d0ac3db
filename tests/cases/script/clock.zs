# The clock stands still but for wait; steps and ticks do not move it.
expect beeps 0
now
step 100
tick 3
click frmMDI.lblRunMode(1)
now
wait 250
now
wait 0x10
now
expect runMode 1
#prints now = 0
#prints now = 250
#prints now = 266
