#word W
#byte B
#word V=30h
MOV A,W
#word
