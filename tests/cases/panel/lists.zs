#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# settings that are made with a list
click frmMDI.lblRunMode(1)
expect frmHard.cmbSA(0).ListCount 63
expect frmHard.cmbSA(0).List(62) 0x3F
expect frmHard.cmbSA(0).Visible False
dblclick frmHard.picSA(0)
expect frmHard.cmbSA(0).Visible True
expect frmHard.picSA(1).MouseIcon "ilsMouse 1"
select frmHard.cmbSA(0) 41
expect frmHard.cmbSA(0).Visible False
expect frmHard.picSA(1).MouseIcon "ilsMouse 2"
expect saSetting(0) 42
expect frmHard.picSA(0).Picture "ilsRSW 3"
expect frmHard.picSA(1).Picture "ilsRSW 11"
# the center's clock cannot be opened
dblclick frmHard.picClock(0)
expect frmHard.cmbClock(0).Visible False
# the CPU's bus
dblclick frmHard.picCPU
expect frmHard.cmbCPUType.List(2) "16bit-Bus  Big  "
select frmHard.cmbCPUType 2
expect cpuType 2
# the counter mode is a dead end
dblclick frmHard.picMode
select frmHard.cmbMode 3
expect frmDialog.lblDialogTitle.Caption "   警 告"
expect frmDialog.lblMessage.Caption "ＱＶＴ５０のカウンタモードの、０以外の動作はユーザーズマニュアルをご参照ください。\r\n"
click frmDialog.cmdAction(0)
expect frmHard.cmbMode.ListIndex 0
expect frmHard.cmbMode.Visible False
expect ioBoardCounterMode 0
# escape closes a list
dblclick frmHard.picClock(1)
expect frmHard.cmbClock(1).Visible True
key frmHard.cmbClock(1) 27
expect frmHard.cmbClock(1).Visible False
expect clockSetting(1) 0

# By keyboard: two rows down from the selection and Enter; Escape leaves everything as it was.
dblclick frmHard.picClock(1)
key frmHard.cmbClock(1) 38
key frmHard.cmbClock(1) 38
key frmHard.cmbClock(1) 40
key frmHard.cmbClock(1) 13
expect frmHard.cmbClock(1).Visible False
expect frmHard.lblClock(1).Caption 24MHz
dblclick frmHard.picClock(1)
key frmHard.cmbClock(1) 40
key frmHard.cmbClock(1) 27
expect frmHard.cmbClock(1).Visible False
expect frmHard.lblClock(1).Caption 24MHz
