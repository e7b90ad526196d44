		NOP	;	x

