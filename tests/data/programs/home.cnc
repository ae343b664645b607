[HOME LIES IN THE UPPER RIGHT CORNER, BY WAY OF THE TARGET IN A FEED MOVE
[BILLET X20 Z10
N10 G00 X18 Z1
[Radius 9 to Z-4
N20 G28 Z-4
[Home again is one point
N30 M08
[From home, radius 21.4 at Z82.3, in a line to radius 9 at Z-8, seen left of Z-4
N40 G01 U-24.8 W-90.3
[Behind X alone the feed move keeps its Z: radius 6 at Z-6
N50 G00 X15 Z-6
N60 G28 X12