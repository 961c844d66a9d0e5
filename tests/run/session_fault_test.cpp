// A run that meets a fault of the runner itself.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <cstdlib>
#include <stdexcept>

#include <gtest/gtest.h>

#include "fakes/program_hosts.h"
#include "fakes/temporary_folder.h"
#include "fakes/text_stream.h"
#include "run/session.h"

namespace tarnwick {
namespace {

class BrokenConsole final : public test::LogConsole {
 public:
  BrokenConsole() : LogConsole(log_) {}
  void Write(int, std::string_view) override { throw std::runtime_error("the console broke"); }

 private:
  std::string log_;
};

TEST(SessionFaultTest, AFaultOfTheRunnerEndsWithItsCodeAndNamesItsReport) {
  const TemporaryFolder folder;
  ::setenv("XDG_DATA_HOME", folder.Native().c_str(), 1);
  folder.Write("p.bas", "DIM F AS QFORM\nF.Caption = \"a\"\nPRINT 1\n");
  run::RunnerArguments arguments;
  arguments.Source = folder.Native("p.bas");
  arguments.Report = hosts::ReportForm::Tab;
  const test::TextStream out;
  const test::TextStream err;
  BrokenConsole console;
  // It is shown, since no other program does that.
  QString shown;
  QTimer closing;
  QObject::connect(&closing, &QTimer::timeout, &closing, [&] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    shown = box->findChild<QLabel*>(QStringLiteral("What"))->text();
    box->reject();
  });
  closing.start(10);
  const hosts::RunExit exit = run::RunSession(arguments, {stdin, out.File(), err.File(), &console});
  ::unsetenv("XDG_DATA_HOME");
  EXPECT_TRUE(shown.startsWith(QStringLiteral("fault of the runner: the console broke")))
      << shown.toStdString();
  EXPECT_EQ(exit, hosts::RunExit::Fault);
  const std::string head = "start\nerror\t\t0\t0\t0\tfault of the runner: the console broke, " +
                           folder.Native("p.bas") + ":3:1. A report is in " +
                           folder.Native("tarnwick/run-fault-");
  EXPECT_TRUE(err.Text().starts_with(head)) << err.Text();
  EXPECT_TRUE(err.Text().ends_with(".txt\nend\t6\n")) << err.Text();
}

}  // namespace
}  // namespace tarnwick
