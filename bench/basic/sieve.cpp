#include <cstdio>
#include <vector>
int main() {
  volatile int limit = 10000000;
  const int n = limit;
  std::vector<unsigned char> struck(static_cast<std::size_t>(n) + 1);
  int count = 0;
  for (int i = 2; i <= n; ++i) {
    if (struck[static_cast<std::size_t>(i)] != 0) continue;
    ++count;
    for (int j = i + i; j <= n; j += i) struck[static_cast<std::size_t>(j)] = 1;
  }
  std::printf("%d\n", count);
}
