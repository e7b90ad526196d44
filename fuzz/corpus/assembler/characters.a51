	mov a,#'A'
	mov dptr,#'AB'
	mov r1,#'ABC'
	cjne a,#'x',ENDE
ENDE:
	mov a,#':'
