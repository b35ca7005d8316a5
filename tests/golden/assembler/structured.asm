; Blocks, one-line tests and loops of the structured layer.
INCLUDE 8051.mc
LIMIT   EQU 10
SUM     DATA 30h
FLAG    BIT 5
        ORG 0
        MOV SUM,#0                   ; = 75 30 00
        FOR R2=#1 TO #5              ; = 7A 01
        MOV A,SUM                    ; = E5 30
        ADD A,R2                     ; = 2A
        SUM = A                      ; = F5 30
        NEXT                         ; = BA 05 03 0A 80 04 0A 02 00 05
        IF A=#LIMIT THEN             ; = B4 0A 02 80 03 02 00 21
        SETB FLAG                    ; = D2 05
        ELSE                         ; = 02 00 23
        CLR FLAG                     ; = C2 05
        END IF
        IF BIT FLAG THEN INC R7      ; = 30 05 01 0F
        IF NOT BIT C THEN LJMP NEAR  ; = 40 03 02 00 2C
NEAR:   IF A>#3 THEN A=#3            ; = C0 E0 C3 94 04 D0 E0 40 02 74 03
        IF R2<>SUM THEN NOP          ; = C0 E0 EA B5 30 04 D0 E0 80 03 D0 E0 00
        IF SUM<#LIMIT*2 THEN         ; = C0 E0 E5 30 C3 94 14 D0 E0 40 03 02 00 6C
        FOR SUM=#0 TO #3             ; = 75 30 00
        P1 = SUM                     ; = 85 30 90
        NEXT
        END IF
        R0 = #5                      ; = 78 05
        R0 = A                       ; = F8
        A = R0                       ; = E8
        A = SUM                      ; = E5 30
        SUM = P1                     ; = 85 90 30
        FOR A=#0 TO #9               ; = 74 00
        P1 = A                       ; = F5 90
        NEXT                         ; = B4 09 03 04 80 04 04 02 00 77
        PUSHA                        ; = C0 E0
        POPA                         ; = D0 E0
        SJMP $                       ; = 80 FE
        END
