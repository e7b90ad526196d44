#cpu 8051
#byte Zaehler, Muster
#bit Fertig
#const Teiler=20
#word Zeiger
#def Laden(reg,wert) {mov (reg),#(wert)}
#use lcall
Start:
	Laden(r0,Teiler)
	mov Zaehler,#HIGH(ACC)
	setb Fertig
	jnb P1.3,Start
	Unter
Unter:
	ret
