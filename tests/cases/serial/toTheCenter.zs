#ini OPENWINDOW1=0
# A word goes into board 2; the center learns of it, fetches it on the CPU's order, and the lamp goes dark.
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(1)
poke 0x587 0x10               # an interrupt when a serial flag rises
dblclick frmHard.picSDI(1)
type frmEditSerial.txtWriteData BEAD
click frmEditSerial.cmdAction(0)
click frmEditSerial.cmdAction(2)
# Boards go on being polled while the drawing moves.
set boardDi(2) 0x5A
wait 1600
expect frmEditSerial.Visible True
expect peek 0x104 5A
expect peek 0x005 00
wait 1620
expect frmEditSerial.Visible False
expect serialPending(1) -1
expect frmHard.picSE(1).Picture "ilsLED_G 2"
expect peek 0x005 01
expect peek 0x586 10
expect frmHard.picInt.Picture "ilsInt 2"
expect peek 0x484 00 00
# The flag rises once: with the status cleared it stays clear.
poke 0x586 0
wait 100
expect peek 0x005 01
expect peek 0x586 00
expect frmHard.picSE(1).Picture "ilsLED_G 2"
# The CPU orders command 7 in the control word of station 2.
dblclick frmDumpCDIO.lblData(11)
expect frmEditMemory.lblAdr.Caption 004
type frmEditMemory.txtWriteData 0107
click frmEditMemory.cmdAction(0)
wait 20
expect peek 0x484 AD BE
expect peek 0x004 00 00
expect serialPending(1) 0
expect frmHard.picSE(1).Picture "ilsLED_G 1"
# The board takes the next word, and keeps this one until then.
expect serialData(3) 0xBE
dblclick frmHard.picSDI(1)
expect frmEditSerial.Visible True
type frmEditSerial.txtWriteData 0F
click frmEditSerial.cmdAction(0)
click frmEditSerial.cmdAction(2)
poke 0x004 0x37               # command 7 again, fetched before the word is there: the old one
wait 40
expect peek 0x484 AD BE
expect peek 0x004 00
expect frmEditSerial.Visible True
wait 3160
expect serialPending(1) -1
expect serialData(3) 0x0F
expect serialData(2) 0xAD
