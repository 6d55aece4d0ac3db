# A lit lamp refuses another word whatever the run mode.
set serialPending(0) -1
click frmMDI.lblRunMode(0)
dblclick frmHard.picSDI(0)
expect frmMessage.lblMessage.Caption "SEがローレベル(LED点灯)中は入力できません。"
click frmMessage.lblMessage
click frmMDI.lblRunMode(1)
dblclick frmHard.picSDI(0)
expect frmMessage.Visible True
click frmMessage.lblMessage
click frmMDI.lblRunMode(2)
dblclick frmHard.picSDI(0)
expect frmMessage.Visible True
click frmMessage.lblMessage
click frmMDI.lblRunMode(3)
dblclick frmHard.picSDI(0)
expect frmMessage.Visible True
click frmMessage.lblMessage
expect frmMessage.Visible False
set serialPending(0) 0
dblclick frmHard.picSDI(0)
expect frmMessage.Visible False
expect frmEditSerial.Visible True
click frmEditSerial.cmdAction(1)
