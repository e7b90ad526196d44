; Teil des Projekts sprache.a51: wer diese Datei übersetzt, übersetzt das Projekt
#PART OF sprache.a51

        ORG 0100h
Ausgabe:                            ; gibt A über die serielle Schnittstelle aus
        IF NOTBIT TI THENRET
        CLR TI
        MOV SBUF,A
        RET
