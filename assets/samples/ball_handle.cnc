[BALL HANDLE: arcs by R and by I and K
[BILLET X40 Z80
[G02 runs clockwise and G03 counter-clockwise, as you see the upper half
[The ball has radius 15, so its centre lies at Z-15 on the axis
N10 G21 G00 X100 Z50
N20 T01 M06 [Tool 1, roughing
N30 S900 M03
N40 M08
[Rough the handle in straight cuts
N50 G00 X36.6 Z2
N60 G01 Z-69.8 F200
N70 G01 X42
N80 G00 Z2
N90 G00 X32.6
N100 G01 Z-57.2
N110 G01 U2
N120 G00 Z2
N130 G00 X30.8
N140 G01 Z-55.5
N150 G01 U2
N160 G00 Z2
[Rough the front of the ball as a staircase, each corner outside of the ball
N170 G00 X27
N180 G01 Z-7
N190 G01 U2
N200 G00 Z2
N210 G00 X22
N220 G01 Z-4
N230 G01 U2
N240 G00 Z2
N250 G00 X16
N260 G01 Z-1.8
N270 G01 U2
N280 G00 Z2
N290 G00 X9
N300 G01 Z-0.5
N310 G01 U2
N320 G00 Z2
N330 G00 X100 Z50
N340 T02 M06 [Tool 2, finishing. It can fall by up to 50 degrees
N350 S1400 M03
[Rough the neck behind the ball in two cuts
N360 G00 X34 Z-17
N370 G01 X31.2 F150
N380 G01 X27 Z-26
N390 G01 X29 Z-48
N400 G01 X34
N410 G00 Z-18
N420 G01 X31
N430 G01 X23 Z-28.5
N440 G01 X23.5 Z-36
N450 G01 X28.6 Z-54.5
N460 G01 X34
N470 G00 Z2
[Finish: touch the tip of the ball and follow the contour
N480 G00 X4
N490 G01 X0 Z0 F120
N500 G03 X24 Z-24 R15 [The ball. It ends below its centre, where it is 24 mm across
[The neck by I and K, the way from the start of the arc to its centre:
[I8 is 8 mm outwards on the radius, K-6 is 6 mm along Z, so the radius is 10
N510 G02 X20 Z-30 I8 K-6
N520 G01 X28 Z-56 [The handle grows thicker towards the collar
N530 G02 X32 Z-58 I2 K0 [Fillet into the collar
N540 G03 X36 Z-60 R2 [Round edge of the collar
N550 G01 Z-70
N560 G01 X38
N570 G01 X42 Z-72
N580 G28 X60 Z5
N590 M09
N600 M05
N610 M30