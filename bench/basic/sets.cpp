#include <cstdio>
struct Label {
  virtual void SetLeft(int value) { Left = value; }
  int Left = 0;
};
int main() {
  Label label;
  Label* volatile shown = &label;
  for (int i = 1; i <= 1000000; ++i) shown->SetLeft(i);
  std::printf("%d\n", label.Left);
}
