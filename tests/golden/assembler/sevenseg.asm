; Four digits on a multiplexed seven segment display: segments on P0, digits on P2.
INCLUDE 8051.mc
DIGITS  EQU 40h
COUNT   EQU 4
        ORG 0
START:  MOV R0,#DIGITS
        MOV R1,#COUNT
        CLR A
FILL:   MOV @R0,A
        INC R0
        INC A
        DJNZ R1,FILL
SCAN:   MOV R0,#DIGITS
        MOV R3,#1
NEXTD:  MOV A,@R0
        ACALL SEGS
        MOV P2,#0
        CPL A
        MOV P0,A
        MOV P2,R3
        MOV R6,#100
HOLD:   NOP
        NOP
        DJNZ R6,HOLD
        MOV A,R3
        RL A
        MOV R3,A
        INC R0
        CJNE R0,#DIGITS+COUNT,NEXTD
        SJMP SCAN
SEGS:   ANL A,#0Fh
        ADD A,#1
        MOVC A,@A+PC
        RET
        DB 3Fh,06h,5Bh,4Fh,66h,6Dh,7Dh,07h
        DB 7Fh,6Fh,77h,7Ch,39h,5Eh,79h,71h
        END
