[BALL HANDLE: arcs
[by R and by I and K
[BILLET X40 Z80
[G02 runs clockwise and
[G03 counter-clockwise, as
[you see the upper half
[The ball has radius 15, so its
[centre lies at Z-15 on the axis
N10 G21 G00 X52 Z10
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
[Rough the front of the
[ball as a staircase, each
[corner outside of the ball
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
N330 G00 X52 Z10
[Tool 2, finishing. It can
[fall by up to 50 degrees
N340 T02 M06
N350 S1400 M03
[Rough the neck behind the
[ball in straight cuts,
[each deeper and shorter
N360 G00 X34 Z-20
N370 G01 X29 F150
N380 G01 Z-55.5
N390 G01 X34
N400 G00 Z-22.5
N410 G01 X26.6
N420 G01 Z-49.5
N430 G01 X34
N440 G00 Z-24.5
N450 G01 X24.2
N460 G01 Z-41.5
N470 G01 X34
N480 G00 Z-27
N490 G01 X21.8
N500 G01 Z-32
[Along the handle,
[which is a taper
N510 G01 X28.6 Z-55
N520 G01 X34
N530 G00 Z2
[Finish: touch the tip of the
[ball and follow the contour
[Come in along Z alone: the
[3D view draws an arc right
[behind a G01 that moves
[X and Z at once as
[one straight taper
N540 G00 X0
N550 G01 Z0 F120
[The ball. It ends below its
[centre, where it is 24 mm across
N560 G03 X24 Z-24 R15
[The neck by I and K, the
[way from the start of
[the arc to its centre:
[I8 is 8 mm outwards on the
[radius, K-6 is 6 mm along
[Z, so the radius is 10
N570 G02 X20 Z-30 I8 K-6
[The handle grows thicker
[towards the collar
N580 G01 X28 Z-55.5
[A short straight cut, so that
[the fillet is an arc in 3D too
N590 G01 Z-56
[Fillet into the collar
N600 G02 X32 Z-58 I2 K0
[Round edge of the collar
N610 G03 X36 Z-60 R2
N620 G01 Z-70
N630 G01 X38
N640 G01 X42 Z-72
N650 G28 X60 Z5
N660 M09
N670 M05
N680 M30