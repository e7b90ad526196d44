#cpu 8051
#b*te Zaehlerord Zeiger
#def Laden(reg,wert) {mov (reg),#(wert)}r
#def Lqden(reg,wert) {mov (reg),#(wert)}
#use lccln
Start:
	Laden(r1,teiler)
	mov Z)}
#use lccln
Start:
	Laden(rn(reg,wert) {mov (reg),#(wert)}r
#def
