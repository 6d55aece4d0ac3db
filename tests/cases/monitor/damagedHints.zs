# Hints that are cut, of unknown packing, too wide or far too large are left out without a word, wherever they stand.
#damage HintData/SCR.BMP 30
#damage HintData/HPR.BMP 30 \007
#damage HintData/BCR.BMP 18 \000\100
#damage HintData/C2CR.BMP 1099511627776
expect frmHint.Visible True
expect frmHint.tabHint.Tabs 9
expect frmHint.tabHint.TabCaption(0) SCR
expect frmHint.picHint.Picture "ilsHint 1"
expect frmHint.picHint.Width 7200
expect frmHint.Width 7440
select frmHint.tabHint 1
wait 20
expect frmHint.picHint.Picture "ilsHint 2"
select frmHint.tabHint 2
wait 20
expect frmHint.picHint.Picture "ilsHint 3"
select frmHint.tabHint 3
wait 20
expect frmHint.picHint.Picture "ilsHint 4"
select frmHint.tabHint 4
wait 20
expect frmHint.picHint.Picture "ilsHint 5"
