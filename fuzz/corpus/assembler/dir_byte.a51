#byte a
#byte b,c=40h
#BYTE d = 30h , e
#byte
#byte x=y
#byte f=300
#byte g=20h+1
