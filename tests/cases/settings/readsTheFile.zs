#ini CPUTYPE=1.5
#ini TRANSFER=1
#ini CLOCK-QVT60=2
#ini MODE-QVT50=3
#ini IOS-QVT50=6
#ini MEMORYCLEAR=-1
#ini CABLECONNECTION=0
#ini OPENWINDOW3=0
# What the file says, rounded to even where a list wants whole numbers; checked only above 0.
click frmMDI.lblDefault
expect frmDefault.cmbCPUType.ListIndex 2
expect frmDefault.optHF(1).Value True
expect frmDefault.cmbClock(0).ListIndex 2
expect frmDefault.cmbMode.ListIndex 3
expect frmHard.cmbMode.ListIndex 3
expect ioBoardCounterMode 0
expect frmDefault.cmbIOS.ListIndex 6
expect frmHard.cmbIOS.ListIndex 6
expect ioBoardMode 0
expect memoryClear -1
expect frmDefault.chkDef(1).Value 0
expect peek 0x000 00 00 00 00
expect frmDefault.chkDef(0).Value 0
expect frmDefault.chkDef(4).Value 0
