; ----------------------------------------------------------------------
; Serielle Schnittstelle: ein Gruß, danach ein Echo, mit 9600 Baud
;
; Schaltung:  P3.1 (TXD) und P3.0 (RXD) über einen Pegelwandler an ein
;             Terminal mit 9600 Baud, 8 Datenbits, ohne Parität, 1 Stoppbit
;             Quarz 11,0592 MHz
; ----------------------------------------------------------------------

INCLUDE 8051.mc

; Timer 1 erzeugt die Baudrate: 11059200 / 12 / 32 = 28800, und von
; 253 = 256 - 3 an läuft er bei jedem dritten Takt über: 28800 / 3 = 9600.
BAUD    EQU %253

ORG 0
        LJMP START

ORG 30h
START:  MOV SP,#2Fh
        MOV TMOD,#20h   ; Timer 1: 8 Bit, wird aus TH1 nachgeladen
        MOV TH1,#BAUD
        MOV TL1,#BAUD
        SETB TR1
        MOV SCON,#50h   ; 8 Datenbits, Takt von Timer 1, Empfang ein

        MOV DPTR,#GRUSS
        LCALL TEXT

ECHO:   LCALL HOLEN     ; was ankommt, geht wieder hinaus
        LCALL SENDEN
        CJNE A,#0Dh,ECHO ; nach einem Wagenrücklauf ...
        MOV A,#0Ah      ; ... kommt ein Zeilenvorschub dazu
        LCALL SENDEN
        SJMP ECHO

; --- Text ab DPTR senden, bis zu einem Byte 0 -------------------------

TEXT:   CLR A
        MOVC A,@A+DPTR
        JZ TEXT1
        LCALL SENDEN
        INC DPTR
        SJMP TEXT
TEXT1:  RET

; --- Byte in A senden -------------------------------------------------

SENDEN: MOV SBUF,A      ; das Schreiben startet die Übertragung
        JNB TI,$        ; TI wird 1, wenn das Byte draußen ist
        CLR TI
        RET

; --- Auf ein Byte warten, Ergebnis in A -------------------------------

HOLEN:  JNB RI,$        ; RI wird 1, wenn ein Byte da ist
        MOV A,SBUF
        CLR RI
        RET

GRUSS:  DB "Hallo, hier ist ein 8051. Bitte tippen:",0Dh,0Ah,0

END
