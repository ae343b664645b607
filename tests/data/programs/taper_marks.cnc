[A FEED MOVE IN BOTH AXES MARKS THE COLUMNS IT LOWERS, AND AN ARC DOES AS THE FEED MOVE BEFORE IT
[BILLET X20 Z20
N10 G00 X19.8 Z1
N20 G01 Z-0.2
[Marked from Z-0.3 to Z-8: the move without a distance between taper and arc changes nothing
N30 G01 X19.4 Z-4
N40 M08
N50 G02 Z-8 R5
[Not marked
N60 G01 Z-12
N70 G00 X30
N80 G00 Z1
N90 G00 X18
[A straight cut that goes deeper leaves the marks, and makes none
N100 G01 Z-16
[Marked
N110 X19 Z-20
[A taper above the part marks nothing
N120 X19.8 Z-10