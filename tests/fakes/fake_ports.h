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
  FakeProfiles(CallLog& log, MemoryFiles& files) : log_(&log), files_(&files), inner_(files) {}

  [[nodiscard]] std::string Read(const std::string& path, std::string_view section,
                                 std::string_view key, std::size_t buffer_size) override {
    log_->Add("profile read [" + std::string(section) + "] " + std::string(key));
    files_->SetQuiet(true);
    std::string value = inner_.Read(path, section, key, buffer_size);
    files_->SetQuiet(false);
    return value;
  }
  bool Write(const std::string& path, std::string_view section, std::string_view key,
             std::string_view value) override {
    log_->Add("profile write [" + std::string(section) + "] " + std::string(key) + "=" +
              std::string(value));
    files_->SetQuiet(true);
    const bool written = inner_.Write(path, section, key, value);
    files_->SetQuiet(false);
    return written;
  }

 private:
  CallLog* log_;
  MemoryFiles* files_;
  ProfileFiles inner_;
};

/// Log entries: "start C", "open P".
class FakeProcesses final : public ProcessPort {
 public:
  explicit FakeProcesses(CallLog& log) : log_(&log) {}
  bool Succeeds = true;  ///< what both calls answer

  bool StartHidden(const std::string& command_line) override {
    log_->Add("start " + command_line);
    return Succeeds;
  }
  bool OpenDocument(const std::string& path) override {
    log_->Add("open " + path);
    return Succeeds;
  }

 private:
  CallLog* log_;
};

/// Log entries: "show TEXT", "ask TEXT". Questions without a scripted answer get No.
class FakeMessages final : public MessagePort {
 public:
  explicit FakeMessages(CallLog& log) : log_(&log) {}
  /// The answers to come, true for Yes; nothing closes the box, which is No where it must be one.
  std::deque<std::optional<bool>> Answers;
  std::string LastTitle;
  MessageIcon LastIcon = MessageIcon::None;

  void Show(std::string_view text, std::string_view title) override {
    log_->Add("show " + std::string(text));
    LastTitle = title;
  }
  [[nodiscard]] bool AskYesNo(std::string_view text, std::string_view title,
                              MessageIcon icon) override {
    log_->Add("ask " + std::string(text));
    LastTitle = title;
    LastIcon = icon;
    return Next().value_or(false);
  }
  [[nodiscard]] std::optional<bool> AskOrCancel(std::string_view text,
                                                std::string_view title) override {
    log_->Add("ask " + std::string(text));
    LastTitle = title;
    LastIcon = MessageIcon::Question;
    return Next();
  }

 private:
  std::optional<bool> Next() {
    if (Answers.empty()) return false;
    const std::optional<bool> answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  CallLog* log_;
};

/// Log entries: "dialog open", "dialog save", "dialog color", "dialog font", "dialog folder". A
/// dialog without a scripted answer is cancelled; a scripted nullopt cancels that one.
class FakeDialogs final : public DialogPort {
 public:
  explicit FakeDialogs(CallLog& log) : log_(&log) {}
  std::deque<std::optional<std::string>> OpenAnswers;
  std::deque<std::optional<std::string>> SaveAnswers;
  std::deque<std::optional<std::int32_t>> ColorAnswers;
  std::deque<std::optional<FontChoice>> FontAnswers;
  std::deque<std::optional<std::string>> FolderAnswers;
  FileDialogRequest LastRequest;  ///< of the last open or save dialog
  std::optional<std::int32_t> LastColor;
  std::optional<FontChoice> LastFont;
  std::string LastFolder;

  std::optional<std::string> OpenFile(const FileDialogRequest& request) override {
    log_->Add("dialog open");
    LastRequest = request;
    return Next(OpenAnswers);
  }
  std::optional<std::string> SaveFile(const FileDialogRequest& request) override {
    log_->Add("dialog save");
    LastRequest = request;
    return Next(SaveAnswers);
  }
  std::optional<std::int32_t> PickColor(std::int32_t start) override {
    log_->Add("dialog color");
    LastColor = start;
    return Next(ColorAnswers);
  }
  std::optional<FontChoice> PickFont(const FontChoice& start) override {
    log_->Add("dialog font");
    LastFont = start;
    return Next(FontAnswers);
  }
  std::optional<std::string> PickFolder(const std::string& start) override {
    log_->Add("dialog folder");
    LastFolder = start;
    return Next(FolderAnswers);
  }

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

  void Yield() override {
    ++Yields;
    if (OnYield) OnYield();
  }
};

/// Log entries: "capture", "release", "confine", "free", "band L,T,R,B", "focus".
class FakeGestures final : public GesturePort {
 public:
  explicit FakeGestures(CallLog& log) : log_(&log) {}
  ScreenPoint Cursor;
  ScreenPoint Origin;
  bool Captured = false;
  bool Confined = false;

  void TakeCapture() override {
    log_->Add("capture");
    Captured = true;
  }
  void ReleaseCapture() override {
    log_->Add("release");
    Captured = false;
  }
  void ConfineCursor() override {
    log_->Add("confine");
    Confined = true;
  }
  void FreeCursor() override {
    log_->Add("free");
    Confined = false;
  }
  [[nodiscard]] ScreenPoint CursorPosition() override { return Cursor; }
  [[nodiscard]] ScreenPoint ClientOrigin() override { return Origin; }
  void DrawRubberBand(const ScreenRect& rect) override {
    log_->Add("band " + std::to_string(rect.Left) + "," + std::to_string(rect.Top) + "," +
              std::to_string(rect.Right) + "," + std::to_string(rect.Bottom));
  }
  void TakeFocus() override { log_->Add("focus"); }

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

  FakePorts() = default;
  FakePorts(const FakePorts&) = delete;
  FakePorts& operator=(const FakePorts&) = delete;

  [[nodiscard]] Ports All() { return Ports{Files, Profiles, Processes, Messages, Dialogs, Screen}; }
};

}  // namespace tarnwick
