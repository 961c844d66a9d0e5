#include <cmath>
#include <cstdio>
int main() {
  double x[6], y[6], z[6], vx[6], vy[6], vz[6], m[6];
  for (int i = 1; i <= 5; ++i) {
    x[i] = i * 1.5, y[i] = 3.0 - i, z[i] = i * 0.25;
    vx[i] = 0.1 * i, vy[i] = 0.05 * (6 - i), vz[i] = 0, m[i] = 1.0 / i;
  }
  volatile int turns = 200000;
  for (int turn = turns; turn > 0; --turn) {
    for (int i = 1; i <= 5; ++i) {
      for (int j = i + 1; j <= 5; ++j) {
        const double dx = x[i] - x[j], dy = y[i] - y[j], dz = z[i] - z[j];
        const double d = dx * dx + dy * dy + dz * dz + 0.01;
        const double f = 0.001 / (d * std::sqrt(d));
        vx[i] -= dx * m[j] * f, vy[i] -= dy * m[j] * f, vz[i] -= dz * m[j] * f;
        vx[j] += dx * m[i] * f, vy[j] += dy * m[i] * f, vz[j] += dz * m[i] * f;
      }
    }
    for (int i = 1; i <= 5; ++i) {
      x[i] += 0.001 * vx[i], y[i] += 0.001 * vy[i], z[i] += 0.001 * vz[i];
    }
  }
  std::printf("%.6f\n", x[1] + y[2] + z[3]);
}
