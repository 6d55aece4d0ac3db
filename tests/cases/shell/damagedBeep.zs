# A sound that is cut is none: a player would wait in silence for what it lacks. The system's beep takes its place.
#damage BEEP.WAV 3000
expect beepDeviceOpen 0
click frmMDI.lblRunMode(3)
expect beeps 1
