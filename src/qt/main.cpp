// The desktop program.
#include <QApplication>
#include <QMainWindow>

#include "qt/icon_set.h"
#include "qt/theme.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setWindowIcon(tarnwick::ProgramIcon());
  tarnwick::ApplyTheme(application, tarnwick::ThemeOf(QApplication::palette()));
  QMainWindow window;
  window.show();
  return QApplication::exec();
}
