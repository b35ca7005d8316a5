; Clock of hours, minutes and seconds in BCD, one tick each 50 ms from timer 0.
INCLUDE 8052.mc
TICKS   DATA 30h
SEC     DATA 31h
MIN     DATA 32h
HOUR    DATA 33h
        ORG 0
        LJMP MAIN
        ORG 0Bh
        LJMP TICK
        ORG 50h
MAIN:   MOV SP,#60h
        CLR A
        MOV SEC,A
        MOV MIN,A
        MOV HOUR,A
        MOV TICKS,#20
        MOV TMOD,#1
        MOV TH0,#HIGH(15536)
        MOV TL0,#LOW(15536)
        SETB ET0
        SETB EA
        SETB TR0
SHOW:   MOV P1,SEC
        MOV P2,MIN
        MOV P0,HOUR
        SJMP SHOW
TICK:   PUSH ACC
        PUSH PSW
        MOV TH0,#HIGH(15536)
        MOV TL0,#LOW(15536)
        DJNZ TICKS,TEND
        MOV TICKS,#20
        MOV A,SEC
        ACALL STEP
        MOV SEC,A
        CJNE A,#0,TEND
        MOV A,MIN
        ACALL STEP
        MOV MIN,A
        CJNE A,#0,TEND
        MOV A,HOUR
        ADD A,#1
        DA A
        CJNE A,#24h,H24
        CLR A
H24:    MOV HOUR,A
TEND:   POP PSW
        POP ACC
        RETI
STEP:   ADD A,#1
        DA A
        CJNE A,#60h,SEND
        CLR A
SEND:   RET
        END
