; ----------------------------------------------------------------------
; Lauflicht mit einem Timer-Interrupt
;
; Schaltung:  P1.0 bis P1.7   acht LEDs, über Vorwiderstände an +5 V
;             Quarz           12 MHz
;
; Die Einführung wartet in einer Schleife, bis ihre Pause vorbei ist, und
; kann solange nichts anderes tun. Hier ruft der Timer: bei jedem
; Überlauf verlässt der Chip das Hauptprogramm für einen Augenblick,
; bewegt das Licht und macht weiter, als wäre nichts gewesen.
;
; Lektionen:  1  was ein Interrupt braucht: eine Adresse, eine Routine,
;                die mit RETI endet, und die Bits, die ihn erlauben
;             2  warum die Routine A und die Flags so hinterlassen muss,
;                wie sie waren
;             3  wie Routine und Hauptprogramm miteinander reden: über
;                ein Byte im RAM
;             4  wie man ein Programm ohne Chip ausprobiert
;
; Im Debugger:  F4 bereitet die Daten vor, F5 startet; das Programm hält
; in der Zeile STOP, wenn das Licht zweimal hin und her gelaufen ist. Die
; Fenster zeigen dann SCHRITT = 1Ch und P1 = FEh. F8 geht zeilenweise
; weiter. Auf dem Chip ist STOP gar nichts, und das Licht läuft ewig.
; ----------------------------------------------------------------------

INCLUDE 8051.mc

LEDS    EQU P1          ; ein Pin mit 0 lässt seine LED leuchten
MERKER  DATA 20h        ; von 20h bis 2Fh ist jedes Bit einzeln ansprechbar
ZURUECK BIT MERKER.0    ; 1, solange das Licht zurückläuft
SCHRITT DATA 30h        ; Schritte seit dem Start: schreibt der Interrupt
ARBEIT  DATA 31h        ; zwei Bytes: Runden des Hauptprogramms
WEG     EQU %14         ; Schritte für einmal hin und her

; Der Timer zählt aufwärts und läuft hinter 65535 über. Auf dem Chip
; zählt er Maschinenzyklen, 1000000 in der Sekunde: 50000 davon sind
; 50 ms. Im Debugger zählt er die Bytes der Befehle, und niemand will
; 50000 davon ansehen: 300 genügen. Welche der beiden Zeilen gilt,
; entscheidet sich beim Assemblieren.

#IF DEBUGGING
VORGABE EQU %65236      ; 65536 - 300
#END IF
#IF NOT DEBUGGING
VORGABE EQU %15536      ; 65536 - 50000
#END IF

; --- Adressen, die der Chip kennt -------------------------------------

ORG 0                   ; nach einem Reset
        LJMP START

ORG 0Bh                 ; wenn Timer 0 überläuft: hier sind 8 Bytes Platz,
        LJMP TAKT       ; die Routine selbst steht also woanders

; --- Hauptprogramm ----------------------------------------------------

ORG 30h
START:  MOV SP,#3Fh     ; Aufrufe und Interrupts brauchen den Stack
        MOV SCHRITT,#0
        MOV ARBEIT,#0
        MOV ARBEIT+1,#0
        CLR ZURUECK
        MOV LEDS,#0FEh  ; das Licht beginnt bei P1.0

        MOV TMOD,#01h   ; Timer 0 zählt mit 16 Bit
        MOV TH0,#HIGH(VORGABE)
        MOV TL0,#LOW(VORGABE)
        SETB ET0        ; Timer 0 darf unterbrechen
        SETB EA         ; Interrupts sind überhaupt erlaubt
        SETB TR0        ; der Timer läuft los

; Ab hier bewegt sich das Licht von selbst. In dieser Schleife steht, wofür
; das Programm Zeit hat: es zählt nur seine eigenen Runden.

HAUPT:  INC ARBEIT      ; unteres Byte
        MOV A,ARBEIT
        JNZ HAUPT1
        INC ARBEIT+1    ; es ging von 0FFh auf 0: das obere Byte folgt
HAUPT1: MOV A,SCHRITT   ; was der Interrupt hier hinterlassen hat
        CJNE A,#2*WEG,HAUPT
        STOP            ; hier hält der Debugger: zweimal hin und her
        MOV SCHRITT,#0
        SJMP HAUPT

; --- Interrupt: ein Schritt des Lichts --------------------------------
; Er kann zwischen zwei beliebigen Befehlen des Hauptprogramms kommen,
; auch zwischen MOV A,SCHRITT und CJNE. Beide benutzen A, und CJNE legt
; sein Ergebnis in den Flags ab: ohne die vier PUSH und POP ginge das
; Hauptprogramm ab und zu fehl, und niemand fände heraus, warum.

TAKT:   PUSH ACC
        PUSH PSW
        CLR TR0         ; den Timer neu laden
        MOV TH0,#HIGH(VORGABE)
        MOV TL0,#LOW(VORGABE)
        SETB TR0

        MOV A,LEDS
        JB ZURUECK,TAKT1
        RL A            ; die eine 0 wandert nach oben
        SJMP TAKT2
TAKT1:  RR A            ; oder nach unten
TAKT2:  MOV LEDS,A

        JB ACC.7,TAKT3  ; bei Bit 7 ist das Licht nicht
        SETB ZURUECK    ; doch: umkehren
TAKT3:  JB ACC.0,TAKT4
        CLR ZURUECK
TAKT4:  INC SCHRITT     ; die Nachricht an das Hauptprogramm

        POP PSW         ; was zuletzt kam, geht zuerst
        POP ACC
        RETI            ; wie RET, und der nächste Interrupt darf kommen

END
