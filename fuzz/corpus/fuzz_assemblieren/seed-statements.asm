include 8051.mc
led equ p1.3
start: mov a , r0 ; comment
 mov a,#12h
 ljmp start
loop: djnz r3,loop
 setb led
 if a=#5 then inc r0
 if a>#3 then
  nop
 else
  ret
 end if
 for r2=#1 to #5
 inc a
 next
 p1=a
 table: db "Abc",1,2*3
 mov dptr,#table+2
 cjne a,#1,$
end
