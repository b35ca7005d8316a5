X:      NOP
y:      NOP

x:      RET
