#ini IOS-QVT50=8
#status 3
echo never
