; I2C master in software: writes a byte to an EEPROM and reads it back.
INCLUDE 8051.mc
SDA     BIT 0B4h
SCL     BIT 0B5h
DEVICE  EQU 0A0h
ADDRESS EQU 12h
ERROR   BIT 0
        ORG 0
        MOV SP,#2Fh
        CLR ERROR
        LCALL START
        MOV A,#DEVICE
        LCALL SEND
        JB ERROR,FAIL
        MOV A,#ADDRESS
        LCALL SEND
        MOV A,#5Ah
        LCALL SEND
        LCALL STOPC
        LCALL START
        MOV A,#DEVICE+1
        LCALL SEND
        LCALL RECV
        XRL A,#5Ah
        JNZ FAIL
        SETB P1.0
        SJMP $
FAIL:   CLR P1.0
        SJMP $
START:  SETB SDA
        SETB SCL
        NOP
        CLR SDA
        NOP
        CLR SCL
        RET
STOPC:  CLR SDA
        SETB SCL
        NOP
        SETB SDA
        RET
SEND:   MOV R2,#8
SEND1:  RLC A
        MOV SDA,C
        SETB SCL
        NOP
        CLR SCL
        DJNZ R2,SEND1
        SETB SDA
        SETB SCL
        MOV C,SDA
        MOV ERROR,C
        CLR SCL
        RET
RECV:   MOV R2,#8
        SETB SDA
RECV1:  SETB SCL
        MOV C,SDA
        RLC A
        CLR SCL
        DJNZ R2,RECV1
        RET
        END
