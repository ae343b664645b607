[BILLET X20 Z40
[The program ends where the tool has
[parted the part: nothing is left there
N10 G00 X100 Z50
N20 T01 M06
N30 S800 M03
N40 G00 X24 Z-1
N50 G01 X0 F100
N55 G00 Z-0.5
N60 M05
N70 M30
