# Two boards on one station: the yellow box holds the user, the ticks go on behind it.
dblclick frmHard.picSA(0)
select frmHard.cmbSA(0) 4
expect frmDialog.Visible True
expect frmDialog.lblDialogTitle.Caption "   警 告"
expect frmDialog.lblMessage.Caption "ボード1と、ボード5のＳＡが重複しています｡正常な通信が行えません｡ \r\n"
expect frmDialog.cmdAction(1).Visible False
expect frmDialog.BackColor 0x00FFFF
expect beeps 1
click frmMDI.lblRunMode(1)
expect error
wait 20
expect frmMDI.shpTick.Left 51
close frmDialog
expect error
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect frmDialog.dialogResult 1
click frmMDI.lblRunMode(1)
expect runMode 1
#prints error: frmDialog is modal
