; Every way to write data and to set the address.
BASE    EQU 100h
WORD    EQU 1234h
        ORG BASE
T1:     DB 1,2,3                     ; = 01 02 03
        DB "Abc"                     ; = 41 62 63
        DB "a;b",13,10               ; = 61 3B 62 0D 0A
        DB 2*8,2+3*4,7/2,2^5         ; = 10 14 04 20
        DB 10,10h,$10,%10,!10,10b    ; = 0A 10 10 0A 02 02
        DB LOW(WORD),HIGH(WORD)      ; = 34 12
        DW WORD,5,65535              ; = 12 34 00 05 FF FF
        DW "OK"                      ; = 00 4F 00 4B
        HEX: 12,AB FF                ; = 12 AB FF
        HEX:0F0h 1                   ; = F0 01
        DEZ: 255 0,128               ; = FF 00 80
        DEZ: 2.5 3.5                 ; = 02 04
        ASC: Hello World             ; = 48 65 6C 6C 6F 20 57 6F 72 6C 64
        DB: 5,6                      ; = 05 06
        DW: 7                        ; = 00 07
        DB UNKNOWN,9                 ; = 09
        ORG BASE+40h
        MOV DPTR,#T1                 ; = 90 01 00
        MOV DPTR,#T1+10              ; = 90 01 0A
        MOV DPTR,#T1-1               ; = 90 00 FF
        MOV DPTR,#WORD               ; = 90 12 34
(200h): LJMP T1                      ; = 02 01 00
(210h):NOP                           ; = 00
LATE:   LJMP LATE                    ; = 02 02 11
        LJMP (8000h)                 ; = 02 80 00
        LCALL (ABCD)                 ; = 12 AB CD
        SJMP (218h)                  ; = 80 FC
        SJMP 5                       ; = 80 05
        ACALL 3,12h                  ; = 71 12
        AJMP 8,12h                   ; = E1 12
        STOP
        RET                          ; = 22
        ENDE
Whatever stands here is of no interest.
