INCLUDE 8051.mc
        ORG 0
START:  MOV A,P1
        JZ NOWHERE   ; not there
        SJMP START
