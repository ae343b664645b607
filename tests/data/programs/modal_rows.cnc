[EVERY ROW MOVES ONCE UNDER THE MODAL FUNCTION
[BILLET X20 Z10
N10 G00 X18 Z1
N20 G01 Z-2
[Rows without a G word cut on
N30 X19
N40 Z-4
[Units leave it as it is
N45 G21 Z-4.5
[Dwell is modal too: its rows move nothing
N50 G04 P2
N60 X10 Z-8
[The box cycle is repeated by every row behind it, also by one without a move word
N70 G00 X24 Z1
N80 G90 X17 Z-1
N90 M08
N100 X16
[G72 is known to the check only: it ends every motion
N110 G72 X10 Z-9