# Registers that do not open: SSR never, BCR not during a scan.
wait 100
dblclick frmRegister.lblValH(2)
expect frmMessage.Visible True
expect frmMessage.lblMessage.Caption このレジスタはリードオンリーです。
dblclick frmRegister.lblBinL(2)
expect beeps 2
expect frmMessage.lblMessage.Caption このレジスタはリードオンリーです。
dblclick frmRegister.lblValL(8)
expect frmMessage.lblMessage.Caption スキャン中はライトプロテクト。
expect beeps 3
click frmEditRegister.cmdAction(0)
expect error
dblclick frmRegister.lblValL(6)
expect frmMessage.Visible False
expect frmEditRegister.Visible True
click frmEditRegister.cmdAction(1)
expect frmEditRegister.Visible False
