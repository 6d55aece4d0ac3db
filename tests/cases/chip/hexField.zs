# The field is overtyped digit by digit, with one digit selected at any time.
click frmMDI.lblRunMode(1)
dblclick frmRegister.lblValL(4)
expect frmEditRegister.txtWriteData.SelStart 0
expect frmEditRegister.txtWriteData.SelLength 1
type frmEditRegister.txtWriteData 1g2
expect frmEditRegister.txtWriteData.Text 1200
expect frmEditRegister.txtWriteData.SelStart 2
key frmEditRegister.txtWriteData 37
expect frmEditRegister.txtWriteData.SelStart 1
key frmEditRegister.txtWriteData 8
expect frmEditRegister.txtWriteData.SelStart 0
key frmEditRegister.txtWriteData 8
expect frmEditRegister.txtWriteData.SelStart 0
expect frmEditRegister.txtWriteData.Text 1200
key frmEditRegister.txtWriteData 39
expect frmEditRegister.txtWriteData.SelStart 1
key frmEditRegister.txtWriteData 46
key frmEditRegister.txtWriteData 38
key frmEditRegister.txtWriteData 40
key frmEditRegister.txtWriteData 34
key frmEditRegister.txtWriteData 33
expect frmEditRegister.txtWriteData.SelStart 1
expect frmEditRegister.txtWriteData.SelLength 1
expect frmEditRegister.txtWriteData.Text 1200
key frmEditRegister.txtWriteData 27
expect frmEditRegister.txtWriteData.SelStart 3
key frmEditRegister.txtWriteData 36
expect frmEditRegister.txtWriteData.SelStart 0
key frmEditRegister.txtWriteData 13
expect frmEditRegister.txtWriteData.SelStart 3
expect frmEditRegister.Visible True
type frmEditRegister.txtWriteData ab
expect frmEditRegister.txtWriteData.Text 120B
expect frmEditRegister.txtWriteData.SelStart 3
# the focus goes to the first digit, a click behind the text to the last
focus frmEditRegister.cmdAction(1)
focus frmEditRegister.txtWriteData
expect frmEditRegister.txtWriteData.SelStart 0
click frmEditRegister.txtWriteData
expect frmEditRegister.txtWriteData.SelStart 3
expect frmEditRegister.txtWriteData.SelLength 1
type frmEditRegister.txtWriteData c
expect frmEditRegister.txtWriteData.Text 120C
# another access fills the field anew
click frmEditRegister.opnAccess(1)
expect frmEditRegister.txtWriteData.Text 00
expect frmEditRegister.txtWriteData.SelLength 1
type frmEditRegister.txtWriteData 123
expect frmEditRegister.txtWriteData.Text 13
close frmEditRegister
expect frmEditRegister.Visible False
expect peek 0x586 00 00
