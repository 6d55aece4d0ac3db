# The drawing runs for 3.2 seconds, then the word is there in one piece; the lamp refuses more.
dblclick frmHard.picSDI(3)
expect frmEditSerial.lblAdr.Caption 4
expect frmEditSerial.Left 12600
expect frmEditSerial.Top 5900
expect frmEditSerial.Width 7815
expect frmEditSerial.Height 3525
expect serialEditBoard 3
expect frmEditSerial.picDREQ_Data.Left 120
expect frmEditSerial.timEnter.Interval 0
type frmEditSerial.txtWriteData 8001
key frmEditSerial.txtWriteData 13
expect frmEditSerial.cmdAction(2).Default True
key frmEditSerial.txtWriteData 13
expect frmEditSerial.cmdAction(0).Default True
expect frmEditSerial.cmdAction(0).Enabled False
expect frmEditSerial.cmdAction(1).Enabled False
expect frmEditSerial.cmdAction(2).Enabled False
expect frmEditSerial.timEnter.Interval 100
expect frmEditSerial.enteredValue 8001
expect frmHard.picSerialInt(3).Visible True
click frmEditSerial.cmdAction(1)
expect error
wait 100
expect frmEditSerial.picDREQ_Data.Left -105
wait 3099
expect frmEditSerial.Visible True
expect frmEditSerial.picDREQ_Data.Left -6855
expect serialPending(3) 0
wait 1
expect frmEditSerial.Visible False
expect frmEditSerial.cancelled 0
expect frmEditSerial.timEnter.Interval 0
expect frmHard.picSerialInt(3).Visible False
expect frmHard.picSE(3).Picture "ilsLED_G 2"
expect serialPending(3) -1
expect serialData(7) 128
expect serialData(6) 1
dblclick frmHard.picSDI(3)
expect frmEditSerial.Visible False
expect frmMessage.Visible True
expect frmMessage.lblMessage.Caption "SEがローレベル(LED点灯)中は入力できません。"
# The neighbour is free, and its dialog takes the message away.
dblclick frmHard.picSDI(2)
expect frmMessage.Visible False
expect frmEditSerial.Left 7500
expect frmEditSerial.cmdAction(2).Enabled False
expect frmEditSerial.txtWriteData.Text 8001
click frmEditSerial.cmdAction(1)
