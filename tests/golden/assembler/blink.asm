; An LED on P1.0 blinks; a key on P3.2 doubles the speed.
INCLUDE 8051.mc
LED     EQU P1.0
KEY     BIT 0B2h
COUNT   DATA 30h
SLOW    EQU 200
FAST    EQU SLOW/2

        ORG 0
        LJMP START
        ORG 30h
START:  MOV SP,#5Fh             ; = 75 81 5F
        MOV P1,#0FFh            ; = 75 90 FF
        SETB KEY                ; = D2 B2
LOOP:   CPL LED                 ; = B2 90
        MOV COUNT,#SLOW         ; = 75 30 C8
        JB KEY,WAIT
        MOV COUNT,#FAST         ; = 75 30 64
WAIT:   ACALL DELAY
        DJNZ COUNT,WAIT
        SJMP LOOP
; about a millisecond at 12 MHz
DELAY:  PUSH ACC                ; = C0 E0
        MOV A,#2
D1:     MOV R7,#249             ; = 7F F9
D2:     DJNZ R7,D2              ; = DF FE
        DEC A
        JNZ D1
        POP ACC                 ; = D0 E0
        RET
        END
