# What can be looked at.
expect screen.TwipsPerPixelX 15
expect screen.TwipsPerPixelY 15
expect frmMDI.Caption ZEL-VS
expect frmMDI.lblRunMode(0).Caption " RUN "
expect frmMDI.lblRunMode(3).Caption 1-Time
expect frmMDI.lblNagigator.Caption Navigator
expect frmMDI.lblNagigator.MouseIcon "ilsMouse 2"
expect frmMDI.lblVersion.MousePointer 99
expect frmMDI.shpTick.BackColor 0xC0C0FF
expect frmHard.cmbSA(0).ListCount 63
expect frmHard.cmbSA(0).List(62) 0x3F
expect frmHard.cmbSA(0).Text 0x01
expect frmVersion.Visible False
box
echo "a \"quoted\" text" and more
#prints none
#prints a "quoted" text and more
