[BILLET X40 Z60
[Five slips, made on purpose. Play
[and watch, then read the page
[Five slips of the manual.
N10 G21 G00 X44 Z-1
[1: What does the spindle do?
N20 G01 X0 F120
N30 G00 X36 Z2
N40 S900 M03
N50 G01 Z-40
N60 X42
N70 G00 Z2
[2: Which way does a rapid go?
N80 G00 X32 Z-20
N90 G01 Z-38
N100 X42
N110 G00 Z2
N120 G90 X28 Z-18
[3: A new speed, and what else?
N130 S1200
N140 G00 X24 Z2
[4: The tool waits, and then?
N150 G04
N160 Z-8
N170 G00 X44 Z2
[5: Which tool cuts the groove?
N180 T05
N190 G00 X42 Z-30
N200 G01 X30
N210 X42
N220 G00 X60 Z20
N230 M05
N240 M30