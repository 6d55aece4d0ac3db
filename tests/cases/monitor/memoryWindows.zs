#ini OPENWINDOW2=0
# A byte on its way into the memory window: the cell of its address, red for five seconds, in every byte order.
expect frmDumpCDIO.Visible True
expect frmDumpC17.Visible False
expect mdiClientHandle 1
expect frmDumpCDIO.piMode 1
expect frmDumpCDIO.lblCPUType.Caption "16bit-Bus Little"
click frmMDI.lblRunMode(1)
poke 0x102 0x41
click frmMDI.lblRunMode(3)
expect frmDumpCDIO.lblData(269).Caption 41
expect frmDumpCDIO.lblASC(269).Caption A
expect frmDumpCDIO.lblData(269).ForeColor 255
expect frmDumpCDIO.lblData(269).Tag 5
move frmDumpCDIO.lblData(269)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 102H ( 258) : 41"
expect frmDumpCDIO.lblPointSA.Caption " Pointing SA = 01H  ( 1)"
move frmDumpCDIO.lblASC(15)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 000H (   0) : 00"
wait 6000
expect frmDumpCDIO.lblData(269).ForeColor 0
expect frmDumpCDIO.lblASC(269).ForeColor 0
expect frmDumpCDIO.lblData(269).Tag 0
# The cells move with the button, the headings do not.
click frmDumpCDIO.cmbBit(0)
expect frmDumpCDIO.piMode 0
expect frmDumpCDIO.lblData(1).Left 765
expect frmDumpCDIO.lblOff(1).Caption ",E"
# Big endian: the odd byte of a word stands on the left.
dblclick frmHard.picCPU
select frmHard.cmbCPUType 2
expect frmDumpCDIO.lblCPUType.Caption "16bit-Bus  Big  "
expect frmDumpCDIO.lblData(259).Caption 41
move frmDumpCDIO.lblData(259)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 103H ( 259) : 41"
expect frmDumpCDIO.lblOff(1).Caption ",1"
expect frmDumpCDIO.lblData(1).Left 720
