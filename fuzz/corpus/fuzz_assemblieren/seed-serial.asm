; ----------------------------------------------------------------------
; Serial port: a greeting, then an echo, with 9600 baud
;
; Circuit:  P3.1 (TXD) and P3.0 (RXD) through a level converter to a
;           terminal with 9600 baud, 8 data bits, no parity, 1 stop bit
;           crystal 11.0592 MHz
; ----------------------------------------------------------------------

INCLUDE 8051.mc

; Timer 1 makes the baud rate: 11059200 / 12 / 32 = 28800, and from
; 253 = 256 - 3 it overflows at each third count: 28800 / 3 = 9600.
BAUD    EQU %253

ORG 0
        LJMP START

ORG 30h
START:  MOV SP,#2Fh
        MOV TMOD,#20h   ; timer 1: 8 bits with reload from TH1
        MOV TH1,#BAUD
        MOV TL1,#BAUD
        SETB TR1
        MOV SCON,#50h   ; 8 data bits, baud rate of timer 1, receiver on

        MOV DPTR,#HELLO
        LCALL TEXT

ECHO:   LCALL GET       ; what comes in goes out again
        LCALL PUT
        CJNE A,#0Dh,ECHO ; behind a carriage return ...
        MOV A,#0Ah      ; ... a line feed is added
        LCALL PUT
        SJMP ECHO

; --- Send the text at DPTR, up to a byte 0 ----------------------------

TEXT:   CLR A
        MOVC A,@A+DPTR
        JZ TEXT1
        LCALL PUT
        INC DPTR
        SJMP TEXT
TEXT1:  RET

; --- Send the byte in A -----------------------------------------------

PUT:    MOV SBUF,A      ; writing starts the transmission
        JNB TI,$        ; TI becomes 1 when the byte is out
        CLR TI
        RET

; --- Wait for a byte, result in A -------------------------------------

GET:    JNB RI,$        ; RI becomes 1 when a byte is in
        MOV A,SBUF
        CLR RI
        RET

HELLO:  DB "Hello, this is an 8051. Please type:",0Dh,0Ah,0

END
