# A list is opened by the double click of its picture and closes at a pick or when it loses the focus.
expect frmHard.cmbSA(1).Visible False
dblclick frmHard.picSA(2)
expect frmHard.cmbSA(1).Visible True
select frmHard.cmbSA(1) 0x0F
expect frmHard.cmbSA(1).Visible False
expect saSetting(1) 16
expect frmHard.picSA(2).Picture "ilsRSW 2"
expect frmHard.picSA(3).Picture "ilsRSW 1"

dblclick frmHard.picSA(2)
focus frmHard.picNoise
expect frmHard.cmbSA(1).Visible False
expect saSetting(1) 16

dblclick frmHard.picSA(2)
select frmHard.cmbSA(1) 63
expect error
expect frmHard.cmbSA(1).ListIndex 15
key frmHard.cmbSA(1) 27
expect frmHard.cmbSA(1).Visible False
