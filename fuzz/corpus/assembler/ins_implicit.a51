	Unter
	LJMP Weiter
Unter: RET
Weiter: Unter
#use LCALL
	Unter
#use ACALL
	Unter
#use XCALL
	Fehlt
