# Each row of the boards' schematics, by the double click on the board's chip.
poke 0x580 0
wait 200
dblclick frmHard.picQVT(0)
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_FULL_16BIT.BMP"
activate frmHard
dblclick frmHard.picQVT(3)
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_FULL_NEST.BMP"
activate frmHard
dblclick frmHard.picQVT(2)
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_NEST.BMP"
activate frmHard
dblclick frmHard.picQVT(4)
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_NEST.BMP"
activate frmHard
dblclick frmHard.picBridge(0)
dblclick frmHard.picQVT(1)
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_FULL.BMP"
expect frmKAIROZU.picHalf.Visible False
activate frmHard
dblclick frmHard.picQVT(5)
dblclick frmHard.picIOS
select frmHard.cmbIOS 1
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_1.BMP"
dblclick frmHard.picIOS
select frmHard.cmbIOS 2
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_2.BMP"
dblclick frmHard.picIOS
select frmHard.cmbIOS 3
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_3.BMP"
dblclick frmHard.picIOS
select frmHard.cmbIOS 4
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_4.BMP"
dblclick frmHard.picIOS
select frmHard.cmbIOS 5
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_5.BMP"
dblclick frmHard.picIOS
select frmHard.cmbIOS 6
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_6.BMP"
dblclick frmHard.picIOS
select frmHard.cmbIOS 7
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_7.BMP"
# half duplex, on both buses
dblclick frmHard.picJumper(0)
click frmDialog.cmdAction(0)
click frmDialog.cmdAction(0)
activate frmHard
dblclick frmHard.picQVT(0)
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_HALF_16BIT.BMP"
expect frmKAIROZU.picHalf.Visible False
dblclick frmHard.picCPU
select frmHard.cmbCPUType 3
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_HALF_8BIT.BMP"
