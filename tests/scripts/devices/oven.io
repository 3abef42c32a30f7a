; A small oven, in a file of version 2. The section of its module PANEL is still to be written.

[Modules]
BaseAddress=0x4000
FileVersion=2
Module1=HEATER
Module2=PANEL
Module3=DOOR

[HEATER]
reg0=HMODE_REG
reg1=HLEVEL_REG
[HMODE_REG]
id=HMODE 0x4000 B I H HMODE_BITS
[HMODE_BITS]
bit0=ON
bit1=RANGE 3
[HLEVEL_REG]
id=HLEVEL 0x4002 W I D

[DOOR]
reg0=DLATCH_REG
[DLATCH_REG]
id=DLATCH 0x4010 B I B DLATCH_BITS
[DLATCH_BITS]
bit0=OPEN
bit7=LIGHT
