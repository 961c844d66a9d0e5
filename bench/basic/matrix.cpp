#include <cstdio>
#include <vector>
int main() {
  volatile int size = 300;
  const auto n = static_cast<std::size_t>(size);
  const auto at = [n](std::size_t i, std::size_t j) { return i * (n + 1) + j; };
  std::vector<double> a((n + 1) * (n + 1)), b(a), c(a);
  for (std::size_t i = 1; i <= n; ++i) {
    for (std::size_t j = 1; j <= n; ++j) {
      a[at(i, j)] = static_cast<double>(i) + static_cast<double>(j);
      b[at(i, j)] = static_cast<double>(i) - static_cast<double>(j);
    }
  }
  for (std::size_t i = 1; i <= n; ++i) {
    for (std::size_t j = 1; j <= n; ++j) {
      double s = 0;
      for (std::size_t k = 1; k <= n; ++k) s = s + a[at(i, k)] * b[at(k, j)];
      c[at(i, j)] = s;
    }
  }
  std::printf("%.0f %.0f\n", c[at(1, 1)], c[at(n, n)]);
}
