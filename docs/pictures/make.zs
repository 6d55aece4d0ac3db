# Makes the pictures of this folder, which a test compares; CONTRIBUTING.md says how new ones are taken.
#status 0
wait 200
poke 0x82 0xFF 0x55 0x0F 0xF0 0x81 0x18 0xAA 0x55 0x3C 0xC3
wait 100
click frmHard.picPI(3)
click frmHard.picPI(10)
wait 100
screenshot all bench.png
screenshot frmHard panel-all-connected.png

# The CPU's side
click frmMDI.lblMemoryWindow
screenshot frmDumpSel memory-drop-down.png
click frmDumpSel.cmdAREA(1)
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(2)
click frmHard.picPI(5)
click frmHard.picCounter(2)
poke 0x02 0x22
wait 100
screenshot frmDumpCDIO memory-cdio.png
screenshot frmDumpC17 memory-c17.png
screenshot frmDumpDRC memory-drc.png
screenshot frmRegister register-window.png
dblclick frmDumpDRC.lblData(13)
screenshot frmEditMemory memory-write.png
screenshot all every-window.png
click frmEditMemory.cmdAction(1)
# It enables an interrupt.
dblclick frmRegister.lblValH(4)
type frmEditRegister.txtWriteData 04
screenshot frmEditRegister register-write.png
screenshot frmRegister register-marked.png
click frmEditRegister.cmdAction(1)
click frmHard.lblBoardName(0)
dblclick frmHard.picCPU
select frmHard.cmbCPUType 1
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(3)
type frmMemoryRead.txtAddress 102
click frmMemoryRead.cmdAction(0)
screenshot frmMemoryRead memory-read.png
dblclick frmHard.picCPU
select frmHard.cmbCPUType 0
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(4)

# A word for board 1's serial input, drawn and half way out.
dblclick frmHard.picSDI(0)
type frmEditSerial.txtWriteData A53C
click frmEditSerial.cmdAction(0)
screenshot frmEditSerial serial-drawn.png
click frmEditSerial.cmdAction(2)
wait 1600
screenshot frmEditSerial serial-running.png
close frmEditSerial

dblclick frmHard.picIOS
screenshot frmHard panel-list-open.png
select frmHard.cmbIOS 0
wait 100
screenshot frmHard panel-ios0.png
dblclick frmHard.picIOS
select frmHard.cmbIOS 6
poke 0x8A 0x6F 0x05
wait 100
screenshot frmHard panel-ios6.png
dblclick frmHard.picIOS
select frmHard.cmbIOS 7
poke 0x8A 0x60 0x05
wait 1100
screenshot frmHard panel-ios7-motor.png
dblclick frmHard.picIOS
select frmHard.cmbIOS 5

dblclick frmHard.picBridge(0)
dblclick frmHard.picBridge(1)
screenshot frmHard panel-slaves-pulled.png
dblclick frmHard.picFConn(0)
dblclick frmHard.picFConn(2)

# Half duplex: no scan may run while the jumper is moved.
dblclick frmHard.picReset(0)
dblclick frmHard.picJumper(0)
click frmDialog.cmdAction(0)
screenshot frmDialog dialog.png
click frmDialog.cmdAction(0)
screenshot frmHard panel-half-duplex.png

# Schematics: of a master in half duplex, and of the center board; what SSA and SSB do.
dblclick frmHard.picQVT(1)
screenshot frmKAIROZU schematic-qvt40-half.png
dblclick frmHard.picJumper(0)
click frmDialog.cmdAction(0)
activate frmHard
dblclick frmHard.picQVT(0)
screenshot frmKAIROZU schematic-qvt60.png
close frmKAIROZU
dblclick frmHard.picSSA(0)
dblclick frmHard.picSSB(0)
screenshot frmOsiro stb.png
close frmOsiro
dblclick frmHard.picJumper(0)
click frmDialog.cmdAction(0)
click frmDialog.cmdAction(0)

dblclick frmHard.picBOARD1_RXD(0)
click frmHard.picCableUp(1)
click frmHard.picCableUp(2)
dblclick frmHard.picBridge(0)
dblclick frmHard.picBridge(1)
screenshot frmHard panel-nothing-connected.png

# The hints, and the settings.
select frmHint.tabHint 6
screenshot frmHint hint.png
click frmMDI.lblDefault
screenshot frmDefault defaults.png
click frmDefault.cmdAction(0)

# A lesson; its start puts the bench back to the maker's settings.
dblclick frmMDI.lblNagigator
screenshot frmNaviList lesson-list.png
click frmNaviList.cmdStart
click frmNavigation.cmdAction(1)
wait 100
screenshot frmNavigation lesson-page.png
screenshot all lesson.png
click frmNavigation.cmdAction(3)

click frmMDI.lblVersion
screenshot frmVersion splash.png
