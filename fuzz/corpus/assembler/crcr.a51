	NOP
	RET
