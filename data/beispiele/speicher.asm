; ----------------------------------------------------------------------
; Externes RAM: prüfen, mit einer Tabelle füllen und aufsummieren
;
; Schaltung:  8051 mit Adresslatch und einem RAM von 32 KB ab 0000h.
;             Im Simulator sind es die 64 KB des EXRAM-Fensters.
;
; Im Debugger:  F4 bereitet die Daten vor, F5 läuft bis zur Zeile STOP.
; Dann ist FEHLER 0, das EXRAM-Fenster zeigt die Quadrate 0, 1, 4, 9 ...
; 225 ab 0200h, und SUMMEH und SUMMEL halten ihre Summe 04D8h, also 1240.
;
; Lektionen:  1  MOVX: der einzige Weg zum externen RAM führt durch A
;             2  eine Prüfung, die alles lässt, wie es war
;             3  zwei Adressen, aber nur ein DPTR: eine wartet im RAM
;             4  16-Bit-Summe: ADD für das Lowbyte, ADDC für das Highbyte
; ----------------------------------------------------------------------

INCLUDE 8051.mc

BLOCK   EQU 200h        ; erste Adresse des Blocks im externen RAM
ANZAHL  EQU %16         ; seine Länge

FEHLER  DATA 30h        ; Zellen, die nicht behielten, was sie bekamen
SUMMEH  DATA 31h        ; die Summe, Highbyte ...
SUMMEL  DATA 32h        ; ... und Lowbyte
ANDEREH DATA 33h        ; die wartende Adresse, Highbyte ...
ANDEREL DATA 34h        ; ... und Lowbyte

ORG 0
        LJMP START

ORG 30h
START:  MOV SP,#3Fh
        LCALL PRUEFEN
        LCALL FUELLEN
        LCALL SUMMIEREN
        STOP            ; hier hält der Debugger
        SJMP $          ; ein Chip hat nichts mehr zu tun

; --- Prüfen: behält jede Zelle, was geschrieben wird? -----------------
; 55h ist 01010101b, AAh ist 10101010b: jedes Bit war einmal 1 und einmal
; 0. Verglichen wird mit XRL: gleiche Bytes ergeben 0.

PRUEFEN: MOV FEHLER,#0
        MOV DPTR,#BLOCK ; DPTR ist die Adresse, 16 Bits
        MOV R2,#ANZAHL
PRUEF1: MOVX A,@DPTR
        MOV R3,A        ; was dort stand
        MOV A,#55h
        LCALL ZELLE
        MOV A,#0AAh
        LCALL ZELLE
        MOV A,R3
        MOVX @DPTR,A    ; wie es war
        INC DPTR
        DJNZ R2,PRUEF1
        RET

; Schreibt A in die Zelle bei DPTR und zählt einen Fehler, wenn sie es
; nicht behält.

ZELLE:  MOV R4,A
        MOVX @DPTR,A
        CLR A           ; vergessen: es muss aus der Zelle kommen
        MOVX A,@DPTR
        XRL A,R4
        JZ ZELLE1
        INC FEHLER
ZELLE1: RET

; --- Füllen: aus der Tabelle im Programmspeicher in den Block ---------
; MOVC liest bei QUADRATE, MOVX schreibt bei BLOCK, und beide brauchen
; DPTR. TAUSCHEN vertauscht die Adresse in DPTR mit der wartenden.

FUELLEN: MOV ANDEREH,#HIGH(BLOCK)
        MOV ANDEREL,#LOW(BLOCK)
        MOV DPTR,#QUADRATE
        MOV R2,#ANZAHL
FUELL1: CLR A
        MOVC A,@A+DPTR
        INC DPTR        ; weiter in der Tabelle
        LCALL TAUSCHEN
        MOVX @DPTR,A
        INC DPTR        ; weiter im Block
        LCALL TAUSCHEN
        DJNZ R2,FUELL1
        RET

; XCH vertauscht A mit einem Byte: drei davon vertauschen zwei Bytes, und
; A ist danach dasselbe wie davor.

TAUSCHEN: XCH A,DPL
        XCH A,ANDEREL
        XCH A,DPL
        XCH A,DPH
        XCH A,ANDEREH
        XCH A,DPH
        RET

; --- Summe des Blocks, 16 Bits ----------------------------------------

SUMMIEREN: MOV SUMMEH,#0
        MOV SUMMEL,#0
        MOV DPTR,#BLOCK
        MOV R2,#ANZAHL
SUMME1: MOVX A,@DPTR
        INC DPTR
        ADD A,SUMMEL
        MOV SUMMEL,A
        CLR A           ; CLR und MOV lassen das Carry, wie es ist
        ADDC A,SUMMEH   ; 0 + Highbyte + Carry
        MOV SUMMEH,A
        DJNZ R2,SUMME1
        RET

; --- Die Tabelle ------------------------------------------------------

QUADRATE: DB 0,1,4,9,%16,%25,%36,%49
        DB %64,%81,%100,%121,%144,%169,%196,%225

END
