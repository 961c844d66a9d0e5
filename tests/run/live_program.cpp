#include "run/live_program.h"

#include <QApplication>
#include <algorithm>

#include <gtest/gtest.h>

#include "looks/text_bridge.h"
#include "objects/class_table.h"
#include "run/classic_palette.h"
#include "text/path_text.h"

namespace tarnwick::test {

LiveProgram::LiveProgram(const std::string& text, const std::string& path,
                         std::vector<std::string> words)
    : system_(std::move(words), stderr) {
  run::ApplyClassicLook(*qApp);
  QApplication::setQuitOnLastWindowClosed(false);
  std::string file = path;
  if (file.empty()) {
    Folder.Write("main.bas", text);
    file = Folder.Native("main.bas");
  }
  ExeName = Folder.Path("main.exe");
  Program = hosts::PrepareProgram(file, objects::ClassTable(), {});
  for (const basic::Message& message : Program.Found.All()) {
    const bool error = message.Level == basic::Severity::Error;
    Faults +=
        (error ? "" : "note: ") + std::to_string(message.At.Line) + ": " + message.Text + "\n";
  }
}

LiveProgram::~LiveProgram() = default;

void LiveProgram::Step() {
  // A timer does not fire while it is being handled: the next step has one of its own.
  if (next_ <= steps_.size()) QTimer::singleShot(pause_, &context_, [this] { Step(); });
  // What the user does comes to a program that waits for events, not for data.
  if (Stage.Quiet()) return;
  // The user waits for a window that has just been shown to become the active one.
  const QWidgetList windows = QApplication::topLevelWidgets();
  const bool shown = std::any_of(windows.begin(), windows.end(),
                                 [](const QWidget* window) { return window->isVisible(); });
  // A dialog that was left may have made none active: later steps wait a moment only.
  const int patience = next_ == 0 ? 100 : 10;
  if (shown && QApplication::activeWindow() == nullptr && ++waited_ < patience) return;
  waited_ = 0;
  if (next_ < steps_.size()) {
    const std::function<void()> step = steps_[next_++];
    ++depth_;
    try {
      step();
    } catch (const std::exception& fault) {
      ADD_FAILURE() << "step " << next_ << ": " << fault.what();
    }
    --depth_;
    return;
  }
  // The last step may wait for a window that it opened.
  if (depth_ > 0 && ++left_open_ < 250) return;
  ++next_;
  machine_->Terminate();
}

void LiveProgram::Run() {
  ASSERT_TRUE(Program.Good) << Faults;
  objects::ProgramFacts facts;
  facts.ExeName = ExeName;
  facts.Title = "main";
  facts.Resources = Program.Resources;
  World = std::make_unique<objects::ObjectWorld>(Stage, &files_, std::move(facts));
  Stage.Connect(*World);
  World->UseNetwork(Network);
  basic::RunOptions options;
  options.MaxSeconds = 30;
  machine_ = std::make_unique<basic::Machine>(
      Program.Code,
      basic::Hosts{&console_, World.get(), &files_, &clock_, &system_, &natives_, &Lines}, options);
  machine_->SetResources(Program.Resources);
  World->Connect(*machine_);
  QTimer::singleShot(pause_, &context_, [this] { Step(); });
  Result = machine_->Run();
  EXPECT_GE(next_, steps_.size()) << "steps were left: " << Result.Text;
}

QWidget* LiveProgram::Widget(std::string_view name) const {
  const QString wanted = looks::ToQString(name);
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->objectName() == wanted) return window;
    if (auto* const found = window->findChild<QWidget*>(wanted)) return found;
  }
  return nullptr;
}

const objects::ObjectRecord& LiveProgram::Object(std::string_view name) const {
  const objects::ObjectRecord* found = nullptr;
  World->ForEach([&](const objects::ObjectRecord& record) {
    if (record.FullName() == name) found = &record;
  });
  if (found == nullptr) throw std::runtime_error("no object " + std::string(name));
  return *found;
}

std::string LiveProgram::Get(std::string_view object, std::string_view property) const {
  const objects::ObjectRecord& record = Object(object);
  const objects::MemberInfo* const member = record.Info().Find(property);
  if (member == nullptr) throw std::runtime_error("no property " + std::string(property));
  basic::Value value;
  World->Get(record.Id, member->Facts.Id, {}, value);
  return value.AsText();
}

std::string FormWith(const std::string& objects, const std::string& code) {
  return "DIM F AS QFORM\nF.Left = 40: F.Top = 40: F.Width = 320: F.Height = 240\n" + objects +
         "\n" + code + "\nF.ShowModal\n";
}

}  // namespace tarnwick::test
