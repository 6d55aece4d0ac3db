# A press whose release went elsewhere is over. The list of the counter modes is left by pressing NOISE, and its message
# takes the mouse.
wait 600
dblclick frmHard.picMode
wait 600
hand move frmHard.picNoise
hand down
expect frmDialog.Visible True
hand up
hand key Enter
expect frmDialog.Visible False
expect noiseHeld 0
expect frmHard.picNoise.Picture "ilsNOISE 1"
wait 2000
expect noiseHeld 0

# Also when the button goes up only after the message.
dblclick frmHard.picMode
wait 600
hand move frmHard.picNoise
hand down
hand key Enter
expect noiseHeld 0
hand up
expect noiseHeld 0
expect frmHard.picNoise.Picture "ilsNOISE 1"

# Then NOISE works as before.
wait 600
hand down
expect noiseHeld -1
hand up
expect noiseHeld 0

# A counter that is pressed when a message comes does not count; pressed again it does.
dblclick frmHard.picMode
wait 600
hand move frmHard.picCounter(0)
hand down
hand up
hand key Enter
expect frmHard.picCounter(0).Picture "ilsCount 1"
expect boardCounters(0) 0
wait 600
hand down
expect frmHard.picCounter(0).Picture "ilsCount 2"
hand up
expect boardCounters(0) 1

# A window that goes lets go of what is held in it: a start anew takes the panel away under the hand.
wait 600
hand move frmHard.picNoise
hand down
expect noiseHeld -1
click frmMDI.lblDefault
click frmDefault.cmdAction(1)
expect noiseHeld 0
hand up
expect noiseHeld 0
expect frmHard.picNoise.Picture "ilsNOISE 1"

# A gesture by name waits for its own release, whatever comes between.
press frmHard.picNoise
dblclick frmHard.picSDI(0)
close frmEditSerial
expect noiseHeld -1
release frmHard.picNoise
expect noiseHeld 0
