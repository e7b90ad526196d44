#def Lade(ziel,wert) {mov (ziel),#(wert)}
#def Nix {nop}
#def Zwei {nop : nop}
#def Lade {nop}
#def Kaputt (x
#def Leer() {}
Lade(A,1)
Lade(A,1,2)
Lade
Nix
Zwei
'Nix'
DB 'Nix',Nix
