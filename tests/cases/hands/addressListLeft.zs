# An address list that is left without a pick warns once of two boards at one station.
wait 100
dblclick frmHard.picSA(2)
select frmHard.cmbSA(1) 0
click frmDialog.cmdAction(0)

dblclick frmHard.picSA(2)
click frmHard.picSA(2)
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect frmHard.cmbSA(1).Visible False

dblclick frmHard.picSA(3)
click frmHard.picPI(0)
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect frmHard.picPI(0).Tag I1

dblclick frmHard.picSA(4)
activate frmRegister
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmDialog.Visible False

# from one list into the next: each is left once
dblclick frmHard.picSA(0)
dblclick frmHard.picIOS
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmHard.cmbSA(0).Visible False
expect frmDialog.Visible False
click frmHard.picIOS
expect frmDialog.Visible True
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
