[CHESS PAWN: 57 mm high, turned
[with its head to the right
[BILLET X36 Z75
N10 G21 G00 X40 Z10
N20 T01 M06 [Tool 1, roughing
N30 S1000 M03
N40 M08
[Rough the outline with
[the turning cycle, from
[the base to the head
N50 G00 X40 Z2
N60 G90 X34.6 Z-62 F200
N70 X31.5 Z-47.6
N80 X28.8 Z-47.3
N90 X27 Z-45.4
N100 X25 Z-43.4
N110 X23.4 Z-41.9
N120 X21.8 Z-40.4
N130 X18.8 Z-15.6
N140 X16.2 Z-15.4
[The front of the head,
[outside of its ball
N150 X13 Z-3.2
N160 X9 Z-1.3
N170 X5 Z-0.3
N180 G00 X40 Z10
[Tool 2, finishing. It can
[fall by up to 50 degrees
N190 T02 M06
N200 S1600 M03
[Rough the neck and the hollow
[of the body as staircases. A
[cut along X and Z at
[once would do as well, but
[then the 3D view shows a
[straight taper there
N210 G00 X20 Z-10.5
N220 G01 X14.8 F150
N230 G01 Z-12
N240 G01 X13
N250 G01 Z-15
N260 G01 X24
N270 G00 Z-19.8
N280 G01 X18.4
N290 G01 Z-37.5
N300 G01 X20
N310 G01 Z-39.5
N320 G01 X24
N330 G00 Z-21.3
N340 G01 X15.4
N350 G01 Z-33
N360 G01 X24
N370 G00 Z-22.5
N380 G01 X13
N390 G01 Z-27
N400 G01 X14.2
N410 G01 Z-30.5
N420 G01 X16.8
N430 G01 Z-35.5
N440 G01 X24
N450 G00 Z2
[Finish from the head down
N460 G00 X0
N470 G01 Z0 F120
[The head is a ball of radius 7.5
N480 G03 X12 Z-12 R7.5
N490 G02 X16 Z-16 R2.5 [The neck
N500 G01 X19
[The collar, with a round edge
N510 G03 X21 Z-17 R1
N520 G01 Z-18
[Its back falls by 45 degrees
N530 G01 X12 Z-22.5
[A short straight cut, so that
[the body is an arc in 3D too
N540 G01 Z-23
[The body flows out to the base
N550 G02 X28 Z-47 R40
N560 G01 Z-48
[Round edge of the base
N570 G03 X34 Z-51 R3
N580 G01 Z-56
[Chamfer below the base
N590 G01 X30 Z-58
N600 G01 Z-60
N610 G01 X38
N620 G00 X40 Z10
[Part off: the blade cuts
[from Z-59.5 to Z-57
[The 3D view shows this cut
[only as wide as its left
[corner, the cutting point
N630 T05 M06 [Tool 5, parting off
N640 S600 M03
N650 G00 X38 Z-59.5
N660 G01 X0 F40
N670 G01 X38
N680 G00 Z5
N690 G28 U0 W0
N700 M09
N710 M05
N720 M30