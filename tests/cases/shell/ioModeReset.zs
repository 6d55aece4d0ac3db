#ini IOS-QVT50=3
#ini MODE-QVT50=3
# The panel shows the file's modes, the variables fall under the reset.
expect frmHard.cmbIOS.ListIndex 3
expect frmHard.cmbMode.ListIndex 3
expect ioBoardMode 0
expect ioBoardCounterMode 0
