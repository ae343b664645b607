[GUIDE PIN: five tools and the
[M functions of the machine
[BILLET X40 Z80
[M functions show what the machine
[would do; M06 changes the tool
[Clamp the billet. In G00
[mode a row without X and Z
[leaves the tool in place
[To the place where
[tools are changed
N10 G21 G00 X44 Z10
N20 M38 [Open the door
[Open the chuck, put in the billet
N30 M10
N40 M11 [Close the chuck
N50 M39 [Close the door
[The quill supports the free end
N60 M25
[Tool 1 roughs. M13 starts
[spindle and coolant at once
N70 T01 M06
N80 S900 M13
N90 G00 X44 Z2
N100 G90 X36.6 Z-62 F200
N110 X32.6 Z-43.8
N120 X28.6
[Shorter, so that stock
[is left for the fillet
N130 X26.6 Z-41.8
N140 X22.6 Z-31.8
N150 X20.6
N160 G00 X44 Z10
[Stop the spindle
[before the next tool
N170 M05
[Tool 2 finishes
N180 T02 M06
N190 S1400 M03
N200 G00 X14 Z2
N210 G01 X20 Z-1 F120 [Chamfer
N220 G01 Z-32
N230 G01 X24
N240 G01 U2 W-1
N250 G01 Z-42
N260 G02 X30 Z-44 R2 [Fillet
N270 G01 X34
N280 G01 U2 W-1
N290 G01 Z-57
[Chamfer at the back of the head
N300 G01 X32 Z-59
N310 G01 Z-61
N320 G01 X42
N330 G00 X44 Z10
N340 M05
[Tool 3 cuts a groove of 8
[mm into the pin, from Z-32
[to Z-24. Its blade is 3 mm
[wide, and the cutting point
[is its left corner, so the
[corner stops at Z-27
[The 3D view knows only
[the corner and shows the
[groove from Z-32 to Z-27
N350 T03 M06
N360 S600 M03
N370 G00 X30 Z-32
N380 G01 X15 F60
N390 G01 Z-27 [Along the bottom
N400 G01 X30
N410 G00 X44 Z10
N420 M05
[Tool 4, the pointed
[threading insert, cuts grip
[rings: U and W row by row
[M14 turns the spindle the
[other way, with coolant
N430 T04 M06
N440 S400 M14
N450 G00 X22 Z-4
N460 G01 X20 F80
N470 G01 U-1.2 W-1.4
N480 U1.2 W-0.6
[G01 is modal, so the
[rows need no G word
N490 U-1.2 W-1.4
N500 U1.2 W-0.6
N510 U-1.2 W-1.4
N520 U1.2 W-0.6
N530 U-1.2 W-1.4
N540 U1.2 W-0.6
N550 U-1.2 W-1.4
N560 U1.2 W-0.6
N570 U-1.2 W-1.4
N580 U1.2 W-0.6
N590 U-1.2 W-1.4
N600 U1.2 W-0.6
N610 G01 X22
N620 G00 X44 Z10
N630 M05
[Tool 5 parts off at the back
[of the head, without the quill
N640 M26 [The quill goes back
N650 T05 M06
N660 S500 M03
N670 M08
N680 G00 X44 Z-60.5
N690 G01 X0 F40
N700 G01 X44
N710 G00 Z5
N720 G28 U0 W0
[Stop everything and
[take the part out
N730 M09
N740 M05
N750 M38 [Open the door
N760 M10 [Open the chuck
[End: back to the
[start, coolant off
N770 M30