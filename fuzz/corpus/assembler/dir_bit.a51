#bit Flag
#bit F2=20h.1
#bit F3=07h
#bit F4=P1.3
#bit F5=200
SETB Flag
CLR F2
