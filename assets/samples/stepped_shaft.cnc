[STEPPED SHAFT: three steps,
[turned by hand-written cuts
[The billet line gives the stock:
[50 mm across and 80 mm long
[BILLET X50 Z80
[X words are diameters: X20
[turns the part to 20 mm across
[Z is 0 at the free end of the
[billet and negative into the part
[Start: G21 is for mm, G00 is
[a rapid move to the place
[where tools are changed
N10 G21 G00 X54 Z10
N20 T01 M06 [Tool 1, roughing
[Spindle on, clockwise
N30 S800 M03
N40 M08 [Coolant on
[Face the end: 1 mm comes
[off in two cuts, so the
[finished face is at Z-1
N50 G00 X54 Z-0.5
[F is the feed in mm a minute
N60 G01 X0 F160
[Leave the face by a
[feed move along Z
N70 G01 Z2
N80 G00 X54
N90 G00 Z-1
N100 G01 X0
N110 G01 Z2
[Rough the largest step,
[finished 42 mm across
[and its shoulder at Z-61
[Every cut: rapid to the
[new diameter, feed along
[Z, feed out, rapid back
[The cuts stay 0.5 mm above
[the diameter and 0.2 mm in
[front of the shoulder
N120 G00 X46
N130 G01 Z-60.8 F200
N140 G01 X52
N150 G00 Z2
N160 G00 X42.5
N170 G01 Z-60.8
N180 G01 X52
N190 G00 Z2
[Rough the middle step, 30
[mm across, shoulder at Z-41
[U counts from where the tool is:
[U2 goes out by 2 mm of diameter
N200 G00 X38.5
N210 G01 Z-40.8
N220 G01 U2
N230 G00 Z2
N240 G00 X34.5
N250 G01 Z-40.8
N260 G01 U2
N270 G00 Z2
N280 G00 X30.5
N290 G01 Z-38
[Leave stock for the
[fillet in the corner
N300 G01 X34.5 Z-40.8
N310 G01 U2
N320 G00 Z2
[Rough the first step, 20 mm
[across, shoulder at Z-21
N330 G00 X26.5
N340 G01 Z-20.8
N350 G01 U2
N360 G00 Z2
N370 G00 X23
N380 G01 Z-20.8
N390 G01 U2
N400 G00 Z2
N410 G00 X20.5
N420 G01 Z-20.8
N430 G01 U2
N440 G00 Z2
[Change to the finishing tool,
[well away from the part
N450 G00 X54 Z10
N460 T02 M06 [Tool 2, finishing
N470 S1200 M03
[Finish: one cut along
[the whole contour
[The chamfer is 1 mm by 45 degrees
[and begins in the air at Z1
N480 G00 X14 Z1
[Chamfer from X18 Z-1 to X20 Z-2
N490 G01 X20 Z-2 F120
N500 G01 Z-21 [First step
N510 G01 X28 [Its shoulder
[Chamfer again, this
[time by U and W
N520 G01 U2 W-1
N530 G01 Z-39 [Middle step
[Fillet of radius
[2 into the corner
N540 G02 X34 Z-41 R2
N550 G01 X40
N560 G01 U2 W-1
N570 G01 Z-61 [Largest step
N580 G01 X48
[Break the edge of the
[billet and leave it
N590 G01 X52 Z-63
[Home by way of X60 Z5: the
[tool first feeds there,
[then goes home rapidly
N600 G28 X60 Z5
N610 M09 [Coolant off
N620 M05 [Spindle off
N630 M30 [End of the program