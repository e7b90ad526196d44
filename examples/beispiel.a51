; Beispiel: Lauflicht an Port 1 mit Verzögerungsschleife
; Übersetzen mit: korvex-asm --all beispiel.a51

        ORG 0000h
        LJMP Start

        ORG 0030h
Start:
        MOV 81h,#2Fh            ; Stapelzeiger (SP) über die Registerbänke legen
        MOV A,#11111110B        ; ein Bit auf Low: eine Leuchtdiode an
Schleife:
        MOV 90h,A               ; Port 1 (SFR-Adresse 90h)
        ACALL Warten
        RL A                    ; das Licht wandert
        SJMP Schleife

; Wartet etwa 130 ms bei 12 MHz
Warten:
        MOV R6,#0
Aussen:
        MOV R7,#0
        DJNZ R7,HIER            ; HIER ist die Adresse des Befehls selbst
        DJNZ R6,Aussen
        RET
