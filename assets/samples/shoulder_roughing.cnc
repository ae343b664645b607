[SHOULDER ROUGHING:
[the turning cycle G90
[BILLET X56 Z70
[One G90 block makes four moves
[and comes back to where it began:
[rapid in to X, cut along
[to Z, feed out along the
[shoulder, rapid back
N10 G21 G00 X54 Z12
N20 T01 M06 [Tool 1, roughing
N30 S800 M03
N40 M08
[The cycle begins and ends
[here, clear of the billet
N50 G00 X60 Z2
N60 G90 X52 Z-44.8 F200
[G90 is modal: a row with only X
[repeats the cycle at a new depth
[Mind that every other row repeats
[it too, so no M words in between
N70 X48
N80 X44
N100 X36.6
[A new Z in the same cycle:
[the second, shorter shoulder
N110 X32 Z-24.8
N120 X28.4
[Shorter, so that stock
[is left for the fillet
N130 X24.6 Z-22.8
[G00 ends the cycle
N140 G00 X54 Z12
N150 T02 M06 [Tool 2, finishing
N160 S1300 M03
N170 G00 X20 Z1
[Chamfer 1 mm
N180 G01 X24 Z-1 F120
N190 G01 Z-23
[Fillet of radius 2
N200 G02 X28 Z-25 R2
N210 G01 X34
[Chamfer to X36 Z-26
N220 G01 U2 W-1
N230 G01 Z-45
N240 G01 X54
[Break the edge of the billet
N250 G01 X58 Z-47
N260 G28 X66 Z5
N270 M09
N280 M05
N290 M30