#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# board 5 in mode 7: switches, counter, motor
click frmMDI.lblRunMode(1)
click frmHard.picPI(70)
expect boardDi(8) 0
dblclick frmHard.picIOS
select frmHard.cmbIOS 7
expect ioBoardMode 7
expect frmHard.picBoard(6).Visible True
expect frmHard.picPI(64).Tag I0
expect frmHard.picPI(72).Tag O0
expect frmHard.picPI(79).Visible False
expect frmHard.picSSA(4).Visible False
click frmHard.picPI(64)
expect boardDi(9) 16
click frmHard.picCounter(24)
click frmHard.picCounter(24)
expect boardDi(8) 2
step 5
expect peek 0x10A 02 10
press frmHard.picCounter(25)
expect boardDi(8) 0
expect boardDi(9) 16
release frmHard.picCounter(25)
# the motor
poke 0x08A 0xBF 0x01
step 5
expect frmHard.timMotor.Interval 125
expect frmHard.picPower(0).Picture "ilsLED_G 2"
expect frmHard.picTriangle.Picture "ilsTriangle 1"
expect frmHard.picPI(72).Tag O1
wait 125
expect frmHard.imgBelt.Picture "ilsMotor 2"
expect frmHard.picTriangle.Picture "ilsTriangle 2"
# RESET keeps the switches
dblpress frmHard.picReset(5)
expect ioBoardResetHeld -1
expect ioBoardDo 0
expect boardDi(9) 16
expect frmHard.picPI(72).Tag O0
release frmHard.picReset(5)
expect ioBoardResetHeld 0
