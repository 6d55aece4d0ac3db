# What a restart renews and what it leaves alone.
click frmMDI.lblDefault
click frmHard.picPI(3)
wait 40
expect boardDi(0) 8
poke 0x7FF 0x55
click frmMDI.lblRunMode(2)
click frmMDI.lblDefault
click frmDefault.chkDef(1)
click frmDefault.cmdAction(1)
expect boardDi(0) 0
expect frmHard.picPI(3).Tag I0
expect runMode 0
expect frmMDI.timTick.Interval 20
expect frmMDI.shpTick.Width 51
expect frmMDI.lblRunMode(0).BackColor 0xC0E0FF
expect frmMDI.lblRunMode(2).BackColor 0xC0FFFF
# memory was filled at random, above the chip's name nothing was touched
expect peek 0x7FF 55
expect peek 0x590 51 56 54 36 30 20
expect frmRegister.Left 6800
expect frmDumpCDIO.Visible True
# again, from the state that it made
click frmMDI.lblDefault
click frmDefault.cmdAction(1)
wait 100
expect continuousScanActive -1
expect frmHard.picScanLed.Tag 1
click frmMDI.lblDefault
click frmDefault.cmdAction(3)
click frmDefault.cmdAction(1)
expect peek 0x7FF 00
