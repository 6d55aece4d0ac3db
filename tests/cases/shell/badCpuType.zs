#ini CPUTYPE=4
#status 3
echo never
