# A press whose release nobody has told of is over when the next one begins, also when a field had it and the next one
# takes a window by its caption bar.
wait 600
hand move frmHint.tabHint
hand down
hand move 1228 45
hand down
hand up
hand move frmHard.picNoise
expect noiseHeld 0
hand down
expect noiseHeld -1

# It is over as well when a message box takes the mouse, and the button goes up there.
close frmMDI
expect noiseHeld 0
expect frmHard.picNoise.Picture "ilsNOISE 1"
hand up
answer cancel
expect noiseHeld 0
wait 600
hand down
expect noiseHeld -1
hand up
expect noiseHeld 0
