# press and release are two gestures; the click comes with the release on the same control.
press frmMDI.lblRunMode(1)
expect runMode 0
release frmMDI.lblRunMode(1)
expect runMode 1
press frmMDI.lblRunMode(2)
release frmMDI.lblRunMode(0)
expect runMode 1
release frmMDI.lblRunMode(2)
expect runMode 1
