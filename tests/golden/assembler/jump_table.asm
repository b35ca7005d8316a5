; Command interpreter: a character picks a routine from a table of jumps.
INCLUDE 8051.mc
NUMBER  EQU 4
        ORG 0
        SJMP ENTRY
        ORG 10h
ENTRY:  MOV A,P1
        CLR C
        SUBB A,#41h
        JC ENTRY
        CJNE A,#NUMBER,RANGE
RANGE:  JNC ENTRY
        RL A
        MOV DPTR,#TABLE
        JMP @A+DPTR
TABLE:  AJMP CMDA
        AJMP CMDB
        AJMP CMDC
        AJMP CMDD
CMDA:   INC 30h
        AJMP ENTRY
CMDB:   DEC 30h
        AJMP ENTRY
CMDC:   ORL 30h,#80h
        XRL 30h,A
        AJMP ENTRY
CMDD:   MOV C,P3.0
        ANL C,P3.1
        ORL C,/P3.2
        ANL C,/P3.3
        MOV P3.4,C
        CPL C
        JBC F0,CMDA
        PUSH DPL
        PUSH DPH
        MOV DPTR,#WORDS
        CLR A
        MOVC A,@A+DPTR
        POP DPH
        POP DPL
        XCH A,30h
        AJMP ENTRY
        ORG 7F0h
        ACALL CMDA
        RET
        ORG 0FF0h
FAR:    LCALL ENTRY
        AJMP FAR
WORDS:  DW 1234h,0FFFFh,256
        END
