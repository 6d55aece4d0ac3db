# Cancelled or closed, also in the middle of a run, nothing goes out, and the next opening is a whole one.
dblclick frmHard.picSDI(1)
expect frmEditSerial.cancelled 0
type frmEditSerial.txtWriteData 1234
click frmEditSerial.cmdAction(0)
click frmEditSerial.cmdAction(1)
expect frmEditSerial.cancelled -1
expect serialPending(1) 0
expect frmHard.picSE(1).Picture "ilsLED_G 1"
# "Start" is still the default and still asks for "Set" first.
dblclick frmHard.picSDI(1)
expect frmEditSerial.cancelled 0
expect frmEditSerial.cmdAction(2).Default True
expect frmEditSerial.cmdAction(2).Enabled False
key frmEditSerial.txtWriteData 13
expect frmEditSerial.timEnter.Interval 0
click frmEditSerial.cmdAction(0)
click frmEditSerial.cmdAction(2)
wait 1600
expect frmHard.picSerialInt(1).Visible True
close frmEditSerial
expect frmEditSerial.Visible False
expect frmEditSerial.cancelled -1
expect frmHard.picSerialInt(1).Visible False
expect serialPending(1) 0
expect serialData(3) 0
dblclick frmHard.picSDI(1)
expect frmEditSerial.picDREQ_Data.Left 120
expect frmEditSerial.cmdAction(0).Default True
wait 10000
expect frmEditSerial.Visible True
expect frmEditSerial.picDREQ_Data.Left 120
# The text may still be changed under the drawing.
click frmEditSerial.cmdAction(0)
type frmEditSerial.txtWriteData FFFF
click frmEditSerial.cmdAction(2)
wait 3199
expect frmEditSerial.Visible True
wait 1
expect frmEditSerial.Visible False
expect serialPending(1) -1
expect serialData(3) 255
expect serialData(2) 255
