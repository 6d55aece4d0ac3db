#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# two boards with one address: both take DO, no answer comes through
click frmMDI.lblRunMode(1)
dblclick frmHard.picSA(2)
select frmHard.cmbSA(1) 0
expect frmDialog.lblDialogTitle.Caption "   警 告"
expect frmDialog.lblMessage.Caption "ボード1と、ボード3のＳＡが重複しています｡正常な通信が行えません｡ \r\n"
expect frmDialog.cmdAction(1).Visible False
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect saSetting(1) 1
expect frmHard.picSA(3).Picture "ilsRSW 2"
poke 0x082 0x55 0 0xAA 0
click frmHard.picPI(0)
step 5
expect boardDo(1) 0x55
expect boardDo(3) 0x55
expect boardDo(2) 0xAA
expect boardDo(4) 0xAA
expect peek 0x003 14
expect peek 0x005 14
expect peek 0x102 00 00
# RESET held on board 3: board 1 answers again
dblpress frmHard.picReset(3)
expect boardDo(3) 0
step 5
expect peek 0x003 00
release frmHard.picReset(3)
# the switch of the handshake is off: the first answer moved nothing
expect peek 0x102 00 00
