; ----------------------------------------------------------------------
; Uhr: Stunden, Minuten und Sekunden mit dem Interrupt von Timer 0
;
; Schaltung:  P1   acht LEDs mit Vorwiderständen nach +5 V: die Sekunden,
;                  jede Hälfte des Bytes eine Dezimalziffer
;             Quarz 11,0592 MHz
;
; 11059200 / 12 = 921600 Takte in der Sekunde. Timer 0 zählt mit 8 Bit und
; lädt sich selbst nach, also 921600 / 256 = 3600 Interrupts in der
; Sekunde, und 3600 ist 240 mal 15. Kein Takt geht verloren.
; ----------------------------------------------------------------------

INCLUDE 8051.mc

; --- Variablen im internen RAM ----------------------------------------

SEKUNDEN DATA 30h       ; 00h bis 59h, je Hälfte eine Dezimalziffer
MINUTEN DATA 31h        ; 00h bis 59h
STUNDEN DATA 32h        ; 00h bis 23h
FEIN    DATA 33h        ; zählt von 240 herunter
GROB    DATA 34h        ; zählt von 15 herunter

NFEIN   EQU %240
NGROB   EQU %15

; --- Adressen, zu denen die Hardware springt --------------------------

ORG 0                   ; Reset
        LJMP START
ORG 0Bh                 ; Timer 0
        LJMP TICK

; --- Hauptprogramm ----------------------------------------------------

ORG 30h
START:  MOV SP,#3Fh     ; der Stack liegt hinter den Variablen
        MOV SEKUNDEN,#0
        MOV MINUTEN,#0
        MOV STUNDEN,#12h ; sie beginnt um zwölf Uhr
        MOV FEIN,#NFEIN
        MOV GROB,#NGROB
        MOV TMOD,#02h   ; Timer 0: 8 Bit, wird aus TH0 nachgeladen
        MOV TH0,#0
        MOV TL0,#0
        SETB ET0        ; den Interrupt von Timer 0 erlauben ...
        SETB EA         ; ... und Interrupts überhaupt
        SETB TR0

ZEIGEN: MOV A,SEKUNDEN  ; das Hauptprogramm zeigt nur an
        CPL A           ; bei 0 am Pin leuchtet die LED
        MOV P1,A
        SJMP ZEIGEN

; --- Interrupt von Timer 0, 3600 Mal in der Sekunde -------------------
; Er kann überall dazwischenkommen und rettet deshalb, was er ändert.

TICK:   PUSH ACC
        PUSH PSW
        DJNZ FEIN,FERTIG
        MOV FEIN,#NFEIN
        DJNZ GROB,FERTIG
        MOV GROB,#NGROB

        MOV A,SEKUNDEN  ; eine Sekunde ist um
        LCALL ZAEHLEN
        MOV SEKUNDEN,A
        CJNE A,#60h,FERTIG
        MOV SEKUNDEN,#0
        MOV A,MINUTEN
        LCALL ZAEHLEN
        MOV MINUTEN,A
        CJNE A,#60h,FERTIG
        MOV MINUTEN,#0
        MOV A,STUNDEN
        LCALL ZAEHLEN
        MOV STUNDEN,A
        CJNE A,#24h,FERTIG
        MOV STUNDEN,#0

FERTIG: POP PSW         ; in umgekehrter Reihenfolge
        POP ACC
        RETI

; --- A plus 1 in Dezimalziffern ---------------------------------------

ZAEHLEN: ADD A,#1       ; DA braucht die Flags einer Addition: kein INC
        DA A            ; aus 0Ah wird 10h
        RET

END
