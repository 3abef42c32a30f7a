; A kiln's controller: registers of every width and access, and fields of every length that a limit is shown for.

[Modules]
BaseAddress=0x4000
FileVersion=3
Module1=HEATER
Module2=CHAMBER
Module3=VENT
Module4=SPARE

[HEATER]
addr=4000
reg0=HMODE_REG
reg1=HPOWER_REG
reg2=HTOTAL_REG
reg3=HLATCH_REG
reg4=HSEAL_REG
reg5=HSENSE_REG

[HMODE_REG]
name=HMODE
reladdr=0
bitfield0=HMODE_ON
bitfield1=HMODE_RANGE
[HMODE_ON]
name=ON
bit=0
[HMODE_RANGE]
name=RANGE
bit=1
len=3

[HPOWER_REG]
name=HPOWER
reladdr=2
size=16
radix=D
bitfield0=HPOWER_STEP
[HPOWER_STEP]
name=STEP
bit=4
len=12

[HTOTAL_REG]
name=HTOTAL
reladdr=4
size=32
bitfield0=HTOTAL_COUNT
bitfield1=HTOTAL_WIDE
bitfield2=HTOTAL_PART
[HTOTAL_COUNT]
name=COUNT
bit=0
len=31
[HTOTAL_WIDE]
name=WIDE
bit=0
len=20
[HTOTAL_PART]
name=PART
bit=8
len=17

[HLATCH_REG]
name=HLATCH
reladdr=8
radix=B
read=0

[HSEAL_REG]
name=HSEAL
reladdr=9
read=0
write=0

[HSENSE_REG]
name=HSENSE
reladdr=A
radix=D
write=0
bitfield0=HSENSE_LOW
[HSENSE_LOW]
name=LOW
bit=0
len=4

; The chamber can only be set while the heater is on, bit 0 of HMODE.
[CHAMBER]
addr=4010
dep_reg=CHAMBER_HMODE
dep_bit=0
dep_val=1
reg0=CTEMP_REG
reg1=CFAN_REG
[CHAMBER_HMODE]
name=HMODE
reladdr=FFFFFFF0
[CTEMP_REG]
name=CTEMP
reladdr=0
size=16
[CFAN_REG]
name=CFAN
reladdr=2
bitfield0=CFAN_SPEED
[CFAN_SPEED]
name=SPEED
bit=0
len=4

; The vent can only be set while bit 7 of HMODE reads 0.
[VENT]
addr=4020
dep_reg=VENT_HMODE
dep_bit=7
reg0=VPOS_REG
[VENT_HMODE]
name=HMODE
reladdr=FFFFFFE0
[VPOS_REG]
name=VPOS
reladdr=0

; No register yet.
[SPARE]
addr=4030
