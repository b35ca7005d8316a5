; 16 bit arithmetic: sum, difference, product, quotient of R7:R6 and R5:R4.
        ORG 200h
ADD16:  MOV A,R6
        ADD A,R4
        MOV R2,A
        MOV A,R7
        ADDC A,R5
        MOV R3,A
        RET
SUB16:  CLR C
        MOV A,R6
        SUBB A,R4
        MOV R2,A
        MOV A,R7
        SUBB A,R5
        MOV R3,A
        RET
; R3:R2:R1:R0 = R7:R6 * R5:R4
MUL16:  MOV A,R6
        MOV 0F0h,R4
        MUL AB
        MOV R0,A
        MOV R1,0F0h
        MOV A,R7
        MOV 0F0h,R4
        MUL AB
        ADD A,R1
        MOV R1,A
        MOV A,0F0h
        ADDC A,#0
        MOV R2,A
        MOV A,R6
        MOV 0F0h,R5
        MUL AB
        ADD A,R1
        MOV R1,A
        MOV A,0F0h
        ADDC A,R2
        MOV R2,A
        CLR A
        RLC A
        XCH A,R7
        MOV 0F0h,R5
        MUL AB
        ADD A,R2
        MOV R2,A
        MOV A,0F0h
        ADDC A,R7
        MOV R3,A
        RET
; A = A / B, remainder in 30h
DIV8:   DIV AB
        MOV 30h,0F0h
        RET
; two packed digits in A become two bytes at @R0
UNPACK: MOV 31h,A
        SWAP A
        ANL A,#0Fh
        MOV @R0,A
        INC R0
        MOV A,31h
        ANL A,#0Fh
        MOV @R0,A
        XCHD A,@R1
        DA A
        RET
