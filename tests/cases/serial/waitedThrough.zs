#prints now = 3300
# One wait over the end of the run: the opener goes on at the end of the run, not at the end of the wait.
poke 0x587 0x10
dblclick frmHard.picSDI(0)
type frmEditSerial.txtWriteData 00FF
click frmEditSerial.cmdAction(0)
click frmEditSerial.cmdAction(2)
wait 3300
now
expect peek 0x003 01
expect peek 0x586 10
poke 0x002 0x07
wait 20
expect peek 0x482 FF 00
expect frmHard.picSE(0).Picture "ilsLED_G 1"
