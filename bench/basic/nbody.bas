' Five bodies on their ways around each other: 200,000 steps.
DIM x(5) AS DOUBLE, y(5) AS DOUBLE, z(5) AS DOUBLE
DIM vx(5) AS DOUBLE, vy(5) AS DOUBLE, vz(5) AS DOUBLE, m(5) AS DOUBLE
DIM i AS INTEGER, j AS INTEGER, turn AS INTEGER
DIM dx AS DOUBLE, dy AS DOUBLE, dz AS DOUBLE, d AS DOUBLE, f AS DOUBLE
FOR i = 1 TO 5
  x(i) = i * 1.5
  y(i) = 3 - i
  z(i) = i * 0.25
  vx(i) = 0.1 * i
  vy(i) = 0.05 * (6 - i)
  vz(i) = 0
  m(i) = 1 / i
NEXT
FOR turn = 1 TO 200000
  FOR i = 1 TO 5
    FOR j = i + 1 TO 5
      dx = x(i) - x(j)
      dy = y(i) - y(j)
      dz = z(i) - z(j)
      d = dx * dx + dy * dy + dz * dz + 0.01
      f = 0.001 / (d * SQR(d))
      vx(i) = vx(i) - dx * m(j) * f
      vy(i) = vy(i) - dy * m(j) * f
      vz(i) = vz(i) - dz * m(j) * f
      vx(j) = vx(j) + dx * m(i) * f
      vy(j) = vy(j) + dy * m(i) * f
      vz(j) = vz(j) + dz * m(i) * f
    NEXT
  NEXT
  FOR i = 1 TO 5
    x(i) = x(i) + 0.001 * vx(i)
    y(i) = y(i) + 0.001 * vy(i)
    z(i) = z(i) + 0.001 * vz(i)
  NEXT
NEXT
PRINT FORMAT$("%.6f", x(1) + y(2) + z(3))
