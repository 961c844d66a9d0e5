' A text that grows in place, in a variable and in an element.
DIM s AS STRING, a(3) AS STRING
s = s + "x" + "y"
a(2) = a(2) + s
SUB Add
  s = s + "z"
END SUB
