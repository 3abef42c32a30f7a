; Names that are longer than their column, at both levels, and columns of their own kind.
[Modules]
FileVersion=3
Module1=A MODULE WITH A NAME OF FIFTY CHARACTERS IN ALL ENDS
Module2=DOOR
Module3=EMPTY
[A MODULE WITH A NAME OF FIFTY CHARACTERS IN ALL ENDS]
addr=100
reg0=LONG
[LONG]
name=A REGISTER'S NAME OF FORTY-ONE CHARACTERS
reladdr=0
radix=B
size=32
[DOOR]
addr=200
reg0=LOCK_REG
reg1=BELL_REG
[LOCK_REG]
name=LOCK
reladdr=0
write=0
bitfield0=BOLT_BITS
[BOLT_BITS]
name=BOLT
bit=4
len=4
[BELL_REG]
name=BELL
reladdr=1
