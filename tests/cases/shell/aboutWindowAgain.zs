# Shown anew while it is there, the about window stays for five whole seconds, whatever part of one had run.
click frmMDI.lblVersion
wait 1500
click frmMDI.lblVersion
wait 4999
expect frmVersion.Visible True
wait 1
expect frmVersion.Visible False
