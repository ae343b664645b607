[ROUND-BELT PULLEY: V groove,
[tool changes and parting off
[BILLET X44 Z50
[The pulley: hub 26 mm across, rim
[42 mm across from Z-6 to Z-26
[To the place where
[tools are changed
N10 G21 G00 X48 Z10
N20 T01 M06 [Tool 1, roughing
N30 S900 M03
N40 M08
[Hub and rim, roughed
[with the turning cycle
N50 G00 X48 Z2
N60 G90 X42.6 Z-30 F200
N70 X38 Z-5.8
N80 X34
N90 X30
N100 X26.6
N110 G00 X48 Z10
N120 T02 M06 [Tool 2, finishing
N130 S1300 M03
N140 G00 X20 Z2
[Chamfer of the hub
N150 G01 X26 Z-1 F120
N160 G01 Z-6
N170 G01 X40
[Chamfer of the rim
N180 G01 U2 W-1
N190 G01 Z-25
[Chamfer behind the rim; the tool
[can fall by up to 50 degrees
N200 G01 X38 Z-27
N210 G01 Z-29
N220 G01 X46
N230 G00 X48 Z10
[The groove is roughed
[with a blade 3 mm wide
[The cutting point is the
[left corner: at Z-17.5 it
[cuts from Z-17.5 to Z-14.5
[A blade goes straight in and
[straight out: first X, then Z
N240 T03 M06 [Tool 3, grooving
N250 S600 M03
N260 G00 X46 Z-17.5
N270 G01 X31.4 F60
N280 G01 X46
[Beside the first cut, less deep
N290 G00 Z-20
N300 G01 X36.2
N310 G01 X46
N320 G00 Z-15
N330 G01 X36.2
N340 G01 X46
N350 G00 Z-22
N360 G01 X40.2
N370 G01 X46
N380 G00 Z-13
N390 G01 X40.2
N400 G01 X46
N410 G00 X48 Z10
[The flanks of 45 degrees
[and the round bottom for
[the belt, radius 3
N420 T02 M06
N430 S1300 M03
N440 G00 X46 Z-6.657
[The groove begins
N450 G01 X42 Z-8.657 F100
N460 G01 X31.757 Z-13.779
[A straight cut of 0.1
[mm: right behind a taper
[the 3D view shows no arc
N470 G01 Z-13.879
[The bottom is 30
[mm across, at Z-16
N480 G02 X31.757 Z-18.121 R3
N490 G01 X42 Z-23.243
N500 G01 X46 Z-25.243
N510 G00 X48 Z10
[Part off at the back of the
[rim. The blade is 2.5 mm
[wide and lies left of it:
[from Z-28.5 to Z-26
[The 3D view shows this cut
[only as wide as its left
[corner, the cutting point
N520 T05 M06 [Tool 5, parting off
N530 S500 M03
N540 G00 X46 Z-28.5
N550 G01 X0 F40
N560 G01 X46
[Clear the part before going home
N570 G00 Z5
[Straight home from here
N580 G28 U0 W0
N590 M09
N600 M05
N610 M30