; ----------------------------------------------------------------------
; Sieben Segmente: ein Taster zählt eine Ziffer von 0 bis F
;
; Schaltung:  P1   Anzeige mit gemeinsamer Anode, über Vorwiderstände:
;                  P1.0 bis P1.6 sind die Segmente a bis g, P1.7 der Punkt
;             P3.2 Taster nach Masse
;             Quarz 11,0592 MHz (12 MHz gehen genauso)
; ----------------------------------------------------------------------

INCLUDE 8051.mc

ANZEIGE EQU P1
TASTER  BIT P3.2        ; 0, solange der Taster gedrückt ist
ZIFFER  DATA 30h        ; die angezeigte Ziffer, 0 bis 0Fh

ORG 0
        LJMP START

ORG 30h
START:  MOV SP,#3Fh
        MOV ZIFFER,#0

NEU:    MOV A,ZIFFER
        LCALL SEGMENTE
        MOV ANZEIGE,A

        JB TASTER,$     ; warten, bis der Taster gedrückt wird
        LCALL PRELLEN
        JB TASTER,NEU   ; es war nur eine Störung

        MOV A,ZIFFER    ; eins weiter; nach 0Fh kommt wieder 0
        INC A
        ANL A,#0Fh
        MOV ZIFFER,A
        LCALL SEGMENTE
        ANL A,#01111111b ; der Punkt leuchtet, solange gedrückt ist
        MOV ANZEIGE,A

HALTEN: JNB TASTER,$    ; warten, bis er losgelassen wird
        LCALL PRELLEN
        JNB TASTER,HALTEN
        SJMP NEU

; --- Ziffer in A zu Segmenten in A ------------------------------------

SEGMENTE: MOV DPTR,#FORMEN
        MOVC A,@A+DPTR
        RET

; --- Etwa 20 ms, bis die Kontakte zur Ruhe kommen ---------------------

PRELLEN: MOV R7,#%36
PRELLEN1: MOV R6,#0     ; 256 Runden zu zwei Zyklen: 0,56 ms
        DJNZ R6,$
        DJNZ R7,PRELLEN1
        RET

; --- Formen der Ziffern; ein Segment mit 0 leuchtet -------------------
;          .gfedcba
FORMEN: DB 11000000b    ; 0
        DB 11111001b    ; 1
        DB 10100100b    ; 2
        DB 10110000b    ; 3
        DB 10011001b    ; 4
        DB 10010010b    ; 5
        DB 10000010b    ; 6
        DB 11111000b    ; 7
        DB 10000000b    ; 8
        DB 10010000b    ; 9
        DB 10001000b    ; A
        DB 10000011b    ; b
        DB 11000110b    ; C
        DB 10100001b    ; d
        DB 10000110b    ; E
        DB 10001110b    ; F

END
