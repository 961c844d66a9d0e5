#include <cstdio>
#include <string>
int main() {
  std::string s;
  for (int i = 0; i < 434783; ++i) s += "alpha beta gamma delta ";
  int words = 0;
  for (std::size_t at = s.find(' '); at != std::string::npos; at = s.find(' ', at + 1)) ++words;
  std::printf("%d\n", words);
}
