// The desktop program.
#include <QApplication>
#include <QFileInfo>

#include "platform/native_files.h"
#include "platform/native_instance_folders.h"
#include "platform/native_process.h"
#include "platform/profile_files.h"
#include "platform/program_folder.h"
#include "qt/frame/main_view.h"
#include "qt/frame/main_window.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/qt_ports.h"
#include "qt/kit/runner_process.h"
#include "qt/kit/theme.h"
#include "shell/mdi_form.h"
#include "shell/program_setup.h"
#include "shell/run_command.h"
#include "text/path_text.h"

int main(int argc, char** argv) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setDesktopFileName(QStringLiteral("tarnwick"));
  ApplyTheme(application, ThemeOf(QApplication::palette()));

  NativeFiles files;
  ProfileFiles profiles(files);
  NativeProcess processes;
  QtMessages messages;
  QtDialogs dialogs;
  QtScreen screen;
  const Ports ports{files, profiles, processes, messages, dialogs, screen};

  // An installed program keeps its support files where it cannot write; the first start of each
  // user copies them.
  const std::string folder = ProgramFolder();
  const std::string executable = ExecutableFolder();
  FillProgramFolder(files, executable, folder);
  FillProgramFolder(files, executable + R"(\..\share\tarnwick)", folder);

  NativeInstanceFolders instances;
  RunnerProcess runner;
  MDIForm1 shell(ports, instances, folder, executable);
  shell.Runner().Use(runner);
  MainWindow window(shell, files);
  MainView view(window, shell);
  if (const QStringList words = QApplication::arguments(); words.size() > 1) {
    const QString path = QFileInfo(words[1]).absoluteFilePath();
    view.OpenAfterStart(PathFromNative(path.toStdString()));
  }
  window.show();
  view.Load();
  return QApplication::exec();
}
