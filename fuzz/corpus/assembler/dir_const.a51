#const N=8
#const M=N*2
#const K
MOV A,#M
#const L='A'
