#ini OPENWINDOW1=0
#ini OPENWINDOW3=0
# The two setting switches of board 1 choose the explanation of STB; it stands beside the board.
dblclick frmHard.picSTB(0)
expect frmOsiro.Visible True
expect frmOsiro.Top 4000
expect frmOsiro.Left 7900
expect frmOsiro.picSTB.Picture none
expect frmOsiro.lblUntouched.Visible True
dblclick frmHard.picSSA(0)
dblclick frmHard.picSSB(0)
expect frmOsiro.picSTB.Picture "ilsOsiro 4"
expect frmOsiro.lblUntouched.Visible False
dblclick frmHard.picSSA(0)
expect frmHard.picSSA(0).Tag 0
expect frmOsiro.picSTB.Picture "ilsOsiro 3"
dblclick frmHard.picSTB(9)
expect frmOsiro.Top 9000
expect frmOsiro.picSTB.Picture "ilsOsiro 3"
close frmOsiro
expect frmOsiro.Visible False
