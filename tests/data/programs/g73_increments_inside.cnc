[U AND W OF THE CONTOUR SHIFT THE PASSES
[BILLET X40 Z12
G00 X60 Z5
G73 U4 W-2 R3
G73 P10 Q30 U0 W0
[Each pass begins 0.2 higher and 0.5 further left than its share of the relief tells
N10 G00 X44 Z-1
N20 G01 X20
N25 U0.4 W-0.5
N30 G01 X44
N40 G00 X60 Z5