# Escape leaves a window by its Cancel button, by its close box, or by the only button that it has.
click frmMDI.lblDefault
hand key Escape
expect frmDefault.Visible False

dblclick frmMDI.lblNagigator
hand key Escape
expect frmNaviList.Visible False
expect frmNavigation.Visible False

# A question with two buttons, and a warning with one
click frmMDI.lblRunMode(1)
dblclick frmHard.picSA(2)
select frmHard.cmbSA(1) 0
expect frmDialog.cmdAction(1).Visible False
hand key Escape
expect frmDialog.Visible False
activate frmRegister
hand key Escape
expect frmRegister.Visible False

# The bench has no close box, and the frame wants more than a slip.
activate frmHard
hand key Escape
expect frmHard.Visible True
activate frmMDI
hand key Escape
expect frmMDI.Visible True
box
#prints none

# The serial generator during its run: its Cancel button rests, its close box does not.
dblclick frmHard.picSDI(0)
click frmEditSerial.cmdAction(0)
click frmEditSerial.cmdAction(2)
wait 500
expect frmEditSerial.Visible True
hand key Escape
expect frmEditSerial.Visible False
expect frmEditSerial.cancelled -1
