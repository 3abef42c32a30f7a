; Lumen LM-8, a controller for lamps: the registers in a file of version 3.
; A module has an address, and its registers lie relative to that. Register and bit-field sections have a key
; for each property; what isn't written is 8 bits, hexadecimal, readable and writable, and 1 bit long.

[Modules]
BaseAddress=0xFF0000
FileVersion=3
Module1=CLOCK
Module2=INTC
Module3=PORT
Module4=TIMER
Module5=SERIAL
Module6=ADC

[CLOCK]
addr=FF0000
reg0=CLKCTL_REG
reg1=CLKSTAT_REG
reg2=STOPCTL_REG
reg3=REVISION_REG

[CLKCTL_REG]
name=CLKCTL
reladdr=0
size=16
bitfield0=CLKCTL_PLLON
bitfield1=CLKCTL_SOURCE
bitfield2=CLKCTL_DIVIDER
bitfield3=CLKCTL_KEY
[CLKCTL_PLLON]
name=PLLON
bit=0
[CLKCTL_SOURCE]
name=SOURCE
bit=1
len=2
[CLKCTL_DIVIDER]
name=DIVIDER
bit=4
len=4
[CLKCTL_KEY]
name=KEY
bit=12
len=4

[CLKSTAT_REG]
name=CLKSTAT
reladdr=2
radix=B
write=0
bitfield0=CLKSTAT_LOCKED
bitfield1=CLKSTAT_XTALFAIL
[CLKSTAT_LOCKED]
name=LOCKED
bit=0
[CLKSTAT_XTALFAIL]
name=XTALFAIL
bit=7

[STOPCTL_REG]
name=STOPCTL
reladdr=3
radix=B
bitfield0=STOPCTL_TIM
bitfield1=STOPCTL_SER
bitfield2=STOPCTL_ADC
[STOPCTL_TIM]
name=STOPTIM
bit=3
[STOPCTL_SER]
name=STOPSER
bit=4
[STOPCTL_ADC]
name=STOPADC
bit=5

[REVISION_REG]
name=REVISION
reladdr=1F0
size=16
radix=D
write=0

[INTC]
addr=FF0020
reg0=INTEN_REG
reg1=INTFLAG_REG
reg2=VECTOR_REG

[INTEN_REG]
name=INTEN
reladdr=0
size=32
radix=B

[INTFLAG_REG]
name=INTFLAG
reladdr=4
size=32
bitfield0=INTFLAG_TIM
bitfield1=INTFLAG_SER
bitfield2=INTFLAG_ADC
bitfield3=INTFLAG_PORT
bitfield4=INTFLAG_WAKEUP
[INTFLAG_TIM]
name=TIMIRQ
bit=0
[INTFLAG_SER]
name=SERIRQ
bit=1
[INTFLAG_ADC]
name=ADCIRQ
bit=2
[INTFLAG_PORT]
name=PORTIRQ
bit=16
len=8
[INTFLAG_WAKEUP]
name=WAKEUP
bit=31

[VECTOR_REG]
name=VECTOR
reladdr=9
radix=D
write=0

[PORT]
addr=FF0040
reg0=PDIR_REG
reg1=PDATA_REG
reg2=PPIN_REG

[PDIR_REG]
name=PDIR
reladdr=0
radix=B

[PDATA_REG]
name=PDATA
reladdr=1
radix=H
bitfield0=PDATA_LAMPS
bitfield1=PDATA_FAN
bitfield2=PDATA_BUZZER
[PDATA_LAMPS]
name=LAMPS
bit=0
len=6
[PDATA_FAN]
name=FAN
bit=6
[PDATA_BUZZER]
name=BUZZER
bit=7

[PPIN_REG]
name=PPIN
reladdr=2
radix=B
write=0
bitfield0=PPIN_KEY0
bitfield1=PPIN_KEY1
bitfield2=PPIN_DOOR
[PPIN_KEY0]
name=KEY0
bit=0
[PPIN_KEY1]
name=KEY1
bit=1
[PPIN_DOOR]
name="DOOR OPEN"
bit=7

