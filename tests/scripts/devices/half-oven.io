; An oven of version 2 whose second register is written wrong: what stands behind it is never read.

[Modules]
BaseAddress=0x4000
FileVersion=2
Module1=HEATER
Module2=DOOR

[HEATER]
reg0=HMODE_REG
reg1=HLEVEL_REG
reg2=HSENSE_REG
[HMODE_REG]
id=HMODE 0x4000 B I H
[HLEVEL_REG]
id=HLEVEL
[HSENSE_REG]
id=HSENSE 0x4003 B I H

[DOOR]
reg0=DLATCH_REG
[DLATCH_REG]
id=DLATCH 0x4010 B I B
