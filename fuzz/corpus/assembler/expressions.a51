ORG 100H
START:
	mov a,#LOW(1234H)+1
	mov b,#HIGH(ACC)
	mov dptr,#START+2*3-1
	mov r0,#0FFh/16
	jnz START
