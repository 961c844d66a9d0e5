#include <cstdio>
static int Fib(int n) {
  return n < 2 ? n : Fib(n - 1) + Fib(n - 2);
}
int main() {
  volatile int n = 32;
  std::printf("%d\n", Fib(n));
}
