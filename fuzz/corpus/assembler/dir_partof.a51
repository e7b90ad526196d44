; Teil
#PART OF haupt.a51
	MOV A,#1
	RET
