#include "instruction_texts.h"

#include <iterator>

namespace korvex::help {

// Every example names its controller and assembles without a finding; the
// help's test assembles them all.
const InstructionText kInstructionTexts[] = {
    {"add", "Addieren",
     "Addiert den zweiten Operanden zum Akku; das Ergebnis steht im Akku. Ein Übertrag aus Bit 7 "
     "setzt C, einer aus Bit 3 AC; OV zeigt einen Überlauf im Zweierkomplement.",
     "C, OV, AC", "#cpu 8032\nmov a,#25h\nadd a,#17h      ; A = 3Ch\nadd a,r0\nend"},
    {"addc", "Addieren mit Übertrag",
     "Wie ADD, zählt aber das Carry-Bit mit: so werden Zahlen aus mehreren Bytes addiert.",
     "C, OV, AC",
     "#cpu 8032\n; 16-Bit-Addition R1:R0 + 1234h\nmov a,r0\nadd a,#34h\nmov r0,a\nmov a,r1\n"
     "addc a,#12h\nmov r1,a\nend"},
    {"subb", "Subtrahieren mit Borgen",
     "Zieht den Operanden und das Carry-Bit vom Akku ab. Vor der ersten Subtraktion C mit CLR C "
     "löschen; nach ihr zeigt C ein Borgen an.",
     "C, OV, AC", "#cpu 8032\nclr c\nmov a,#50h\nsubb a,#20h     ; A = 30h, C = 0\nend"},
    {"inc", "Um eins erhöhen",
     "Erhöht den Operanden um 1. Bei FFh geht es ohne Meldung auf 00h weiter; INC DPTR zählt den "
     "16-Bit-Datenzeiger.",
     "", "#cpu 8032\nmov r2,#0FFh\ninc r2          ; R2 = 00h\ninc dptr\nend"},
    {"dec", "Um eins vermindern",
     "Vermindert den Operanden um 1; 00h wird zu FFh. Es gibt kein DEC DPTR.", "",
     "#cpu 8032\nmov a,#1\ndec a           ; A = 00h\ndec r7\nend"},
    {"da", "Dezimal anpassen",
     "Macht nach ADD oder ADDC zweier BCD-Zahlen aus dem Akku wieder eine gültige BCD-Zahl.", "C",
     "#cpu 8032\nmov a,#19h\nadd a,#28h      ; 41h\nda a            ; A = 47h (19 + 28 = 47)\nend"},
    {"div", "Dividieren",
     "Teilt A durch B: der Quotient steht danach in A, der Rest in B. Eine Division durch 0 setzt "
     "OV, A und B sind dann unbestimmt.",
     "C = 0, OV", "#cpu 8032\nmov a,#200\nmov b,#7\ndiv ab          ; A = 28, B = 4\nend"},
    {"mul", "Multiplizieren",
     "Multipliziert A mit B ohne Vorzeichen: das Low-Byte des Produkts steht in A, das High-Byte "
     "in B. OV zeigt ein Produkt über FFh.",
     "C = 0, OV", "#cpu 8032\nmov a,#80\nmov b,#5\nmul ab          ; B:A = 0190h\nend"},
    {"anl", "UND-Verknüpfung",
     "Verknüpft die Bits des Ziels mit denen des Operanden durch UND; in der Bitform das "
     "Carry-Bit mit einem Bit oder dessen Gegenteil (/bit).",
     "C nur in der Bitform",
     "#cpu 8032\nmov a,#0F3h\nanl a,#0Fh      ; A = 03h\nanl P1,#7Fh\nanl c,/P3.2\nend"},
    {"orl", "ODER-Verknüpfung",
     "Verknüpft die Bits des Ziels mit denen des Operanden durch ODER; in der Bitform das "
     "Carry-Bit mit einem Bit oder dessen Gegenteil (/bit).",
     "C nur in der Bitform",
     "#cpu 8032\nmov a,#30h\norl a,#01h      ; A = 31h\norl P1,#80h\norl c,P3.3\nend"},
    {"xrl", "Exklusiv-ODER",
     "Verknüpft die Bits des Ziels mit denen des Operanden durch exklusives ODER: gleiche Bits "
     "werden 0, verschiedene 1.",
     "",
     "#cpu 8032\nmov a,#0FFh\nxrl a,#0Fh      ; A = F0h\nxrl P1,#01h     ; P1.0 umschalten\nend"},
    {"clr", "Löschen", "Setzt den Akku, das Carry-Bit oder ein adressierbares Bit auf 0.",
     "C in CLR C", "#cpu 8032\nclr a\nclr c\nclr P1.0\nend"},
    {"cpl", "Umkehren", "Kehrt alle Bits des Akkus, das Carry-Bit oder ein adressierbares Bit um.",
     "C in CPL C", "#cpu 8032\nmov a,#0F0h\ncpl a           ; A = 0Fh\ncpl P1.7\nend"},
    {"rl", "Links rotieren", "Rotiert den Akku um ein Bit nach links; Bit 7 kommt nach Bit 0.", "",
     "#cpu 8032\nmov a,#81h\nrl a            ; A = 03h\nend"},
    {"rlc", "Links rotieren durch Carry",
     "Rotiert den Akku mit dem Carry-Bit um ein Bit nach links: Bit 7 kommt nach C, C nach Bit 0.",
     "C", "#cpu 8032\nclr c\nmov a,#81h\nrlc a           ; A = 02h, C = 1\nend"},
    {"rr", "Rechts rotieren", "Rotiert den Akku um ein Bit nach rechts; Bit 0 kommt nach Bit 7.",
     "", "#cpu 8032\nmov a,#81h\nrr a            ; A = C0h\nend"},
    {"rrc", "Rechts rotieren durch Carry",
     "Rotiert den Akku mit dem Carry-Bit um ein Bit nach rechts: Bit 0 kommt nach C, C nach Bit 7.",
     "C", "#cpu 8032\nsetb c\nmov a,#02h\nrrc a           ; A = 81h, C = 0\nend"},
    {"swap", "Halbbytes tauschen", "Vertauscht die oberen und die unteren vier Bits des Akkus.", "",
     "#cpu 8032\nmov a,#3Ch\nswap a          ; A = C3h\nend"},
    {"mov", "Daten übertragen",
     "Kopiert den zweiten Operanden in den ersten; die Quelle bleibt. Die Bitformen kopieren "
     "zwischen dem Carry-Bit und einem adressierbaren Bit, MOV DPTR,#data16 lädt den Datenzeiger.",
     "C nur in MOV C,bit",
     "#cpu 8032\nmov a,#12h\nmov r0,a\nmov 30h,r0\nmov @r0,#55h\nmov dptr,#1234h\nmov c,P1.0\n"
     "mov P1.1,c\nend"},
    {"movc", "Konstante aus dem Programmspeicher lesen",
     "Liest das Byte an der Adresse A + DPTR (oder A + Adresse des folgenden Befehls) aus dem "
     "Programmspeicher in den Akku: so werden Tabellen gelesen.",
     "",
     "#cpu 8032\nmov dptr,#Tabelle\nmov a,#2\nmovc a,@a+dptr  ; A = 30h\nend\nTabelle:\ndb 10h, "
     "20h, 30h"},
    {"movx", "Externen Datenspeicher lesen oder schreiben",
     "Überträgt ein Byte zwischen dem Akku und dem externen Datenspeicher, adressiert mit DPTR "
     "(16 Bit) oder mit R0/R1 (8 Bit, die oberen Adressbits von Port 2).",
     "", "#cpu 8032\nmov dptr,#8000h\nmovx a,@dptr\ninc a\nmovx @dptr,a\nend"},
    {"push", "Auf den Stapel legen",
     "Erhöht den Stapelzeiger SP und schreibt dann das direkt adressierte Byte an seine Stelle.",
     "", "#cpu 8032\npush acc\npush psw\npop psw\npop acc\nend"},
    {"pop", "Vom Stapel holen",
     "Liest das Byte an der Stelle des Stapelzeigers in das direkt adressierte Byte und "
     "vermindert SP danach.",
     "", "#cpu 8032\npush b\nmov b,#3\npop b\nend"},
    {"xch", "Austauschen", "Vertauscht den Inhalt des Akkus mit dem des Operanden.", "",
     "#cpu 8032\nmov a,#1\nmov r3,#2\nxch a,r3        ; A = 2, R3 = 1\nend"},
    {"xchd", "Untere Halbbytes austauschen",
     "Vertauscht die unteren vier Bits des Akkus mit denen des Bytes, auf das R0 oder R1 zeigt.",
     "",
     "#cpu 8032\nmov r0,#30h\nmov @r0,#0ABh\nmov a,#12h\nxchd a,@r0     ; A = 1Bh, (30h) = "
     "A2h\nend"},
    {"setb", "Bit setzen", "Setzt das Carry-Bit oder ein adressierbares Bit auf 1.", "C in SETB C",
     "#cpu 8032\nsetb c\nsetb P1.0\nsetb TR0\nend"},
    {"acall", "Unterprogramm im 2-KB-Block aufrufen",
     "Legt die Rücksprungadresse auf den Stapel und springt zu einem Ziel im selben 2-KB-Block "
     "des Programmspeichers; die Adressbits 10 bis 8 stehen im Opcode.",
     "", "#cpu 8032\nacall Warte\nend\nWarte:\nnop\nret"},
    {"lcall", "Unterprogramm aufrufen",
     "Legt die Rücksprungadresse auf den Stapel und springt zu einer beliebigen 16-Bit-Adresse.",
     "", "#cpu 8032\nlcall Warte\nend\nWarte:\nnop\nret"},
    {"ret", "Rücksprung",
     "RET holt die Rücksprungadresse vom Stapel und setzt das Programm dort fort. RETI tut "
     "dasselbe am Ende einer Interruptroutine und gibt dabei Interrupts gleicher Priorität wieder "
     "frei.",
     "",
     "#cpu 8032\nljmp Start\nTimer0:\ncpl P1.0\nreti\nStart:\nacall Aus\nend\nAus:\nclr P1.1\nret"},
    {"ajmp", "Sprung im 2-KB-Block",
     "Springt zu einem Ziel im selben 2-KB-Block; die Adressbits 10 bis 8 stehen im Opcode.", "",
     "#cpu 8032\nWeiter:\nnop\najmp Weiter"},
    {"ljmp", "Langer Sprung", "Springt zu einer beliebigen 16-Bit-Adresse des Programmspeichers.",
     "", "#cpu 8032\nljmp Start\norg 0100h\nStart:\nend"},
    {"sjmp", "Kurzer Sprung",
     "Springt relativ um -128 bis +127 Byte, gezählt vom Ende des Befehls.", "",
     "#cpu 8032\nOben:\ncpl P1.0\nsjmp Oben"},
    {"jmp", "Indirekter Sprung",
     "JMP @A+DPTR springt zur Summe von Akku und Datenzeiger: der Verteiler einer Sprungtabelle.",
     "",
     "#cpu 8032\nmov dptr,#Tabelle\nmov a,#2       ; zweiter Eintrag, je 2 Byte\njmp @a+dptr\n"
     "Tabelle:\najmp Eins\najmp Zwei\nEins:\nnop\nZwei:\nend"},
    {"nop", "Keine Operation",
     "Tut nichts und braucht einen Maschinenzyklus: für kurze Wartezeiten.", "",
     "#cpu 8032\nnop\nnop\nend"},
    {"jz", "Springen, wenn A null ist", "Springt relativ, wenn der Akku 00h enthält.", "",
     "#cpu 8032\nmov a,P1\njz Null\ncpl P3.0\nNull:\nend"},
    {"jnz", "Springen, wenn A nicht null ist", "Springt relativ, wenn der Akku nicht 00h enthält.",
     "", "#cpu 8032\nmov a,#5\nNochmal:\ndec a\njnz Nochmal\nend"},
    {"cjne", "Vergleichen und springen, wenn ungleich",
     "Vergleicht die ersten beiden Operanden und springt relativ, wenn sie verschieden sind. C "
     "wird gesetzt, wenn der erste kleiner ist als der zweite.",
     "C", "#cpu 8032\nmov a,P1\ncjne a,#10h,Anders\nsetb P3.0\nAnders:\nend"},
    {"djnz", "Vermindern und springen, wenn nicht null",
     "Vermindert den Operanden um 1 und springt relativ, solange er nicht 00h ist: die "
     "Zählschleife "
     "des 8051.",
     "", "#cpu 8032\nmov r7,#10\nSchleife:\ncpl P1.0\ndjnz r7,Schleife\nend"},
    {"jc", "Springen, wenn C gesetzt ist", "Springt relativ, wenn das Carry-Bit 1 ist.", "",
     "#cpu 8032\nmov a,#0F0h\nadd a,#20h\njc Uebertrag\nnop\nUebertrag:\nend"},
    {"jnc", "Springen, wenn C gelöscht ist", "Springt relativ, wenn das Carry-Bit 0 ist.", "",
     "#cpu 8032\nclr c\njnc Weiter\nnop\nWeiter:\nend"},
    {"jb", "Springen, wenn das Bit gesetzt ist", "Springt relativ, wenn das Bit 1 ist.", "",
     "#cpu 8032\nWarten:\njb P3.2,Warten\nend"},
    {"jnb", "Springen, wenn das Bit gelöscht ist", "Springt relativ, wenn das Bit 0 ist.", "",
     "#cpu 8032\nWarten:\njnb TI,Warten\nclr TI\nend"},
    {"jbc", "Springen und Bit löschen",
     "Springt relativ, wenn das Bit 1 ist, und löscht es dabei in einem Zug.", "",
     "#cpu 8032\nWarten:\njbc TF0,Weiter\nsjmp Warten\nWeiter:\nend"},
};

const std::size_t kInstructionTextCount = std::size(kInstructionTexts);

}  // namespace korvex::help
