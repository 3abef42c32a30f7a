[Modules]
FileVersion=1
Module1=Ofenüberwachung—mit einem Namen, der länger als seine Spalte ist
Module2=ü
[Ofenüberwachung—mit einem Namen, der länger als seine Spalte ist]
Größe_der_Öffnung_in_Millimetern_à_½=FF0000 L A
温度_日本語の名前はひと文字ひと桁で数えられて切られる終=FF0004 B A
ü=FF0006 W A
[ü]
