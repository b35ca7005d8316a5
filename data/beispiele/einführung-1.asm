; ----------------------------------------------------------------------
; Einführung 1: ein Lauflicht mit Taster, für jeden 8051
;
; Schaltung:  P1.0 bis P1.7   acht LEDs mit Vorwiderständen nach +5 V
;             P3.2            Taster nach Masse
;             Quarz           11,0592 MHz
;
; Das Licht läuft hin und her. Solange der Taster gedrückt ist, läuft es
; rückwärts.
;
; Aufbau einer Zeile:   MARKE:  BEFEHL  OPERANDEN   ; Kommentar
; Groß- und Kleinschreibung sind gleich. Zahlen: 0Fh ist hexadezimal,
; %15 ist dezimal, 00001111b ist binär.
; ----------------------------------------------------------------------

INCLUDE 8051.mc         ; die Namen der Register: P1, TMOD, TR0 ...

; --- Namen ------------------------------------------------------------
; Ein Name steht für einen Wert und muss über seiner ersten Verwendung
; festgelegt werden.

LEDS    EQU P1          ; Port der LEDs; bei 0 am Pin leuchtet die LED
TASTER  BIT P3.2        ; ein Bit von Port 3; 0, solange gedrückt
SCHRITTE EQU %14        ; Länge der Tabelle MUSTER
TAKTE   EQU 2           ; Pause zwischen zwei Schritten, zu je 50 ms

; Der Timer zählt 11059200 / 12 = 921600 Mal in der Sekunde und läuft
; nach 65535 über. Von 65536 - 46080 = 19456 an braucht er dafür 46080
; Schritte: 50 ms.
LADEWERT EQU %19456

; --- Programm ---------------------------------------------------------

ORG 0                   ; nach einem Reset beginnt der Chip bei 0
        LJMP START      ; an den Interrupt-Adressen vorbei

ORG 30h
START:  MOV SP,#2Fh     ; der Stack wächst von 30h an nach oben
        MOV TMOD,#01h   ; Timer 0 zählt mit 16 Bit
        MOV R6,#0       ; R6 ist die Nummer des Schritts

RUNDE:  LCALL ZEIGEN    ; LCALL ruft ein Unterprogramm, RET kehrt zurück
        LCALL PAUSE
        JNB TASTER,WEG  ; springt, wenn das Bit 0 ist: Taster gedrückt
        INC R6          ; einen Schritt weiter
        CJNE R6,#SCHRITTE,RUNDE ; noch nicht am Ende der Tabelle
        MOV R6,#0       ; sonst wieder von vorn
        SJMP RUNDE

WEG:    DEC R6          ; einen Schritt zurück; aus 0 wird 0FFh
        CJNE R6,#0FFh,RUNDE
        MOV R6,#SCHRITTE-1 ; es war der erste: weiter mit dem letzten
        SJMP RUNDE

; --- Unterprogramm: Schritt R6 anzeigen -------------------------------

ZEIGEN: MOV DPTR,#MUSTER ; DPTR zeigt auf das erste Byte der Tabelle
        MOV A,R6
        MOVC A,@A+DPTR  ; das Byte mit der Nummer A lesen
        MOV LEDS,A
        RET

; --- Unterprogramm: TAKTE mal 50 ms warten ----------------------------

PAUSE:  MOV R7,#TAKTE
PAUSE1: CLR TR0         ; Timer anhalten, während er geladen wird
        MOV TH0,#HIGH(LADEWERT)
        MOV TL0,#LOW(LADEWERT)
        CLR TF0         ; TF0 wird 1, wenn der Timer überläuft
        SETB TR0        ; los
        JNB TF0,$       ; $ ist die Adresse dieses Befehls selbst
        DJNZ R7,PAUSE1  ; R7 minus 1, und noch einmal, solange nicht 0
        RET

; --- Tabelle ----------------------------------------------------------
; DB legt Bytes in den Programmspeicher. Jede 0 ist eine leuchtende LED.

MUSTER:
        DB 11111110b,11111101b,11111011b,11110111b
        DB 11101111b,11011111b,10111111b,01111111b
        DB 10111111b,11011111b,11101111b,11110111b
        DB 11111011b,11111101b

END                     ; was folgt, wird nicht mehr beachtet
