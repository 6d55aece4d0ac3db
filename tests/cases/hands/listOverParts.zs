# The second press of a double click on a row of an open list belongs to the list, or to nobody: what lies under the row
# stays as it is.

# The list of the CPU's bus lies over RESET of the center board.
wait 600
dblclick frmHard.picCPU
wait 600
hand move 436 113
hand down
hand up
expect frmHard.cmbCPUType.Visible False
expect cpuType 1
wait 150
hand down
expect frmHard.picReset(0).Picture "ilsRESET 1"
expect continuousScanActive -1
hand up
expect frmHard.picReset(0).Picture "ilsRESET 1"
expect continuousScanActive -1

# Later it is a press like any other: two of them press RESET.
wait 600
hand down
hand up
wait 150
hand down
expect frmHard.picReset(0).Picture "ilsRESET 2"
hand up

# A clock's list lies over a jumper.
wait 600
click frmMDI.lblRunMode(1)
dblclick frmHard.picReset(0)
dblclick frmHard.picClock(1)
wait 600
hand move 126 315
hand down
hand up
expect frmHard.cmbClock(1).Visible False
expect clockSetting(1) 0
wait 150
hand down
hand up
expect frmDialog.Visible False
expect boardFullHalf 16

# The list of board 5's modes lies over BPSS.
wait 600
dblclick frmHard.picIOS
wait 600
hand move 191 829
hand down
hand up
expect frmHard.cmbIOS.Visible False
expect ioBoardMode 0
wait 150
hand down
hand up
expect frmHard.picBPSS.Tag ""
wait 600
hand down
hand up
wait 150
hand down
hand up
expect frmHard.picBPSS.Tag 1
