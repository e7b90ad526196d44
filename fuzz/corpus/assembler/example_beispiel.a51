; Beispiel: Lauflicht an Port 1, weitergeschaltet vom Timer-0-Interrupt
; Übersetzen mit: korvex-asm --all beispiel.a51

#cpu 80C32                      ; Treiber: Register, Bits und Vektoren des 80C32
#byte Muster, Takte             ; Variablen legt der Assembler selbst ab
#bit Weiter
#const Teiler=20                ; 20 x 50 ms = 1 s bei 12 MHz

        LJMP Start

Timer0:                         ; Interruptvektor des Timers 0 (000Bh)
        LJMP Tick

        ORG 0030h
Start:
        MOV SP,#2Fh             ; Stapel über die Registerbänke legen
        MOV TMOD,#01h           ; Timer 0: 16-Bit-Zähler
        MOV Takte,#Teiler
        MOV Muster,#11111110B   ; ein Bit auf Low: eine Leuchtdiode an
        CLR Weiter
        SETB ET0
        SETB EA
        SETB TR0
Schleife:
        JNB Weiter,Schleife     ; warten, bis eine Sekunde um ist
        CLR Weiter
        MOV A,Muster
        RL A                    ; das Licht wandert
        MOV Muster,A
        MOV P1,A
        SJMP Schleife

Tick:                           ; alle 50 ms
        MOV TH0,#HIGH(15536)     ; 65536 - 50000: Klammern nehmen keine Rechnung auf
        MOV TL0,#LOW(15536)
        DJNZ Takte,Fertig
        MOV Takte,#Teiler
        SETB Weiter
Fertig:
        RETI
