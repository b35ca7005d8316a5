; Pulse width on P1.7 from timer 0, the width taken from a table of a sine.
INCLUDE 8051.mc
OUT     EQU P1.7
WIDTH   DATA 40h
PHASE   DATA 41h
LEVEL   BIT 7Fh
        ORG 0
        LJMP MAIN
        ORG 0Bh
        CPL LEVEL
        JB LEVEL,HIGHP
        CLR OUT
        MOV A,WIDTH
        MOV TH0,A
        RETI
HIGHP:  SETB OUT
        CLR A
        CLR C
        SUBB A,WIDTH
        MOV TH0,A
        RETI
MAIN:   MOV SP,#50h
        MOV TMOD,#00000010b
        MOV IE,#82h
        MOV PHASE,#0
        SETB TR0
NEXTV:  MOV A,PHASE
        ANL A,#15
        MOV DPTR,#SINE
        MOVC A,@A+DPTR
        MOV WIDTH,A
        INC PHASE
        MOV R6,#0
        MOV R7,#10
PAUSE:  DJNZ R6,PAUSE
        DJNZ R7,PAUSE
        XRL PSW,#18h
        ANL PSW,#0E7h
        SJMP NEXTV
SINE:   DB 128,176,218,245,255,245,218,176
        DB 128,79,37,10,1,10,37,79
        END
