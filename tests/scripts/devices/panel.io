; A panel of six lamps, one byte each.
[Modules]
FileVersion=1
Module1=LAMPS

[LAMPS]
L0=2000 B A
L1=2001 B A
L2=2002 B A
L3=2003 B A
L4=2004 B A
L5=2005 B A
