#include "platform/native_process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/command_line.h"
#include "platform/native_path.h"
#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

bool IsPlainFile(const std::string& native) {
  struct stat info {};
  return ::stat(native.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

/// The machine path of a program; as on Windows ".exe" need not be written out.
std::optional<std::string> FindProgram(const std::string& path) {
  for (const std::string& name : {path, path + ".exe"}) {
    std::optional<std::string> native = FindNative(name);
    if (native && IsPlainFile(*native)) return native;
  }
  return std::nullopt;
}

bool IsWindowsProgram(const std::string& native) {
  const int file = ::open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return false;
  std::array<char, 2> mark{};
  const bool is_one =
      ::read(file, mark.data(), mark.size()) == 2 && mark[0] == 'M' && mark[1] == 'Z';
  ::close(file);
  return is_one;
}

/// A command of that name on the search path.
std::optional<std::string> FindCommand(const std::string& name) {
  const char* const path = std::getenv("PATH");
  if (path == nullptr) return std::nullopt;
  for (const std::string_view folder : Split(path, ":")) {
    std::string command = (folder.empty() ? "." : std::string(folder)) + "/" + name;
    if (IsPlainFile(command) && ::access(command.c_str(), X_OK) == 0) return command;
  }
  return std::nullopt;
}

/// In the child: no input, no output, no signal settings of the parent. Only calls that are safe
/// between fork and exec.
void DropSurroundings(int null_file) {
  ::dup2(null_file, STDIN_FILENO);
  ::dup2(null_file, STDOUT_FILENO);
  ::dup2(null_file, STDERR_FILENO);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  ::signal(SIGPIPE, SIG_DFL);
  ::signal(SIGCHLD, SIG_DFL);
}

/// In the child: forks once more, so that no parent has to wait for the program, and loads it. A
/// failure is reported through the pipe, which closes by itself when the program is loaded.
[[noreturn]] void BecomeProgram(char* const* arguments, int null_file, int report) {
  ::setsid();
  const pid_t program = ::fork();
  if (program > 0) ::_exit(0);
  if (program == 0) {
    DropSurroundings(null_file);
    ::execv(arguments[0], arguments);
  }
  const char failed = 1;
  const ssize_t written = ::write(report, &failed, 1);
  ::_exit(written == 1 ? 1 : 2);
}

/// Reads from the pipe until it closes; true when it carried no byte.
bool ClosedWithoutBytes(int report) {
  char failed = 0;
  for (;;) {
    const ssize_t got = ::read(report, &failed, 1);
    if (got == 0) return true;
    if (got > 0 || errno != EINTR) return false;
  }
}

/// Starts a program; the first of `words` is its machine path.
bool Start(std::vector<std::string> words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);

  const int null_file = ::open("/dev/null", O_RDWR | O_CLOEXEC);
  if (null_file < 0) return false;
  std::array<int, 2> report{};
  if (::pipe2(report.data(), O_CLOEXEC) != 0) {
    ::close(null_file);
    return false;
  }
  const pid_t child = ::fork();
  if (child == 0) BecomeProgram(arguments.data(), null_file, report[1]);
  ::close(null_file);
  ::close(report[1]);
  bool started = false;
  if (child > 0) {
    started = ClosedWithoutBytes(report[0]);
    // The child between ends at once.
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  ::close(report[0]);
  return started;
}

}  // namespace

bool NativeProcess::StartHidden(const std::string& command_line) {
  for (const ProgramChoice& choice : ProgramChoices(command_line)) {
    const std::optional<std::string> program = FindProgram(choice.Program);
    if (!program) continue;
    std::vector<std::string> words;
    if (IsWindowsProgram(*program)) {
      const std::optional<std::string> wine = FindCommand("wine");
      if (!wine) return false;
      words.push_back(*wine);
    }
    words.push_back(*program);
    for (const std::string& argument : SplitArguments(choice.Rest)) {
      words.push_back(CodePageToUtf8(argument));
    }
    return Start(std::move(words));
  }
  return false;
}

bool NativeProcess::OpenDocument(const std::string& path) {
  const std::optional<std::string> native = FindNative(path);
  const std::optional<std::string> opener = FindCommand("xdg-open");
  return native && opener && Start({*opener, *native});
}

}  // namespace tarnwick
