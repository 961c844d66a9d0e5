// Hosts of a running program that keep everything in memory. What the program does to the world
// goes into one log: printed text as it stands, other calls in angle brackets.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "basic/hosts/clock_host.h"
#include "basic/hosts/console_host.h"
#include "basic/hosts/file_host.h"
#include "basic/hosts/printer_host.h"
#include "basic/hosts/system_host.h"
#include "text/code_page.h"

namespace tarnwick::test {

inline std::string Call(std::string_view name, const std::vector<std::string>& arguments) {
  std::string text = "<" + std::string(name);
  for (const std::string& argument : arguments) text += " " + argument;
  return text + ">";
}

/// A console that takes its input from `Input`, line by line, and its keys from `Keys`.
class LogConsole : public basic::ConsoleHost {
 public:
  explicit LogConsole(std::string& log) : log_(log) {}

  void Write(int page, std::string_view text) override {
    if (page != 0) return Log("Page", {std::to_string(page), std::string(text)});
    log_ += text;
    for (const char c : text) column_ = c == '\n' ? 1 : column_ + 1;
    row_ += static_cast<int>(std::count(text.begin(), text.end(), '\n'));
  }
  int Column(int page) override { return page == 0 ? column_ : 1; }
  int Row(int page) override { return page == 0 ? row_ : 1; }
  std::optional<std::string> ReadLine() override {
    if (Input.empty()) return std::nullopt;
    const std::size_t end = std::min(Input.size(), Input.find('\n'));
    std::string line = Input.substr(0, end);
    Input.erase(0, end + 1);
    return line;
  }
  std::string ReadBytes(std::size_t count) override {
    std::string bytes = Input.substr(0, count);
    Input.erase(0, count);
    return bytes;
  }
  std::string Key() override {
    std::string key = Keys.substr(0, 1);
    Keys.erase(0, 1);
    return key;
  }
  void Clear() override {
    row_ = column_ = 1;
    Log("Clear", {});
  }
  void Locate(int row, int column) override {
    row_ = row;
    column_ = column;
    Log("Locate", {std::to_string(row), std::to_string(column)});
  }
  void Color(int text, int back) override {
    Log("Color", {std::to_string(text), std::to_string(back)});
  }
  void CopyPage(int from, int to) override {
    Log("CopyPage", {std::to_string(from), std::to_string(to)});
  }
  int CharacterAt(int row, int column) override {
    return row == 1 && column >= 1 && column <= 3 ? "abc"[column - 1] : 0;
  }
  int Peek(std::int64_t address) override { return Bytes[address]; }
  void Poke(std::int64_t address, int byte) override { Bytes[address] = byte; }
  void SetTitle(std::string_view title) override { Log("Title", {std::string(title)}); }
  bool IsConsole() override { return true; }

  std::string Input;
  std::string Keys;
  std::map<std::int64_t, int> Bytes;

 private:
  void Log(std::string_view name, const std::vector<std::string>& arguments) {
    log_ += Call(name, arguments);
  }

  std::string& log_;
  int row_ = 1;
  int column_ = 1;
};

/// Files and folders in memory. Relative paths count from the current folder.
class ProgramFiles : public basic::FileHost {
 public:
  struct File {
    std::string Path;
    std::string Bytes;
  };

  class Stream : public basic::FileStream {
   public:
    explicit Stream(std::shared_ptr<File> file) : file_(std::move(file)) {}
    std::string Read(std::size_t count) override {
      if (at_ >= file_->Bytes.size()) return {};
      std::string bytes = file_->Bytes.substr(at_, count);
      at_ += bytes.size();
      return bytes;
    }
    bool Write(std::string_view bytes) override {
      if (file_->Bytes.size() < at_ + bytes.size()) file_->Bytes.resize(at_ + bytes.size());
      file_->Bytes.replace(at_, bytes.size(), bytes);
      at_ += bytes.size();
      return true;
    }
    std::int64_t Position() override { return static_cast<std::int64_t>(at_); }
    bool Seek(std::int64_t position) override {
      if (position < 0) return false;
      at_ = static_cast<std::size_t>(position);
      return true;
    }
    std::int64_t Size() override { return static_cast<std::int64_t>(file_->Bytes.size()); }
    bool Resize(std::int64_t size) override {
      if (size < 0) return false;
      file_->Bytes.resize(static_cast<std::size_t>(size));
      return true;
    }

   private:
    std::shared_ptr<File> file_;
    std::size_t at_ = 0;
  };

  ProgramFiles() {
    for (const char* folder : {"C:", "C:\\work", "C:\\work\\sub", "D:"}) folders_.insert(folder);
  }
  void Add(std::string_view path, std::string_view bytes) {
    const std::string full = Full(path);
    files_[Lower(full)] = std::make_shared<File>(File{full, std::string(bytes)});
  }
  /// The file's bytes; nothing when there is none.
  std::optional<std::string> BytesOf(std::string_view path) {
    const auto found = files_.find(Lower(Full(path)));
    if (found == files_.end()) return std::nullopt;
    return found->second->Bytes;
  }