[TIMER]
addr=FF0060
; The timer's registers can be edited while its stop bit, bit 3 of STOPCTL, reads 0.
dep_reg=TIMER_STOP
dep_bit=3
dep_val=0
reg0=TCTL_REG
reg1=TCOUNT_REG
reg2=TPERIOD_REG
reg3=TTOTAL_REG

; STOPCTL once more, relative to this module: FF0060 + FFFFFFA3 is FF0003.
[TIMER_STOP]
name=STOPCTL
reladdr=FFFFFFA3

[TCTL_REG]
name=TCTL
reladdr=0
bitfield0=TCTL_START
bitfield1=TCTL_PRESCALE
bitfield2=TCTL_MODE
[TCTL_START]
name=START
bit=0
[TCTL_PRESCALE]
name=PRESCALE
bit=1
len=3
[TCTL_MODE]
name=MODE
bit=4
len=2

[TCOUNT_REG]
name=TCOUNT
reladdr=2
size=16
radix=D
[TPERIOD_REG]
name=TPERIOD
reladdr=4
size=16
radix=D
[TTOTAL_REG]
name=TTOTAL
reladdr=6
size=32
radix=D
write=0

[SERIAL]
addr=FF0080
dep_reg=SERIAL_STOP
dep_bit=4
reg0=SMODE_REG
reg1=SRATE_REG
reg2=SSTAT_REG
reg3=SOUT_REG
reg4=SFRAME_REG

[SERIAL_STOP]
name=STOPCTL
reladdr=FFFFFF83

[SMODE_REG]
name=SMODE
reladdr=0
bitfield0=SMODE_PARITY
bitfield1=SMODE_STOPBITS
bitfield2=SMODE_EIGHT
[SMODE_PARITY]
name=PARITY
bit=0
len=2
[SMODE_STOPBITS]
name=STOPBITS
bit=2
[SMODE_EIGHT]
name=EIGHT
bit=3

[SRATE_REG]
name=SRATE
reladdr=1
size=0x8
radix=D

[SSTAT_REG]
name=SSTAT
reladdr=2
radix=B
write=0
bitfield0=SSTAT_TXEMPTY
bitfield1=SSTAT_RXFULL
bitfield2=SSTAT_OVERRUN
[SSTAT_TXEMPTY]
name=TXEMPTY
bit=5
[SSTAT_RXFULL]
name=RXFULL
bit=6
[SSTAT_OVERRUN]
name=OVERRUN
bit=7

[SOUT_REG]
name=SOUT
reladdr=3
read=0

; Word and long registers may lie at any address; at an odd one the target is read byte by byte.
[SFRAME_REG]
name=SFRAME
reladdr=5
size=16
bitfield0=SFRAME_NODE
bitfield1=SFRAME_LEVEL
bitfield2=SFRAME_KIND
[SFRAME_NODE]
name=NODE
bit=0
len=5
[SFRAME_LEVEL]
name=LEVEL
bit=5
len=8
[SFRAME_KIND]
name=KIND
bit=13
len=3

[ADC]
addr=FF00A0
dep_reg=ADC_STOP
dep_bit=5
reg0=ADCTL_REG
reg1=BRIGHT_REG
reg2=TEMP_REG
reg3=LAMPSUM_REG

[ADC_STOP]
name=STOPCTL
reladdr=FFFFFF63

[ADCTL_REG]
name=ADCTL
reladdr=1
bitfield0=ADCTL_CHANNEL
bitfield1=ADCTL_RUN
[ADCTL_CHANNEL]
name=CHANNEL
bit=0
len=3
[ADCTL_RUN]
name=RUN
bit=7

[BRIGHT_REG]
name=BRIGHT
reladdr=2
size=16
radix=D
write=0
bitfield0=BRIGHT_SAMPLE
[BRIGHT_SAMPLE]
name=SAMPLE
bit=4
len=12

[TEMP_REG]
name=TEMP
reladdr=4
size=16
radix=D
write=0
bitfield0=TEMP_SAMPLE
[TEMP_SAMPLE]
name=SAMPLE
bit=4
len=12

[LAMPSUM_REG]
name=LAMPSUM
reladdr=7
size=32
write=0
