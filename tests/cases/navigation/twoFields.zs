# An entry without its third field ends the program at its start.
#lesson NaviIndex.txt a.txt|a|
#lesson NaviIndex.txt b.txt|b
#status 3
echo never