  bool FileExists(std::string_view path) override { return BytesOf(path).has_value(); }
  bool FolderExists(std::string_view path) override {
    return !path.empty() && folders_.contains(Full(path));
  }
  std::unique_ptr<basic::FileStream> Open(std::string_view path, basic::FileMode mode) override {
    if (mode == basic::FileMode::Create) {
      if (path.empty()) return nullptr;
      Add(path, "");
    }
    const auto found = files_.find(Lower(Full(path)));
    if (found == files_.end()) return nullptr;
    return std::make_unique<Stream>(found->second);
  }
  bool Delete(std::string_view path) override { return files_.erase(Lower(Full(path))) > 0; }
  bool Rename(std::string_view from, std::string_view to) override {
    const std::optional<std::string> bytes = BytesOf(from);
    if (!bytes || to.empty() || FileExists(to)) return false;
    Delete(from);
    Add(to, *bytes);
    return true;
  }
  bool MakeFolder(std::string_view path) override {
    return !path.empty() && folders_.insert(Full(path)).second;
  }
  bool RemoveFolder(std::string_view path) override {
    return !path.empty() && folders_.erase(Full(path)) > 0;
  }
  bool ChangeFolder(std::string_view path) override {
    if (!FolderExists(path)) return false;
    current_ = Full(path);
    return true;
  }
  bool ChangeDrive(std::string_view drive) override {
    if (drive.empty() || !folders_.contains(Upper(drive.substr(0, 1)) + ":")) return false;
    current_ = Upper(drive.substr(0, 1)) + ":";
    return true;
  }
  std::string CurrentFolder() override { return current_; }
  /// Masks "*" and "*.ext" and plain names in the current folder.
  std::vector<basic::FileEntry> List(std::string_view mask, int attributes) override {
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

 private:
  [[nodiscard]] std::string Full(std::string_view path) const {
    std::string full(path);
    if (full.find(':') == std::string::npos) full = current_ + "\\" + full;
    while (full.ends_with('\\')) full.pop_back();
    return full;
  }

  std::map<std::string, std::shared_ptr<File>> files_;
  std::set<std::string> folders_;
  std::string current_ = "C:\\work";
};

/// 29 February 2024, 13:05:09.250; sleeping moves it on.
class StillClock : public basic::ClockHost {
 public:
  explicit StillClock(std::string& log) : log_(log) {}
  basic::LocalTime Now() override { return {2024, 2, 29, 13, 5, 9, 250}; }
  void Sleep(double seconds) override { log_ += Call("Sleep", {std::to_string(seconds)}); }
  std::uint64_t Seed() override { return 1; }

 private:
  std::string& log_;
};

/// Prints into the log, with "/" for each line end.
class LogPrinter : public basic::PrinterHost {
 public:
  explicit LogPrinter(std::string& log) : log_(log) {}
  void Write(std::string_view text) override {
    for (const char byte : text) gathered_ += byte == '\n' ? '/' : byte;
  }
  int Column() override {
    const std::size_t end = gathered_.rfind('/');
    return static_cast<int>(gathered_.size() - (end == std::string::npos ? 0 : end + 1)) + 1;
  }
  void Flush() override {
    if (!gathered_.empty()) log_ += Call("Pages", {std::exchange(gathered_, {})});
  }

 private:
  std::string& log_;
  std::string gathered_;
};

class LogSystem : public basic::SystemHost {
 public:
  explicit LogSystem(std::string& log) : log_(log) {}
  const std::vector<std::string>& Arguments() override { return ProgramArguments; }
  std::string Environment(std::string_view name) override {
    const auto found = Variables.find(std::string(name));
    return found == Variables.end() ? std::string() : found->second;
  }
  bool SetEnvironment(std::string_view name, std::string_view value) override {
    Variables[std::string(name)] = value;
    return true;
  }
  std::int64_t Start(std::string_view command, int show) override {
    log_ += Call("Start", {std::string(command), std::to_string(show)});
    return command.empty() ? 0 : 77;
  }
  int MessageBox(std::string_view text, std::string_view title, int flags) override {
    log_ += Call("Box", {std::string(text), std::string(title), std::to_string(flags)});
    return (flags & 7) == 4 ? 6 : 1;
  }
  void Sound(double hertz, double milliseconds) override {
    log_ += Call("Sound", {std::to_string(hertz), std::to_string(milliseconds)});
  }
  bool PlayWave(std::string_view path, int flags) override {
    log_ += Call("Wave", {std::string(path), std::to_string(flags)});
    return !path.empty();
  }

  std::vector<std::string> ProgramArguments = {"first", "second one"};
  std::map<std::string, std::string> Variables = {{"LEVEL", "3"}};

 private:
  std::string& log_;
};

}  // namespace tarnwick::test
