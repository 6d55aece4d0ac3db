#ini TRANSFER=1
# In half duplex a scan may end at station 1.
click frmMDI.lblRunMode(1)
poke 0x580 0
step 5
dblclick frmRegister.lblValL(1)
type frmEditRegister.txtWriteData 0001
click frmEditRegister.cmdAction(0)
expect peek 0x580 01 00
expect frmMessage.Visible False
expect frmDialog.Visible False
