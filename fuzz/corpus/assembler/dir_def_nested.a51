#def Eins {inc a}
#def Zwei {Eins : Eins}
#def Drei(x) {Zwei : mov a,#(x)}
Drei(5)
Drei()
Drei
