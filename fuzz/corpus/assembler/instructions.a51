	mov a,#12
	add a,r3
SCHLEIFE:
	djnz r7,SCHLEIFE
	ljmp WEITER
WEITER:
	ret
