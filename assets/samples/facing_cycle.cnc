[FLANGE: the facing cycle G94
[BILLET X60 Z50
[G94 is the sister of G90: it goes
[to depth along Z and cuts along X
[Its moves: rapid to Z, cut
[in to X, feed back along
[Z, rapid out to the start
N10 G21 G00 X52 Z14
N20 T01 M06 [Tool 1, roughing
N30 S600 M03
N40 M08
N50 G00 X64 Z2
[X0 is the centre: the
[whole end is faced, 1 mm
N60 G94 X0 Z-1 F150
[The boss, 24 mm across: each row
[with a new Z is one more cut
N70 X24.6 Z-3
N80 Z-5
N90 Z-7
N100 Z-9
N110 Z-11
N120 Z-13
N130 Z-14.8
[The step behind it, 40 mm across
N140 X40.6 Z-16.8
N150 Z-18.8
[With R the cut begins
[deeper than it ends: the
[flange gets a conical face
[R counts for one cut
[only; a row with just R
[repeats the cycle with it
N160 R-1
N170 R-2
N180 R-2.8
N190 G00 X52 Z14
N200 T02 M06 [Tool 2, finishing
N210 S1000 M03
[The finished face is at
[Z-1. The chamfer begins
[in the air in front of it
N220 G00 X18 Z1
N230 G01 X24 Z-2 F120
N240 G01 Z-15
N250 G01 X38
[Chamfer to X40 Z-16
N260 G01 U2 W-1
N270 G01 Z-19
[Conical face: 2.7 mm
[deeper at the outside
N280 G01 X58 Z-21.7
[Round edge of the flange
N290 G03 X60 Z-22.7 R1
N300 G01 X64
N310 G28 X70 Z5
N320 M09
N330 M05
N340 M30