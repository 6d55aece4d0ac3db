#ini SA-QVT50=63
#status 3
echo never
