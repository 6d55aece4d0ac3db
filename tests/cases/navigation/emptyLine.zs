# An empty line is no entry.
#lesson NaviIndex.txt a.txt|a|
#lesson NaviIndex.txt
#lesson NaviIndex.txt b.txt|b|
#status 3
echo never
