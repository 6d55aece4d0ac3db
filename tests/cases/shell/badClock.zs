#ini CLOCK-QVT40-3=3
#status 3
echo never
