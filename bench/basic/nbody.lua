local x, y, z, vx, vy, vz, m = {}, {}, {}, {}, {}, {}, {}
for i = 1, 5 do
  x[i], y[i], z[i] = i * 1.5, 3.0 - i, i * 0.25
  vx[i], vy[i], vz[i], m[i] = 0.1 * i, 0.05 * (6 - i), 0.0, 1 / i
end
local sqrt = math.sqrt
for turn = 1, 200000 do
  for i = 1, 5 do
    for j = i + 1, 5 do
      local dx = x[i] - x[j]
      local dy = y[i] - y[j]
      local dz = z[i] - z[j]
      local d = dx * dx + dy * dy + dz * dz + 0.01
      local f = 0.001 / (d * sqrt(d))
      vx[i] = vx[i] - dx * m[j] * f
      vy[i] = vy[i] - dy * m[j] * f
      vz[i] = vz[i] - dz * m[j] * f
      vx[j] = vx[j] + dx * m[i] * f
      vy[j] = vy[j] + dy * m[i] * f
      vz[j] = vz[j] + dz * m[i] * f
    end
  end
  for i = 1, 5 do
    x[i] = x[i] + 0.001 * vx[i]
    y[i] = y[i] + 0.001 * vy[i]
    z[i] = z[i] + 0.001 * vz[i]
  end
end
print(string.format("%.6f", x[1] + y[2] + z[3]))
