; A lamp bench: what is left of the lamp controller on it.
[Modules]
BaseAddress=0xFF0000
Module1=PORT
Module2=LAMP
[PORT]
PDATA=FF0041 B I
PCOUNT=FF0044 W I
[LAMP]
LEVEL=FF0050
