from math import sqrt
def run():
    x = [i * 1.5 for i in range(6)]
    y = [3.0 - i for i in range(6)]
    z = [i * 0.25 for i in range(6)]
    vx = [0.1 * i for i in range(6)]
    vy = [0.05 * (6 - i) for i in range(6)]
    vz = [0.0] * 6
    m = [0.0] + [1 / i for i in range(1, 6)]
    for turn in range(200000):
        for i in range(1, 6):
            for j in range(i + 1, 6):
                dx = x[i] - x[j]
                dy = y[i] - y[j]
                dz = z[i] - z[j]
                d = dx * dx + dy * dy + dz * dz + 0.01
                f = 0.001 / (d * sqrt(d))
                vx[i] = vx[i] - dx * m[j] * f
                vy[i] = vy[i] - dy * m[j] * f
                vz[i] = vz[i] - dz * m[j] * f
                vx[j] = vx[j] + dx * m[i] * f
                vy[j] = vy[j] + dy * m[i] * f
                vz[j] = vz[j] + dz * m[i] * f
        for i in range(1, 6):
            x[i] = x[i] + 0.001 * vx[i]
            y[i] = y[i] + 0.001 * vy[i]
            z[i] = z[i] + 0.001 * vz[i]
    print("%.6f" % (x[1] + y[2] + z[3]))
run()
