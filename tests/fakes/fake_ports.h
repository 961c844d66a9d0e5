// The recording fakes of all ports, with scripted answers, over one log.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "fakes/call_log.h"
#include "fakes/memory_files.h"
#include "platform/ports.h"
#include "platform/profile_files.h"

namespace tarnwick {

/// Profile files kept in a MemoryFiles, so that deleting the file forgets its keys. Log entries:
/// "profile read [S] K", "profile write [S] K=V".
class FakeProfiles final : public ProfilePort {
 public:
  FakeProfiles(CallLog& log, MemoryFiles& files);

  [[nodiscard]] std::string Read(const std::string& path, std::string_view section,
                                 std::string_view key, std::size_t buffer_size) override;
  bool Write(const std::string& path, std::string_view section, std::string_view key,
             std::string_view value) override;

 private:
  CallLog* log_;
  MemoryFiles* files_;
  ProfileFiles inner_;
};

/// Log entries: "start C", "open P".
class FakeProcesses final : public ProcessPort {
 public:
  explicit FakeProcesses(CallLog& log);
  bool Succeeds = true;  ///< what both calls answer

  bool StartHidden(const std::string& command_line) override;
  bool OpenDocument(const std::string& path) override;

 private:
  CallLog* log_;
};

/// Log entries: "show TEXT", "ask TEXT". Questions without a scripted answer get No.
class FakeMessages final : public MessagePort {
 public:
  explicit FakeMessages(CallLog& log);
  /// The answers to come, true for Yes; nothing closes the box, which is No where it must be one.
  std::deque<std::optional<bool>> Answers;
  std::string LastTitle;
  MessageIcon LastIcon = MessageIcon::None;

  void Show(std::string_view text, std::string_view title) override;
  [[nodiscard]] bool AskYesNo(std::string_view text, std::string_view title,
                              MessageIcon icon) override;
  [[nodiscard]] std::optional<bool> AskOrCancel(std::string_view text,
                                                std::string_view title) override;

 private:
  std::optional<bool> Next();

  CallLog* log_;
};

/// Log entries: "dialog open", "dialog save", "dialog color", "dialog font", "dialog folder". A
/// dialog without a scripted answer is cancelled; a scripted nullopt cancels that one.
class FakeDialogs final : public DialogPort {
 public:
  explicit FakeDialogs(CallLog& log);
  std::deque<std::optional<std::string>> OpenAnswers;
  std::deque<std::optional<std::string>> SaveAnswers;
  std::deque<std::optional<std::int32_t>> ColorAnswers;
  std::deque<std::optional<FontChoice>> FontAnswers;
  std::deque<std::optional<std::string>> FolderAnswers;
  FileDialogRequest LastRequest;  ///< of the last open or save dialog
  std::optional<std::int32_t> LastColor;
  std::optional<FontChoice> LastFont;
  std::string LastFolder;

  std::optional<std::string> OpenFile(const FileDialogRequest& request) override;
  std::optional<std::string> SaveFile(const FileDialogRequest& request) override;
  std::optional<std::int32_t> PickColor(std::int32_t start) override;
  std::optional<FontChoice> PickFont(const FontChoice& start) override;
  std::optional<std::string> PickFolder(const std::string& start) override;

 private:
  template <typename Answer>
  static std::optional<Answer> Next(std::deque<std::optional<Answer>>& answers) {
    if (answers.empty()) return std::nullopt;
    std::optional<Answer> answer = answers.front();
    answers.pop_front();
    return answer;
  }

  CallLog* log_;
};

/// Counts yields; they make no log entry, since long loops make many.
class FakeScreen final : public ScreenPort {
 public:
  int Yields = 0;
  std::function<void()> OnYield;

  void Yield() override;
};

/// Log entries: "capture", "release", "confine", "free", "band L,T,R,B", "focus".
class FakeGestures final : public GesturePort {
 public:
  explicit FakeGestures(CallLog& log);
  ScreenPoint Cursor;
  ScreenPoint Origin;
  bool Captured = false;
  bool Confined = false;

  void TakeCapture() override;
  void ReleaseCapture() override;
  void ConfineCursor() override;
  void FreeCursor() override;
  [[nodiscard]] ScreenPoint CursorPosition() override { return Cursor; }
  [[nodiscard]] ScreenPoint ClientOrigin() override { return Origin; }
  void DrawRubberBand(const ScreenRect& rect) override;
  void TakeFocus() override;

 private:
  CallLog* log_;
};

/// All fakes of one test; `All()` is what the logic takes.
struct FakePorts {
  CallLog Log;
  MemoryFiles Files{Log};
  FakeProfiles Profiles{Log, Files};
  FakeProcesses Processes{Log};
  FakeMessages Messages{Log};
  FakeDialogs Dialogs{Log};
  FakeScreen Screen;
  FakeGestures Gestures{Log};

  FakePorts();
  ~FakePorts();
  FakePorts(const FakePorts&) = delete;
  FakePorts& operator=(const FakePorts&) = delete;

  [[nodiscard]] Ports All() { return Ports{Files, Profiles, Processes, Messages, Dialogs, Screen}; }
};

}  // namespace tarnwick
