# A register that changed is red for four seconds of its window's own timer.
click frmMDI.lblRunMode(1)
wait 10000
expect frmRegister.lblValL(3).ForeColor 0
poke 0x584 0x1E
tick
expect frmRegister.lblValL(3).Caption 1E
expect frmRegister.lblBinL(3).Caption 0001_1110
expect frmRegister.lblValL(3).ForeColor 255
expect frmRegister.lblBinL(3).ForeColor 255
expect frmRegister.lblValH(3).ForeColor 0
expect frmRegister.lblValL(3).Tag 4
wait 1000
expect frmRegister.lblValL(3).Tag 3
wait 2000
expect frmRegister.lblValL(3).ForeColor 255
wait 1000
expect frmRegister.lblValL(3).Tag 0
expect frmRegister.lblValL(3).ForeColor 0
expect frmRegister.lblBinL(3).ForeColor 0

# The byte that counts the stations never turns red, the byte behind it does.
poke 0x582 0x3F 0x40
tick
expect frmRegister.lblValL(2).Caption 3F
expect frmRegister.lblValL(2).ForeColor 0
expect frmRegister.lblValH(2).Caption 40
expect frmRegister.lblValH(2).ForeColor 255
