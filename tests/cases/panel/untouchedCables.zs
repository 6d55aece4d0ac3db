#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
#ini CABLECONNECTION=0
#ini CASCADE-QVT40-12=0
#ini CASCADE-QVT40-34=0
# nobody has touched a cable yet
expect frmHard.Width 7890
expect frmHard.picBOARD2_RXD(0).Tag ""
expect frmHard.picTermR(0).Visible False
wait 20
expect frmHard.picChkLED(0).Picture "ilsLED_R 2"
expect peek 0x583 00          # seven failures and more
dblclick frmHard.picBOARD1_RXD(0)
expect frmHard.picTermR(4).Visible True
wait 20
expect peek 0x003 00
expect peek 0x005 7C
