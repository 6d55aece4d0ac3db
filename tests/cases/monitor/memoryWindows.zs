#ini OPENWINDOW2=0
# A byte on its way into the memory window: the cell of its address, red for five seconds, in every byte order.
expect frmDumpCDIO.Visible True
expect frmDumpC17.Visible False
expect mdiClientHandle 1
expect frmDumpCDIO.piMode 1
expect frmDumpCDIO.lblCPUType.Caption "16bit-Bus Little"
click frmMDI.lblRunMode(1)
poke 0x122 0x41
click frmMDI.lblRunMode(3)
expect frmDumpCDIO.lblData(301).Caption 41
expect frmDumpCDIO.lblASC(301).Caption A
expect frmDumpCDIO.lblData(301).ForeColor 255
expect frmDumpCDIO.lblData(301).Tag 5
move frmDumpCDIO.lblData(301)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 122H ( 290) : 41"
expect frmDumpCDIO.lblPointSA.Caption " Pointing SA = 11H  (17)"
move frmDumpCDIO.lblASC(15)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 000H (   0) : 00"
wait 6000
expect frmDumpCDIO.lblData(301).ForeColor 0
expect frmDumpCDIO.lblASC(301).ForeColor 0
expect frmDumpCDIO.lblData(301).Tag 0
# The cells move with the button, the headings do not.
click frmDumpCDIO.cmbBit(0)
expect frmDumpCDIO.piMode 0
expect frmDumpCDIO.lblData(1).Left 765
expect frmDumpCDIO.lblOff(1).Caption ",E"
# Big endian: the odd byte of a word stands on the left.
dblclick frmHard.picCPU
select frmHard.cmbCPUType 2
expect frmDumpCDIO.lblCPUType.Caption "16bit-Bus  Big  "
expect frmDumpCDIO.lblData(291).Caption 41
move frmDumpCDIO.lblData(291)
expect frmDumpCDIO.lblPointAddress.Caption " Pointing Address = 123H ( 291) : 41"
expect frmDumpCDIO.lblOff(1).Caption ",1"
expect frmDumpCDIO.lblData(1).Left 720
