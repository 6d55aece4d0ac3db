# The beep of the program folder is opened, and its sounds are counted as the system's are.
expect beepDeviceOpen -1
expect beeps 0
click frmMDI.lblRunMode(3)
expect beeps 1
dblclick frmRegister.lblValL(2)
expect frmMessage.Visible True
expect beeps 2
