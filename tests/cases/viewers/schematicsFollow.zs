# The open schematic follows the settings of its own board and of no other.
# No scan, so that the jumper may be changed.
poke 0x580 0
wait 200
expect continuousScanActive 0
dblclick frmHard.picQVT(0)
expect frmKAIROZU.Visible True
expect frmKAIROZU.Top 0
expect frmKAIROZU.Left 10050
expect kairozuCurrent 0
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_FULL_16BIT.BMP"
expect frmKAIROZU.picHalf.Visible False
# the bus
dblclick frmHard.picCPU
select frmHard.cmbCPUType 1
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_FULL_8BIT.BMP"
dblclick frmHard.picCPU
select frmHard.cmbCPUType 2
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_FULL_16BIT.BMP"
dblclick frmHard.picCPU
select frmHard.cmbCPUType 3
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_FULL_8BIT.BMP"
dblclick frmHard.picCPU
select frmHard.cmbCPUType 0
# another board's setting does not disturb it
dblclick frmHard.picIOS
select frmHard.cmbIOS 5
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_FULL_16BIT.BMP"
expect kairozuCurrent 0

# the jumper, on a master: an overlay
activate frmHard
dblclick frmHard.picQVT(1)
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_FULL_NEST.BMP"
expect frmKAIROZU.picHalf.Visible False
dblclick frmHard.picJumper(1)
click frmDialog.cmdAction(0)
# the warning: BCR still says full
click frmDialog.cmdAction(0)
expect boardFullHalf 0
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_FULL_NEST.BMP"
expect frmKAIROZU.picHalf.Visible True
expect frmKAIROZU.picHalf.Picture "file Qvt40_add_half.bmp"
expect frmKAIROZU.picHalf.Left 0
expect frmKAIROZU.picHalf.Top 0
# the slave: pulling its cable hides the window, plugging it again is followed by an open one
dblclick frmHard.picBridge(0)
expect frmKAIROZU.Visible False
activate frmHard
dblclick frmHard.picQVT(1)
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_FULL.BMP"
expect frmKAIROZU.picHalf.Picture "file Qvt40_add_half.bmp"
dblclick frmHard.picFConn(0)
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_FULL_NEST.BMP"
activate frmHard
dblclick frmHard.picQVT(2)
expect frmKAIROZU.picKAIROZU.Picture "file QVT40_NEST.BMP"
expect frmKAIROZU.picHalf.Visible False

# the io board
activate frmHard
dblclick frmHard.picQVT(5)
expect kairozuCurrent 5
expect frmKAIROZU.picHalf.Visible True
expect frmKAIROZU.picHalf.Picture "file Qvt50_add_half.bmp"
dblclick frmHard.picIOS
select frmHard.cmbIOS 7
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_7.BMP"
dblclick frmHard.picJumper(3)
click frmDialog.cmdAction(0)
expect frmDialog.Visible False
expect boardFullHalf 16
expect frmKAIROZU.picHalf.Visible False
dblclick frmHard.picIOS
select frmHard.cmbIOS 0
expect frmKAIROZU.picKAIROZU.Picture "file QVT50_IOS_0.BMP"
