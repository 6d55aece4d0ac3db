#ini OPENWINDOW1=0
#ini OPENWINDOW2=0
#ini OPENWINDOW3=0
# the noise button on the line, with known random numbers
click frmMDI.lblRunMode(1)
press frmHard.picNoise
expect noiseHeld -1
expect noiseHoldOff 500
expect frmHard.picNoise.Picture "ilsNOISE 2"
step
expect peek 0x003 14
expect noiseHoldOff 499
step 499
expect noiseHoldOff 0
expect peek 0x58A 01
expect noiseHits 0
# a scan of five stations: a number hits between 0.5 and 1.5 parts of 195
random 0.002 0.0027 0.0076 0.0078
step
expect noiseHits 0
step
expect noiseHits 1
expect noiseStation 2
expect peek 0x005 14
step
expect noiseHits 2
expect noiseStation 3
step
expect noiseHits 2
release frmHard.picNoise
expect noiseHeld 0
expect noiseHits 2
expect frmHard.picNoise.Picture "ilsNOISE 1"
step 10
expect noiseHits 2
# after eleven hits it sits on one station until both check lamps burn
dblclick frmHard.picReset(0)
set noiseHits 10
set noiseHeld -1
poke 0x580 15
random 0.5 0.0769
step 2
expect noiseStation 2
step 45
expect peek 0x58C 0B          # the ten empty stations and station 2
expect noiseHits 0
