; Echo of received characters, lower case made upper case.
INCLUDE 8051.mc
CR      EQU 0Dh
LF      EQU 0Ah
        ORG 0
        AJMP INIT
        ORG 23h
        LJMP SERINT
        ORG 40h
INIT:   MOV SCON,#50h
        MOV TMOD,#20h
        MOV TH1,#0FDh
        SETB TR1
        SETB ES
        SETB EA
        MOV DPTR,#HELLO
        ACALL PUTS
IDLE:   JNB F0,IDLE
        CLR F0
        MOV A,R2
        CJNE A,#61h,NOTA
NOTA:   JC PUT
        CJNE A,#7Bh,NOTZ
NOTZ:   JNC PUT
        CLR C
        SUBB A,#20h
PUT:    ACALL PUTC
        SJMP IDLE
PUTC:   CLR ES
        MOV SBUF,A
WAIT:   JNB TI,WAIT
        CLR TI
        SETB ES
        RET
PUTS:   CLR A
        MOVC A,@A+DPTR
        JZ DONE
        ACALL PUTC
        INC DPTR
        SJMP PUTS
DONE:   RET
SERINT: JNB RI,SEREND
        CLR RI
        MOV R2,SBUF
        SETB F0
SEREND: RETI
HELLO:  DB "Echo ready",CR,LF,0
        END
