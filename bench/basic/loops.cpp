#include <cstdio>
int main() {
  double s = 0;
  volatile int limit = 100000000;
  const int last = limit;
  for (int i = 1; i <= last; ++i) s = s + i;
  std::printf("%.0f\n", s);
}
