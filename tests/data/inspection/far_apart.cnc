  [billet is a remark
[Places are those of the file, in
[which I5 stands at line 10, column 12
[BILLET X50 Z80

n10g00x100z50

  t1 m6   s800m3
g0x46z2
  g1z-20   i5 f200
g0x100z50


m5m30
