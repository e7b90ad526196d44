ORG 0
	ajmp MAIN
ORG 0BH
	reti
ORG 30H
MAIN:
	mov 30h,#101B
	jb 20h.3,MAIN
	anl c,/22h.1
	movc a,@a+dptr
	movx @dptr,a
	UNTERPROGRAMM
UNTERPROGRAMM:
	lcall HIER
	X = 5
