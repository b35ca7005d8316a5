; ----------------------------------------------------------------------
; Einführung 1: das erste Programm, vom Register zum blinkenden Port
;
; Schaltung:  P1.0   eine LED mit Vorwiderstand nach +5 V
;             Quarz  11,0592 MHz
; Heute braucht es nichts davon: im Simulator ist alles zu sehen.
;
; So geht man hindurch:
;   F4   bereitet die Daten vor; die Fenster des Simulators öffnen sich,
;        und die Zeile, die als nächste kommt, ist markiert
;   F8   führt diese Zeile aus; was sie geändert hat, ist markiert
;   F5   läuft weiter, bis zur Zeile STOP
; Kommentar lesen, überlegen, was geschehen wird, F8 drücken, nachsehen.
; Debugger, Debuggermodus beenden: danach ist der Text wieder frei.
;
; Aufbau einer Zeile:   MARKE:  BEFEHL  OPERANDEN   ; Kommentar
; Groß- und Kleinschreibung sind gleich. Zahlen: 0Fh ist hexadezimal,
; %15 ist dezimal, 00001111b ist binär: dreimal dasselbe.
; ----------------------------------------------------------------------

INCLUDE 8051.mc         ; die Namen der Register: A, P1, SP ...

; Ein Name steht für einen Wert und muss über seiner ersten Verwendung
; festgelegt werden.

LED     BIT P1.0        ; ein Pin von Port 1
SUMME   DATA 30h        ; ein Byte des RAM, seine Adresse ist 30h
LETZTE  EQU %10         ; nur eine Zahl

ORG 0                   ; nach einem Reset beginnt der Chip bei Adresse 0

; --- Lektion 1: Register ----------------------------------------------
; R0 bis R7 stehen im RAM-Fenster an den Adressen 00 bis 07. A ist das
; Register, das rechnet; im SFR-Fenster steht es bei E0 als ACC.
; Das Zeichen # heißt "die Zahl selbst". Ohne # ist sie eine Adresse.

START:  MOV A,#5        ; A wird 5
        MOV R0,#3       ; R0 wird 3
        ADD A,R0        ; A wird 8: das Ergebnis steht immer in A
        INC A           ; A wird 9
        MOV R1,A        ; damit es nicht verloren geht: R1 wird 9

; --- Lektion 2: der Speicher ------------------------------------------

        MOV 31h,A       ; das Byte an der Adresse 31h wird 9
        MOV SUMME,#0    ; dasselbe mit Namen: das Byte an 30h wird 0

; --- Lektion 3: eine Schleife -----------------------------------------
; 10 + 9 + 8 + ... + 1. DJNZ zieht 1 von R2 ab und springt, wenn R2 nicht
; 0 ist: die Zeilen werden zehnmal ausgeführt.

        MOV R2,#LETZTE
ADDIER: MOV A,SUMME
        ADD A,R2
        MOV SUMME,A     ; 0Ah, 13h, 1Bh ... am Ende 37h, das ist 55
        DJNZ R2,ADDIER

; --- Lektion 4: eine Entscheidung -------------------------------------
; CJNE vergleicht und springt, wenn die beiden nicht gleich sind.

        MOV R3,#0       ; "falsch"
        CJNE A,#%55,WEITER
        MOV R3,#1       ; "richtig": hierher kommt man nur mit 55 in A
WEITER:

; --- Lektion 5: ein Port ----------------------------------------------
; Ein Port ist ein Byte, dessen acht Bits Pins des Chips sind. Nach einem
; Reset sind alle 1. Die LED liegt zwischen +5 V und ihrem Pin: bei 0
; leuchtet sie.

        CLR LED         ; Bit 0 von P1 (im SFR-Fenster Adresse 90) ist 0:
        SETB LED        ; die LED leuchtet; und nun ist sie wieder dunkel

; --- Lektion 6: ein Unterprogramm, und die LED blinkt -----------------
; LCALL springt nach PAUSE und merkt sich den Rückweg auf dem Stack; RET
; kommt hierher zurück. F5 läuft bis STOP: die LED hat gewechselt. Noch
; einmal F5 ... Auf einem Chip ist STOP gar nichts, die LED blinkt ewig.

BLINKEN: CPL LED        ; die LED wechselt: aus 1 wird 0, aus 0 wird 1
        LCALL PAUSE
        STOP
        SJMP BLINKEN    ; noch einmal

; --- Unterprogramm: eine halbe Sekunde nichts tun ---------------------
; DJNZ R7,$ springt auf sich selbst, bis R7 0 ist: 230 mal 2 Zyklen, das
; sind 0,5 ms. 250 mal ist das 1/8 Sekunde, und viermal dies ist 1/2.
; So oft will niemand F8 drücken: für den Debugger sind die Zahlen
; klein. Welche gelten, entscheidet sich beim Assemblieren.

#IF DEBUGGING
AUSSEN  EQU 2
MITTE   EQU 2
INNEN   EQU 2
#END IF
#IF NOT DEBUGGING
AUSSEN  EQU 4
MITTE   EQU %250
INNEN   EQU %230
#END IF

PAUSE:  MOV R5,#AUSSEN
PAUSE1: MOV R6,#MITTE
PAUSE2: MOV R7,#INNEN
        DJNZ R7,$       ; $ ist die Adresse ebendieses Befehls
        DJNZ R6,PAUSE2
        DJNZ R5,PAUSE1
        RET

; Nun ändern: die LED doppelt so schnell blinken lassen, oder acht LEDs auf
; einmal (CPL A und MOV P1,A). Fehler meldet das Assemblieren (Shift+F2).
; Weiter geht es mit siebensegment.asm (Tabellen), lauflicht.asm (Timer,
; Interrupt) und sortieren.asm (IF und FOR).

END                     ; was folgt, wird nicht gelesen
