; The list file of a program with everything that has a row of its own.
LED     BIT 90h
PORT    DATA 90h
CONST   Clock=12
        ORG 0
START:  MOV PORT , #0FFh   ; comment
ALONE:

        ljmp Main
(10h):  DB "text",0
TABLE:  DW 1,2
        HEX: 01 02
MAIN:   IF BIT LED THEN INC A
        IF A=#5 THEN
        NOP
        ELSE
        RET
        END IF
        FOR R1=#1 TO #2
        NEXT
        STOP
LAST:
MORE:   SJMP LAST
        PUSHA
        MOV DPTR,#TABLE
        MOV DPTR,#TABLE+2
        AJMP START
        ACALL 1,5
        JMP @A+DPTR
        DJNZ R0,$
        END
