#define foo
 nop
 inc a
#end def 
foo
foo
#IF DEBUGGING
stop
#END IF
CONST a=b
HEX: 1,2 3
DEZ: 1e2,5.5
ASC: Hallo
(100h): nop
DW 1234h,$
org 10
x equ a.3
end