#include "fakes/fake_ports.h"

namespace tarnwick {

FakePorts::FakePorts() = default;

FakePorts::~FakePorts() = default;

FakeProfiles::FakeProfiles(CallLog& log, MemoryFiles& files)
    : log_(&log), files_(&files), inner_(files) {}

std::string FakeProfiles::Read(const std::string& path, std::string_view section,
                               std::string_view key, std::size_t buffer_size) {
  log_->Add("profile read [" + std::string(section) + "] " + std::string(key));
  files_->SetQuiet(true);
  std::string value = inner_.Read(path, section, key, buffer_size);
  files_->SetQuiet(false);
  return value;
}

bool FakeProfiles::Write(const std::string& path, std::string_view section, std::string_view key,
                         std::string_view value) {
  log_->Add("profile write [" + std::string(section) + "] " + std::string(key) + "=" +
            std::string(value));
  files_->SetQuiet(true);
  const bool written = inner_.Write(path, section, key, value);
  files_->SetQuiet(false);
  return written;
}

FakeProcesses::FakeProcesses(CallLog& log) : log_(&log) {}

bool FakeProcesses::StartHidden(const std::string& command_line) {
  log_->Add("start " + command_line);
  return Succeeds;
}

bool FakeProcesses::OpenDocument(const std::string& path) {
  log_->Add("open " + path);
  return Succeeds;
}

FakeMessages::FakeMessages(CallLog& log) : log_(&log) {}

void FakeMessages::Show(std::string_view text, std::string_view title) {
  log_->Add("show " + std::string(text));
  LastTitle = title;
}

bool FakeMessages::AskYesNo(std::string_view text, std::string_view title, MessageIcon icon) {
  log_->Add("ask " + std::string(text));
  LastTitle = title;
  LastIcon = icon;
  return Next().value_or(false);
}

std::optional<bool> FakeMessages::AskOrCancel(std::string_view text, std::string_view title) {
  log_->Add("ask " + std::string(text));
  LastTitle = title;
  LastIcon = MessageIcon::Question;
  return Next();
}

std::optional<bool> FakeMessages::Next() {
  if (Answers.empty()) return false;
  const std::optional<bool> answer = Answers.front();
  Answers.pop_front();
  return answer;
}

FakeDialogs::FakeDialogs(CallLog& log) : log_(&log) {}

std::optional<std::string> FakeDialogs::OpenFile(const FileDialogRequest& request) {
  log_->Add("dialog open");
  LastRequest = request;
  return Next(OpenAnswers);
}

std::optional<std::string> FakeDialogs::SaveFile(const FileDialogRequest& request) {
  log_->Add("dialog save");
  LastRequest = request;
  return Next(SaveAnswers);
}

std::optional<std::int32_t> FakeDialogs::PickColor(std::int32_t start) {
  log_->Add("dialog color");
  LastColor = start;
  return Next(ColorAnswers);
}

std::optional<FontChoice> FakeDialogs::PickFont(const FontChoice& start) {
  log_->Add("dialog font");
  LastFont = start;
  return Next(FontAnswers);
}

std::optional<std::string> FakeDialogs::PickFolder(const std::string& start) {
  log_->Add("dialog folder");
  LastFolder = start;
  return Next(FolderAnswers);
}

void FakeScreen::Yield() {
  ++Yields;
  if (OnYield) OnYield();
}

FakeGestures::FakeGestures(CallLog& log) : log_(&log) {}

void FakeGestures::TakeCapture() {
  log_->Add("capture");
  Captured = true;
}

void FakeGestures::ReleaseCapture() {
  log_->Add("release");
  Captured = false;
}

void FakeGestures::ConfineCursor() {
  log_->Add("confine");
  Confined = true;
}

void FakeGestures::FreeCursor() {
  log_->Add("free");
  Confined = false;
}

void FakeGestures::DrawRubberBand(const ScreenRect& rect) {
  log_->Add("band " + std::to_string(rect.Left) + "," + std::to_string(rect.Top) + "," +
            std::to_string(rect.Right) + "," + std::to_string(rect.Bottom));
}

void FakeGestures::TakeFocus() {
  log_->Add("focus");
}

}  // namespace tarnwick
