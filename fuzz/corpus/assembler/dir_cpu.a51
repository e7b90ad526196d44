#cpu 80C32
#CPU 80C517
#cpu=8051
#cpuX
#cpu
MOV A,SBUF
SETB TI
#cpu ..
#cpu 80c537
