[THE FIRST BLOCK MOVES NOTHING AND USES UP THE RADIUS
[BILLET X40 Z12
G00 X42 Z-5
[If U or W were kept, the feed row behind it would cut
G73 U-4 W-2 R3
G01