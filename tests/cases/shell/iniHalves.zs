#ini CPUTYPE=2.5
#ini SA-QVT40-1=1.5
#ini CLOCK-QVT40-1=0.5
#ini CABLECONNECTION=2
#ini MEMORYCLEAR=-1
# Halves go to the even row; any number but 0 clears the memory, only exactly 1 connects the cables.
expect cpuType 2
expect frmHard.cmbSA(0).ListIndex 2
expect saSetting(0) 3
expect clockSetting(1) 0
expect cableConnection 2
expect memoryClear -1
expect peek 0x000 00 00 00 00 00 00 00 00
expect peek 0x57C 00 00 00 00
wait 20
expect answeringBoard 0
