	NOP : NOP : INC A
	MOV A,#1: MOV B,#2 : MUL AB
: : :
