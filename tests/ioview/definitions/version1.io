; Addresses, sizes and flags of version 1. The base of the file is FF0000, that of the target 1FF0000.
[Modules]
BaseAddress=0xFF0000
Module1=PORT
Module2=NOSECTION
[port]
RELOCATABLE=FF0000 B I
ABSOLUTE, TABS=FF0012	W	A
FROM THE BASE=100 L R
NO BLANKS=FF0010LA
WRONG SIZE=FF0010 X A
NO ADDRESS=size W A
AN ADDRESS=FF0003
