#include <cstdio>
#include <string>
int main() {
  volatile int count = 10000000;
  const int last = count;
  std::string s;
  const std::string c = "x";
  for (int i = 0; i < last; ++i) s += c;
  std::printf("%zu\n", s.size());
}
