#prints frmDefault visible
# The dialog knows nothing of the panel, and closing it forgets nothing.
click frmMDI.lblMemoryWindow
expect frmDumpSel.Visible True
click frmMDI.lblDefault
expect frmDumpSel.Visible False
dblclick frmHard.picSA(0)
select frmHard.cmbSA(0) 20
click frmMDI.lblDefault
expect frmDefault.cmbSA(0).ListIndex 0
select frmDefault.cmbMode 2
click frmDefault.chkDef(1)
click frmDefault.cmdAction(0)
expect frmDefault.Visible False
expect memoryClear 1
click frmMDI.lblDefault
expect frmDefault.cmbMode.ListIndex 2
expect frmDefault.chkDef(1).Value 0
# the maker's values: into the controls only
click frmDefault.cmdAction(3)
expect frmDefault.cmbMode.ListIndex 0
expect frmDefault.chkDef(1).Value 1
expect frmDefault.cmbIOS.ListIndex 5
expect frmDefault.cmbSA(4).ListIndex 4
close frmDefault
expect frmDefault.Visible False
click frmMDI.lblDefault
expect frmDefault.cmbIOS.ListIndex 5
# it stands above what the user turns to
activate frmRegister
forms
