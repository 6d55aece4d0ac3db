# The about window: no progress bar, gone after five seconds or at the first click.
expect frmVersion.Visible False
expect startupDone -1
expect processStep 8
click frmMDI.lblVersion
expect frmVersion.Visible True
expect frmVersion.picProgress.Visible False
expect frmVersion.lblVer.Caption "Ver,1.00"
expect frmVersion.Label1(0).Caption "ZEL-VS "
expect frmVersion.Label2(9).Caption "本シミュレータは、学習と疑似体験用に開発されたのもで、"
wait 4999
expect frmVersion.Visible True
wait 1
expect frmVersion.Visible False

click frmMDI.lblVersion
click frmVersion.Label2(3)
expect frmVersion.Visible False
click frmMDI.lblVersion
click frmVersion.Picture1(1)
expect frmVersion.Visible False
click frmMDI.lblVersion
click frmVersion.lblCopyright
expect frmVersion.Visible False

# It is loaded anew each time: the five seconds start again.
click frmMDI.lblVersion
wait 3000
click frmVersion.lblVer
click frmMDI.lblVersion
wait 4999
expect frmVersion.Visible True
wait 1
expect frmVersion.Visible False
