#ini CPUTYPE=1
#ini OPENWINDOW1=0
# On an 8-bit bus with hazard protect both halves of a word come from one moment, though the engine changes it between.
poke 0x584 0x10
poke 0x100 0x34 0x12
click frmMDI.lblMemoryWindow
click frmDumpSel.cmdAREA(3)
expect frmMemoryRead.Visible True
type frmMemoryRead.txtAddress 100
click frmMemoryRead.cmdAction(0)
expect frmMemoryRead.lblData.Caption 34
expect frmMemoryRead.lblGuide.Caption "リードテンポラリバッファにデータを格納しました。"
poke 0x100 0x78 0x56
type frmMemoryRead.txtAddress 101
click frmMemoryRead.cmdAction(0)
expect frmMemoryRead.lblData.Caption 12
expect frmMemoryRead.lblGuide.Caption "リードテンポラリバッファからデータを取得しました。"
# The next pair is the new moment's.
type frmMemoryRead.txtAddress 100
click frmMemoryRead.cmdAction(0)
expect frmMemoryRead.lblData.Caption 78
click frmMemoryRead.cmdAction(1)
expect frmMemoryRead.Visible False
