[CHESS PAWN: 57 mm high, turned with its head to the right
[BILLET X36 Z75
N10 G21 G00 X100 Z50
N20 T01 M06 [Tool 1, roughing
N30 S1000 M03
N40 M08
[Rough the outline with the turning cycle, from the base to the head
N50 G00 X40 Z2
N60 G90 X34.6 Z-62 F200
N70 X31.5 Z-47.6
N80 X28.8 Z-47.3
N90 X25 Z-43.4
N100 X21.8 Z-40.4
N110 X18.8 Z-15.6
N120 X16.2 Z-15.4
[The front of the head, outside of its ball
N130 X13 Z-3.2
N140 X9 Z-1.3
N150 X5 Z-0.3
N160 G00 X100 Z50
N170 T02 M06 [Tool 2, finishing. It can fall by up to 50 degrees
N180 S1600 M03
[Rough the neck and the hollow of the body
N190 G00 X20 Z-9
N200 G01 X16.4 F150
N210 G01 X13.4 Z-12
N220 G01 Z-15
N230 G01 X24
N240 G00 Z-18.2
N250 G01 X22
N260 G01 X17.4 Z-20.5
N270 G01 Z-35.5
N280 G01 X22 Z-40
N290 G01 X24
N300 G00 Z-18.2
N310 G01 X22
N320 G01 X13.2 Z-22.6
N330 G01 Z-27
N340 G01 X17.6 Z-36
N350 G01 X24
N360 G00 Z2
[Finish from the head down
N370 G00 X4
N380 G01 X0 Z0 F120
N390 G03 X12 Z-12 R7.5 [The head is a ball of radius 7.5
N400 G02 X16 Z-16 R2.5 [The neck
N410 G01 X19
N420 G03 X21 Z-17 R1 [The collar, with a round edge
N430 G01 Z-18
N440 G01 X12 Z-22.5 [Its back falls by 45 degrees
N450 G02 X28 Z-46.5 R40 [The body flows out to the base
N460 G01 Z-48
N470 G03 X34 Z-51 R3 [Round edge of the base
N480 G01 Z-56
N490 G01 X30 Z-58 [Chamfer below the base
N500 G01 Z-60
N510 G01 X38
N520 G00 X100 Z50
[Part off: the blade cuts from Z-59.5 to Z-57
[The 3D view shows this cut only as wide as its left corner, the cutting point
N530 T05 M06 [Tool 5, parting off
N540 S600 M03
N550 G00 X38 Z-59.5
N560 G01 X0 F40
N570 G01 X38
N580 G00 Z5
N590 G28 U0 W0
N600 M09
N610 M05
N620 M30