#ini MODE-QVT50=-1
#status 3
echo never
