# A second refusal within the second takes the place of the first: text, place, beep and time are its own.
move frmRegister.lblValH(2)
dblclick frmRegister.lblValH(2)
expect frmMessage.Visible True
expect frmMessage.lblMessage.Caption "このレジスタはリードオンリーです。"
expect frmMessage.Tag 2
expect beeps 1
wait 900
move frmRegister.lblValL(8)
dblclick frmRegister.lblValL(8)
expect frmMessage.lblMessage.Caption "スキャン中はライトプロテクト。"
expect frmMessage.Tag 2
expect beeps 2
wait 1900
expect frmMessage.Visible True
wait 100
expect frmMessage.Visible False
# a click takes it away at once
dblclick frmRegister.lblValL(8)
click frmMessage.lblMessage
expect frmMessage.Visible False
expect beeps 3
