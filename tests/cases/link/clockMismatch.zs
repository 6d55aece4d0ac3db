#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# boards on another clock are silent; those behind them are not
click frmMDI.lblRunMode(1)
dblclick frmHard.picClock(2)
select frmHard.cmbClock(2) 1
expect clockSetting(2) 1
expect frmHard.lblClock(2).Caption 24MHz
step 5
expect peek 0x003 00
expect peek 0x007 14
expect peek 0x009 14
expect peek 0x00B 00
# a center on that clock hears them and nobody else
poke 0x580 0
step 5
expect continuousScanActive 0
poke 0x58E 0x12
poke 0x580 5
step 5
expect clockSetting(0) 1
expect peek 0x003 14
expect peek 0x007 00
expect peek 0x009 00
expect peek 0x00B 14
# BPSS brings board 5 there
dblclick frmHard.picBPSS
expect frmHard.lblPBPSS.Caption BPSS-H
expect clockSetting(3) 1
step 5
expect peek 0x00B 00
