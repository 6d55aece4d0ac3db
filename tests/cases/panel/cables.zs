#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# cables, terminators and slaves
expect frmHard.picBOARD1_RXD(0).Tag 1
expect frmHard.picCableUp(0).Top 24
expect frmHard.picTermR(0).Visible True
expect frmHard.picTermR(4).Visible True
# the free port takes the cable across
dblclick frmHard.picBOARD1_RXD(1)
expect frmHard.picBOARD2_RXD(0).Tag 1
expect frmHard.picBOARD1_RXD(0).Tag 0
expect frmHard.picBOARD1_RXD(1).Tag 1
expect frmHard.picCableUp(0).Top 62
expect frmHard.picTermR(0).Visible False
expect frmHard.picTermR(1).Visible True
# pulled by its picture
click frmHard.picCableUp(2)
expect frmHard.picBOARD2_RXD(3).Tag 0
expect frmHard.picCableUp(2).Picture "ilsCable 1"
expect frmHard.picCableDn(2).Picture "ilsCable 3"
expect frmHard.picTermR(3).Visible True
click frmHard.picCableDn(2)
expect frmHard.picBOARD2_RXD(3).Tag 1
# slaves
dblclick frmHard.picBridge(0)
expect frmHard.picBoard(2).Visible False
expect frmHard.picBoard(2).Tag 0
expect frmHard.picShadow(2).Visible False
expect frmHard.Width 13330
dblclick frmHard.picBridge(1)
expect frmHard.Width 7890
dblclick frmHard.picFConn(0)
expect frmHard.picBoard(2).Visible True
expect frmHard.Width 13330
