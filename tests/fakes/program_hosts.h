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

std::string Call(std::string_view name, const std::vector<std::string>& arguments);

/// A console that takes its input from `Input`, line by line, and its keys from `Keys`.
class LogConsole : public basic::ConsoleHost {
 public:
  explicit LogConsole(std::string& log);
  ~LogConsole() override;

  void Write(int page, std::string_view text) override;
  int Column(int page) override { return page == 0 ? column_ : 1; }
  int Row(int page) override { return page == 0 ? row_ : 1; }
  std::optional<std::string> ReadLine() override;
  std::string ReadBytes(std::size_t count) override;
  std::string Key() override;
  void Clear() override;
  void Locate(int row, int column) override;
  void Color(int text, int back) override;
  void CopyPage(int from, int to) override;
  int CharacterAt(int row, int column) override {
    return row == 1 && column >= 1 && column <= 3 ? "abc"[column - 1] : 0;
  }
  int Peek(std::int64_t address) override { return Bytes[address]; }
  void Poke(std::int64_t address, int byte) override;
  void SetTitle(std::string_view title) override;
  bool IsConsole() override { return true; }

  std::string Input;
  std::string Keys;
  std::map<std::int64_t, int> Bytes;

 private:
  void Log(std::string_view name, const std::vector<std::string>& arguments);

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
    explicit Stream(std::shared_ptr<File> file);
    std::string Read(std::size_t count) override;
    bool Write(std::string_view bytes) override;
    std::int64_t Position() override;
    bool Seek(std::int64_t position) override;
    std::int64_t Size() override;
    bool Resize(std::int64_t size) override;

   private:
    std::shared_ptr<File> file_;
    std::size_t at_ = 0;
  };

  ProgramFiles();
  ~ProgramFiles() override;
  void Add(std::string_view path, std::string_view bytes);
  /// The file's bytes; nothing when there is none.
  std::optional<std::string> BytesOf(std::string_view path);

  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  std::unique_ptr<basic::FileStream> Open(std::string_view path, basic::FileMode mode) override;
  bool Delete(std::string_view path) override;
  bool Rename(std::string_view from, std::string_view to) override;
  bool MakeFolder(std::string_view path) override;
  bool RemoveFolder(std::string_view path) override;
  bool ChangeFolder(std::string_view path) override;
  bool ChangeDrive(std::string_view drive) override;
  std::string CurrentFolder() override { return current_; }
  /// Masks "*" and "*.ext" and plain names in the current folder.
  std::vector<basic::FileEntry> List(std::string_view mask, int attributes) override;

 private:
  [[nodiscard]] std::string Full(std::string_view path) const;

  std::map<std::string, std::shared_ptr<File>> files_;
  std::set<std::string> folders_;
  std::string current_ = "C:\\work";
};

/// 29 February 2024, 13:05:09.250; sleeping moves it on.
class StillClock : public basic::ClockHost {
 public:
  explicit StillClock(std::string& log);
  basic::LocalTime Now() override { return {2024, 2, 29, 13, 5, 9, 250}; }
  void Sleep(double seconds) override;
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
  explicit LogSystem(std::string& log);
  ~LogSystem() override;
  const std::vector<std::string>& Arguments() override { return ProgramArguments; }
  std::string Environment(std::string_view name) override;
  bool SetEnvironment(std::string_view name, std::string_view value) override;
  std::int64_t Start(std::string_view command, int show) override;
  int MessageBox(std::string_view text, std::string_view title, int flags) override;
  void Sound(double hertz, double milliseconds) override;
  bool PlayWave(std::string_view path, int flags) override;

  std::vector<std::string> ProgramArguments = {"first", "second one"};
  std::map<std::string, std::string> Variables = {{"LEVEL", "3"}};

 private:
  std::string& log_;
};

}  // namespace tarnwick::test
