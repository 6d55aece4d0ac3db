#no-ini
# Without ZELVS.INI every setting is 0.
expect startupDone -1
expect cableConnection 0
expect memoryClear 0
expect cpuType 0
expect transferSetting(4) 0
expect saSetting(0) 1
expect saSetting(1) 1
expect saSetting(2) 1
expect cascadeSetting(1) 0
expect openWindow(1) 0
expect frmRegister.Visible False
expect frmDialog.Visible False
expect frmHard.cmbCPUType.ListIndex 0
expect frmHard.cmbIOS.ListIndex 0
