; ============================================================================
;  Die Korvex-Sprache auf einer Seite: ein Messprogramm für den 80C32
;  Übersetzen mit: korvex-asm --all sprache.a51
; ============================================================================

#cpu 80C32                          ; Register, Bits und Vektoren des Chips
#use LCALL                          ; Aufrufe ohne Befehlswort werden LCALL

; --- Variablen: ohne Wert legt der Assembler sie von 7Fh abwärts ab ---------
#exclude byte 60h-7Fh               ; dieser Bereich bleibt dem Stapel
#byte Zaehler, Summe, Puffer=40h
#word Messwert                      ; zwei Byte
#bit  Bereit, Fehler
#const Anzahl=8, Schwelle=200, Zeichen='K'

; --- Makros: ohne und mit Parametern ----------------------------------------
#def Pause {NOP : NOP : NOP}
#def Lade(ziel,wert) {mov (ziel),#(wert)}

        LJMP Start

Timer0:                             ; Interruptvektor 000Bh: der Treiber kennt ihn
        CPL P1.0
        RETI

        ORG 0040h
Start:
        SP = #5Fh                   ; Zuweisungsform: MOV SP,#5Fh
        Lade(Summe, 0)
        CLR Fehler
        SETB Bereit

; FOR zählt mit einem Register oder einer Variablen
        FOR R7 = #Anzahl
            MOV A,R7
            ADD A,Summe
            MOV Summe,A
        NEXT

; IF ... ELSEIF ... ELSE ... END IF; THEN darf fehlen
        MOV A,Summe
        IF A=#0 THEN
            SETB Fehler
        ELSEIF A=#Schwelle THEN
            CLR Bereit
        ELSE
            IF BIT Bereit THEN
                Pause
            END IF
        END IF

; LOOP ... UNTIL, mit einem Ausgang aus der Mitte
        Zaehler = #0
        LOOP
            INC Zaehler
            MOV A,Zaehler
            IF A=#5 THENEXITLOOP       ; Vergleiche brauchen A, Rn oder @Ri links
        UNTIL A=#Anzahl

; LOOP WHILE prüft am Anfang
        MOV R0,#Puffer
        LOOP WHILE @R0=#0
            INC R0
        END LOOP

; Tabellen lesen, Messwert als Wort ablegen
        MOV DPTR,#Tabelle
        MOV A,#2
        MOVC A,@A+DPTR
        MOV LOW(Messwert),A         ; LOW und HIGH wirken auf Zahlen, Label, Wörter
        MOV A,#HIGH(Tabelle)        ; MOV adr,#Wert mit späterem Label hiesse: Länge
        MOV Messwert+1,A            ; erst im zweiten Lauf bekannt, darum über A
        Ausgabe                     ; Aufruf ohne Befehlswort
        MOV A,#Zeichen
        JNB Fehler,HIER+5
        LCALL Ausgabe
        END                         ; Programmende: Sprung auf sich selbst

Tabelle:
        DB 'Korvex', 0, 12h, 1010B
        DW 1234h, 'OK'

; --- Programmteile aus einer zweiten Datei ----------------------------------
#include sprache_teil.a51
