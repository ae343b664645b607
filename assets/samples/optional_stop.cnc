[BEARING SEAT: M00 stops the
[program to measure the part
[BILLET X44 Z75
[M00 puts the run into a
[pause. Press Start to go on
[The spindle turns on during
[M00, so stop it first and
[start it again behind
N10 G21 G00 X52 Z12
N20 T01 M06 [Tool 1, roughing
N30 S900 M03
N40 M08
N50 G00 X48 Z2
N60 G94 X0 Z-1 F150 [Face the end
N70 G90 X40.6 Z-59.8 F200
N80 X36 Z-44.8
N90 X32
[Shorter, so that stock
[is left for the fillet
N100 X30.8 Z-43.6
N110 X26 Z-19.8
N120 X22.8
[Take the tool away from the part
N130 G00 X52 Z12
N140 M05
N150 M09
[Stop 1: measure the seat, 30.8
[mm, and its shoulder, Z-44.8
N160 M00
[Tool 2 turns the seat to 30.4
[mm and leaves 0.2 mm a side
N170 T02 M06
[Spindle and coolant on
N180 S1400 M13
N190 G00 X34 Z2
N200 G00 X30.4
N210 G01 Z-43.6 F120
N220 G01 U4
N230 G00 X52 Z12
N240 M05
N250 M09
[Stop 2: measure the seat
[again before the last cut
N260 M00
[The last cut along the contour;
[the finished face is at Z-1
N270 S1600 M13
N280 G00 X16 Z1
N290 G01 X22 Z-2 F100 [Chamfer
N300 G01 Z-20
N310 G01 X28
[Chamfer to X30 Z-21
N320 G01 U2 W-1
N330 G01 Z-43.8
[Fillet beside the
[bearing's shoulder
N340 G02 X32.4 Z-45 R1.2
N350 G01 X38
[Chamfer to X40 Z-46
N360 G01 U2 W-1
N370 G01 Z-60
N380 G01 X42
[Break the edge of the billet
N390 G01 X46 Z-62
N400 G00 X52 Z12
N410 M05
N420 M09
[Stop 3: check the finished part
[while it is still in the chuck
N430 M00
N440 G28 U0 W0
N450 M30