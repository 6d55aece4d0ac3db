# A register window that was closed comes back where it first stood, with what the registers hold.
wait 100
click frmMDI.lblRunMode(1)
poke 0x584 0x10 0x10
close frmRegister
click frmMDI.lblRegisterWindow
expect frmRegister.Left 6800
expect frmRegister.Top 1100
expect frmRegister.lblValL(3).Caption 10
expect frmRegister.lblValL(8).Caption 13
expect frmRegister.lblBinH(3).Caption " 0001_0000"

# Closed with all the others it is only hidden: it too tells what is there now.
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(4)
poke 0x584 0x00
click frmMDI.lblRegisterWindow
expect frmRegister.lblValL(3).Caption 00
