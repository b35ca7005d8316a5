; Names, their bits, and the kinds that instructions take.
P1      DATA 90h
ACC     DATA 0E0h
FLAGS   DATA 20h
HIGHF   DATA 2Fh
PLAIN   EQU 33
LED     EQU P1.3
FIRST   EQU FLAGS.0
KEY     BIT 95h
EQUIP   EQU 7
ABITX   BIT 9
CONST   Oszillator=11.0592 MHz
        CPL LED                      ; = B2 93
        SETB FLAGS.7                 ; = D2 07
        CLR HIGHF.7                  ; = C2 7F
        SETB FIRST                   ; = D2 00
        MOV C,ACC.7                  ; = A2 E7
        MOV A.0,C                    ; = 92 E0
        ANL C,/KEY                   ; = B0 95
        ORL C,ABITX                  ; = 72 09
        MOV PORT1,#PLAIN             ; = 75 90 21
        MOV PORT1,P1                 ; = 85 90 90
        MOV A,FLAGS                  ; = E5 20
        MOV A,#EQUIP+1               ; = 74 08
        SETB PLAIN                   ; = D2 21
        INC PLAIN                    ; = 05 21
        JB LED,THERE                 ; = 20 93 03
        JBC P1.0,THERE               ; = 10 90 00
there:  CJNE A,P1,There              ; = B5 90 FD
        CJNE R3,#PLAIN,THERE         ; = BB 21 FA
        DJNZ FLAGS,THERE             ; = D5 20 F7
        DJNZ A,THERE                 ; = D5 E0 F4
        XRL P1,#255                  ; = 63 90 FF
        PUSH ACC                     ; = C0 E0
        XCH A,FLAGS                  ; = C5 20
PLAIN   EQU 99
        MOV A,#PLAIN                 ; = 74 21
