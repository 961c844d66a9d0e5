' A whole number beside a real one needs no conversion where the order allows; bytes of an array.
DIM d AS DOUBLE, i AS INTEGER, a(3) AS BYTE
d = d + i
d = i * d
d = d / i
d = i - d
a(i) = i + 1
d = a(i) - 0.5
