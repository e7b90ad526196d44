Hier: JC Hier
	JNC Hier
	JZ Weiter
	JNZ Weiter
	SJMP Weiter
Weiter: JB P1.0,Hier
	JNB ACC.1,Weiter
	JBC TF0,Hier
	DJNZ R7,Hier
	DJNZ 30h,Weiter
	CJNE A,#3,Hier
	CJNE A,30h,Hier
	CJNE R2,#4,Weiter
	CJNE @R1,#5,Weiter
