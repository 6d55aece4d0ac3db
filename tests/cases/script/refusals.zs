# What is refused says why, counts until it is expected, and changes nothing.
click frmNone
expect error
click frmMDI.lblNone
expect error
click frmMDI.lblRunMode(4)
expect error
click frmMDI.lblRunMode
expect error
click frmMessage
expect error
click frmHard.cmbSA(0)
expect error
click frmMDI.timTick
expect error
focus frmMDI.lblVersion
expect error
answer ok
expect error
poke 0x000 1 2 256
expect error
expect peek 0x000 00 00
peek 0x800
expect error
set boardDi(0) 256
expect error
select frmHard.picNoise 0
expect error
jump
expect error
expect runMode 0
#prints error: unknown form: frmNone
#prints error: unknown control: frmMDI.lblNone
#prints error: frmMDI.lblRunMode(4) is not there
#prints error: frmMDI.lblRunMode needs an index
#prints error: frmMessage is not loaded
#prints error: frmHard.cmbSA(0) is not visible
#prints error: unknown command: jump
