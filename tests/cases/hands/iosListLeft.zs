# Two boards share a station, and the warning was answered. The IOS list is opened and left without a pick, in each way
# that there is: one takeover, and one warning, every time.
wait 100
dblclick frmHard.picSA(2)
select frmHard.cmbSA(1) 0
expect frmDialog.lblMessage.Caption "ボード1と、ボード3のＳＡが重複しています｡正常な通信が行えません｡ \r\n"
click frmDialog.cmdAction(0)
expect frmDialog.Visible False

# by its picture
dblclick frmHard.picIOS
expect frmHard.cmbIOS.Visible True
click frmHard.picIOS
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect frmHard.cmbIOS.Visible False
expect ioBoardMode 5

# by another control
dblclick frmHard.picIOS
click frmHard.picPI(3)
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect frmHard.cmbIOS.Visible False
expect frmHard.picPI(3).Tag I1

# by another window
dblclick frmHard.picIOS
activate frmRegister
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect frmHard.cmbIOS.Visible False
expect frmRegister.Visible True

# by the place beside everything, and by Escape
dblclick frmHard.picIOS
click frmHard
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
dblclick frmHard.picIOS
key frmHard.cmbIOS 27
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect frmHard.cmbIOS.Visible False
