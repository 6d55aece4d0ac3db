#ini OPENWINDOW1=0
# The register window waits for its label in the tool bar.
expect frmRegister.Visible False
expect frmRegister.Left 6800
expect frmRegister.Top 1100
click frmMDI.lblRegisterWindow
expect frmRegister.Visible True
wait 20
expect frmRegister.lblReg(1).Caption SCR
expect frmRegister.lblValL(8).Caption 13
