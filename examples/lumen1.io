; Lumen LM-8, a controller for lamps: the registers in a file of version 1.
; Every entry of a module is a register: address, size (B, W, L) and address flag (I, A, R).

[Modules]
BaseAddress=0xFF0000
FileVersion=1
Module1=CLOCK
Module2=INTC
Module3=PORT
Module4=TIMER
Module5=SERIAL
Module6=ADC

[CLOCK]
CLKCTL=FF0000 W I
CLKSTAT=FF0002
STOPCTL=FF0003 B
; The identity doesn't move with the base; the revision counts from the base that the file gives.
DEVICEID=FFFFFFF0 L A
REVISION=1F0 W R

[INTC]
INTEN=FF0020 L I
INTFLAG=FF0024 L I
VECTOR=FF0029 B I

[PORT]
PDIR=FF0040 B I
PDATA=FF0041 B I
PPIN=FF0042 B I

[TIMER]
TCTL=0xFF0060 b i
TCOUNT=0xFF0062 w i
TPERIOD=0xFF0064 w i
TTOTAL=0xFF0066 l i

[SERIAL]
SMODE=FF0080 B I
SRATE=FF0081 B I
SSTAT=FF0082 B I
SOUT=FF0083 B I
; Word and long registers may lie at any address; at an odd one the target is read byte by byte.
SFRAME=FF0085 W I

[ADC]
ADCTL=FF00A1 B I
BRIGHT=FF00A2 W I
TEMP=FF00A4 W I
LAMPSUM=FF00A7 L I
