[PATTERN REPEAT: the cycle
[G73 roughs a whole contour
[BILLET X48 Z75
[G73 runs the rows of a
[contour again and again,
[each pass nearer to the part
[It suits blanks that already have
[the shape, but any billet will do
N10 G21 G00 X52 Z10
N20 T01 M06 [Tool 1, roughing
N30 S900 M03
N40 M08
[Every pass begins from here
N50 G00 X52 Z2
[First block: U15 and W1
[shift the first pass by 15
[mm outwards on the radius
[and by 1 mm to the right.
[R6 is the number of passes
N60 G73 U15 W1 R6
[Second block: P and Q
[are the first and the
[last row of the contour
[The cycle looks for the
[letter N with the number of
[P, and the first row that
[holds it wins. So no
[row above may hold it,
[not even in a comment
[U0.2 here adds 0.1 mm on
[the radius at each pass,
[which leaves 0.5 mm at last
N70 G73 P100 Q210 U0.2 W0 F200
[After the cycle the program
[goes on in the next row and
[comes to the contour
[once more, so a change to the
[finishing tool has its place here
N80 G00 X52 Z10
N90 T02 M06 [Tool 2, finishing
N95 S1400 M03
[The contour. Its first row
[needs a G word of its own
N100 G00 X14 Z1
N110 G01 X18 Z-1 F120 [Chamfer
N120 G01 Z-15
N130 G01 X26 Z-27 [Taper
N140 G01 Z-36
N150 G02 X32 Z-39 R3 [Fillet
N160 G01 X36
N170 G03 X40 Z-41 R2 [Round edge
N180 G01 Z-56
N190 G01 X44
N200 G01 X48 Z-58 [Chamfer
N210 G01 X50 [Out of the material
N220 G28 X60 Z5
N230 M09
N240 M05
N250 M30