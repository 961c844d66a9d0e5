#include "fakes/program_hosts.h"

namespace tarnwick::test {

std::string Call(std::string_view name, const std::vector<std::string>& arguments) {
  std::string text = "<" + std::string(name);
  for (const std::string& argument : arguments) text += " " + argument;
  return text + ">";
}

LogConsole::LogConsole(std::string& log) : log_(log) {}

LogConsole::~LogConsole() = default;

void LogConsole::Write(int page, std::string_view text) {
  if (page != 0) return Log("Page", {std::to_string(page), std::string(text)});
  log_ += text;
  for (const char c : text) column_ = c == '\n' ? 1 : column_ + 1;
  row_ += static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

std::optional<std::string> LogConsole::ReadLine() {
  if (Input.empty()) return std::nullopt;
  const std::size_t end = std::min(Input.size(), Input.find('\n'));
  std::string line = Input.substr(0, end);
  Input.erase(0, end + 1);
  return line;
}

std::string LogConsole::ReadBytes(std::size_t count) {
  std::string bytes = Input.substr(0, count);
  Input.erase(0, count);
  return bytes;
}

std::string LogConsole::Key() {
  std::string key = Keys.substr(0, 1);
  Keys.erase(0, 1);
  return key;
}

void LogConsole::Clear() {
  row_ = column_ = 1;
  Log("Clear", {});
}

void LogConsole::Locate(int row, int column) {
  row_ = row;
  column_ = column;
  Log("Locate", {std::to_string(row), std::to_string(column)});
}

void LogConsole::Color(int text, int back) {
  Log("Color", {std::to_string(text), std::to_string(back)});
}

void LogConsole::CopyPage(int from, int to) {
  Log("CopyPage", {std::to_string(from), std::to_string(to)});
}

void LogConsole::Poke(std::int64_t address, int byte) {
  Bytes[address] = byte;
}

void LogConsole::SetTitle(std::string_view title) {
  Log("Title", {std::string(title)});
}

void LogConsole::Log(std::string_view name, const std::vector<std::string>& arguments) {
  log_ += Call(name, arguments);
}

ProgramFiles::Stream::Stream(std::shared_ptr<File> file) : file_(std::move(file)) {}

std::string ProgramFiles::Stream::Read(std::size_t count) {
  if (at_ >= file_->Bytes.size()) return {};
  std::string bytes = file_->Bytes.substr(at_, count);
  at_ += bytes.size();
  return bytes;
}

bool ProgramFiles::Stream::Write(std::string_view bytes) {
  if (file_->Bytes.size() < at_ + bytes.size()) file_->Bytes.resize(at_ + bytes.size());
  file_->Bytes.replace(at_, bytes.size(), bytes);
  at_ += bytes.size();
  return true;
}

std::int64_t ProgramFiles::Stream::Position() {
  return static_cast<std::int64_t>(at_);
}

bool ProgramFiles::Stream::Seek(std::int64_t position) {
  if (position < 0) return false;
  at_ = static_cast<std::size_t>(position);
  return true;
}

std::int64_t ProgramFiles::Stream::Size() {
  return static_cast<std::int64_t>(file_->Bytes.size());
}

bool ProgramFiles::Stream::Resize(std::int64_t size) {
  if (size < 0) return false;
  file_->Bytes.resize(static_cast<std::size_t>(size));
  return true;
}

ProgramFiles::ProgramFiles() {
  for (const char* folder : {"C:", "C:\\work", "C:\\work\\sub", "D:"}) folders_.insert(folder);
}

ProgramFiles::~ProgramFiles() = default;

void ProgramFiles::Add(std::string_view path, std::string_view bytes) {
  const std::string full = Full(path);
  files_[Lower(full)] = std::make_shared<File>(File{full, std::string(bytes)});
}

std::optional<std::string> ProgramFiles::BytesOf(std::string_view path) {
  const auto found = files_.find(Lower(Full(path)));
  if (found == files_.end()) return std::nullopt;
  return found->second->Bytes;
}

bool ProgramFiles::FileExists(std::string_view path) {
  return BytesOf(path).has_value();
}

bool ProgramFiles::FolderExists(std::string_view path) {
  return !path.empty() && folders_.contains(Full(path));
}

std::unique_ptr<basic::FileStream> ProgramFiles::Open(std::string_view path, basic::FileMode mode) {
  if (mode == basic::FileMode::Create) {
    if (path.empty()) return nullptr;
    Add(path, "");
  }
  const auto found = files_.find(Lower(Full(path)));
  if (found == files_.end()) return nullptr;
  return std::make_unique<Stream>(found->second);
}

bool ProgramFiles::Delete(std::string_view path) {
  return files_.erase(Lower(Full(path))) > 0;
}

bool ProgramFiles::Rename(std::string_view from, std::string_view to) {
  const std::optional<std::string> bytes = BytesOf(from);
  if (!bytes || to.empty() || FileExists(to)) return false;
  Delete(from);
  Add(to, *bytes);
  return true;
}

bool ProgramFiles::MakeFolder(std::string_view path) {
  return !path.empty() && folders_.insert(Full(path)).second;
}

bool ProgramFiles::RemoveFolder(std::string_view path) {
  return !path.empty() && folders_.erase(Full(path)) > 0;
}

bool ProgramFiles::ChangeFolder(std::string_view path) {
  if (!FolderExists(path)) return false;
  current_ = Full(path);
  return true;
}

bool ProgramFiles::ChangeDrive(std::string_view drive) {
  if (drive.empty() || !folders_.contains(Upper(drive.substr(0, 1)) + ":")) return false;
  current_ = Upper(drive.substr(0, 1)) + ":";
  return true;
}

std::vector<basic::FileEntry> ProgramFiles::List(std::string_view mask, int attributes) {
  std::vector<basic::FileEntry> found;
  const std::size_t named = mask.rfind('\\');
  const bool here = named == std::string_view::npos;
  const std::string lower = Lower(here ? mask : mask.substr(named + 1));
  const std::string folder = here ? current_ + "\\" : std::string(mask.substr(0, named + 1));
  const auto add = [&](const std::string& path, std::size_t size, int bits) {
    if (!path.starts_with(folder)) return;
    const std::string name = path.substr(folder.size());
    if (name.find('\\') != std::string::npos) return;
    const bool fits = lower == "*" || lower == "*.*" || Lower(name) == lower ||
                      (lower.starts_with("*") && Lower(name).ends_with(lower.substr(1)));
    if (!fits) return;
    basic::FileEntry entry{name, static_cast<std::int64_t>(size), {}, bits};
    entry.Changed = {2024, 2, 29, 13, 5, 9, 0};
    found.push_back(entry);
  };
  if ((attributes & 16) != 0) {
    for (const std::string& path : folders_) add(path, 0, 16);
  }
  for (const auto& [key, file] : files_) add(file->Path, file->Bytes.size(), 32);
  return found;
}

std::string ProgramFiles::Full(std::string_view path) const {
  std::string full(path);
  if (full.find(':') == std::string::npos) full = current_ + "\\" + full;
  while (full.ends_with('\\')) full.pop_back();
  return full;
}

StillClock::StillClock(std::string& log) : log_(log) {}

void StillClock::Sleep(double seconds) {
  log_ += Call("Sleep", {std::to_string(seconds)});
}

LogSystem::LogSystem(std::string& log) : log_(log) {}

LogSystem::~LogSystem() = default;

std::string LogSystem::Environment(std::string_view name) {
  const auto found = Variables.find(std::string(name));
  return found == Variables.end() ? std::string() : found->second;
}

bool LogSystem::SetEnvironment(std::string_view name, std::string_view value) {
  Variables[std::string(name)] = value;
  return true;
}

std::int64_t LogSystem::Start(std::string_view command, int show) {
  log_ += Call("Start", {std::string(command), std::to_string(show)});
  return command.empty() ? 0 : 77;
}

int LogSystem::MessageBox(std::string_view text, std::string_view title, int flags) {
  log_ += Call("Box", {std::string(text), std::string(title), std::to_string(flags)});
  return (flags & 7) == 4 ? 6 : 1;
}

void LogSystem::Sound(double hertz, double milliseconds) {
  log_ += Call("Sound", {std::to_string(hertz), std::to_string(milliseconds)});
}

bool LogSystem::PlayWave(std::string_view path, int flags) {
  log_ += Call("Wave", {std::string(path), std::to_string(flags)});
  return !path.empty();
}

}  // namespace tarnwick::test
