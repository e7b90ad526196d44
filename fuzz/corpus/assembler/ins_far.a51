	ORG 07F0h
Links: NOP
	ORG 0900h
	ACALL Links
	SJMP Weit
	ORG 0A00h
Weit: NOP
