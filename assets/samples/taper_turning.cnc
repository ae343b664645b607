[TAPER TURNING: rising and
[falling tapers on one part
[BILLET X46 Z80
[A straight line that moves X
[and Z at once turns a taper
[The front taper is 1 to 4: 40 mm
[long, 10 mm thicker at its end
[To the place where
[tools are changed
N10 G21 G00 X52 Z10
N20 T01 M06 [Tool 1, roughing
N30 S900 M03
N40 M08
[Rough straight first. G90
[is a cycle: rapid in, cut
[along Z, feed out, back
N50 G00 X50 Z2
N60 G90 X42.6 Z-75.8 F200
[The cycle is modal:
[new words, next cut
N70 X37.5 Z-57
N80 X32.6 Z-54.8
N90 X29 Z-40.8
[Rough the taper with the
[same cycle. R is start
[minus end, on the radius
[The cut begins at Z2, where
[the taper is 17.5 mm
[across: R = (17.5 - 28) / 2
[R counts for one cut only,
[so each row needs it again
N100 X35 Z-39.8 R-5.25
N110 X32 R-5.25
N120 X28.6 R-5.25
N130 G00 X52 Z10
[Tool 2, finishing. Its slim
[insert can follow falling tapers
N140 T02 M06
N150 S1400 M03
[Rough the falling taper: its deep
[end is 8 mm below the collar
N160 G00 X48 Z-64
N170 G01 X43.4 F150
N180 G01 X38.8 Z-74
N190 G01 Z-75.6
N200 G01 X48
N210 G00 Z2
[Finish the contour
N220 G00 X17.5 Z2
[Taper 1 to 4, begun in the air
N230 G01 X28 Z-40 F120
[Straight: tapers that touch
[are one taper in the 3D view
N240 G01 Z-41
N250 G01 X30
[Chamfer 1 mm: U and W count
[from where the tool is
N260 G01 U2 W-1
N270 G01 Z-55
[Taper of 45 degrees: 5 mm
[on the radius, 5 mm along
N280 G01 X42 Z-60
N290 G01 Z-64
N300 G01 X34 Z-74 [Falling taper
N310 G01 Z-76
N320 G01 X44
[Break the edge of the billet
N330 G01 X48 Z-78
[Home, by way of a point
[clear of the part
N340 G28 X60 Z5
N350 M09
N360 M05
N370 M30