# Settings made in the dialog work at once, but for the IOS mode, which the restart resets.
click frmMDI.lblRunMode(1)
click frmMDI.lblDefault
expect frmDefault.Left 4700
expect frmDefault.Top 4000
expect frmDefault.cmbClock(0).Enabled False
click frmDefault.cmbClock(0)
expect error
select frmDefault.cmbCPUType 3
select frmDefault.cmbSA(0) 9
select frmDefault.cmbSA(2) 0x10
select frmDefault.cmbClock(1) 2
select frmDefault.cmbIOS 7
click frmDefault.optHF(1)
expect frmDefault.optHF(0).Value False
click frmDefault.chkCascade(1)
click frmDefault.chkDef(0)
click frmDefault.chkDef(2)
click frmDefault.chkDef(3)
click frmDefault.chkDef(5)
expect frmHard.cmbCPUType.ListIndex 0
expect runMode 1
click frmDefault.cmdAction(1)
expect frmDefault.Visible False
expect runMode 0
expect startupDone -1
expect cpuType 3
expect frmHard.cmbCPUType.ListIndex 3
expect saSetting(0) 10
expect saSetting(1) 17
expect frmHard.lblClock(1).Caption 12MHz
expect boardFullHalf 0
expect frmHard.picBoard(2).Visible True
expect frmHard.picBoard(4).Visible False
expect frmHard.picBOARD2_RXD(0).Tag ""
expect frmRegister.Visible False
expect frmHint.Visible False
expect frmDumpCDIO.Visible True
expect frmDumpC17.Visible True
expect ioBoardMode 0
expect frmHard.cmbIOS.ListIndex 0
expect peek 0x58E 03
# a scan of five stations has begun
wait 20
expect finalStation 5
expect continuousScanActive -1
# the dialog still shows what was chosen in it
click frmMDI.lblDefault
expect frmDefault.cmbIOS.ListIndex 7
expect frmDefault.cmbCPUType.ListIndex 3
