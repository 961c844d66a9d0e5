// What the logic needs from the platform. Each port is a few methods; what a method returns when it
// fails is part of its contract, and no method throws. All paths are Windows paths.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// Files as whole byte texts.
class FilePort {
 public:
  virtual ~FilePort() = default;
  /// True when a file (not a folder) of that path exists.
  [[nodiscard]] virtual bool Exists(const std::string& path) = 0;
  /// The file's bytes; null when it cannot be read.
  [[nodiscard]] virtual std::optional<std::string> Read(const std::string& path) = 0;
  /// Replaces the file in one step. Returns true when it holds the new bytes afterwards; on any
  /// failure it holds the old ones, and the result is false.
  virtual bool Replace(const std::string& path, std::string_view bytes) = 0;
  /// Why the last Replace failed, in a few words; "" when it did not, or the reason is not known.
  [[nodiscard]] virtual std::string WhyNotReplaced() { return {}; }
  /// Deletes a file; false when there was none or it cannot be deleted.
  virtual bool Remove(const std::string& path) = 0;
  /// The short 8.3 form of a path, at most 165 characters; "" for a file that does not exist.
  [[nodiscard]] virtual std::string ShortPathOf(const std::string& path) = 0;
};

/// Profile (INI) files, one key at a time.
class ProfilePort {
 public:
  virtual ~ProfilePort() = default;
  /// The value of a key as the platform's profile call returns it into a buffer of
  /// `buffer_size` bytes, closing zero included; "" when the key is absent.
  [[nodiscard]] virtual std::string Read(const std::string& path, std::string_view section,
                                         std::string_view key, std::size_t buffer_size) = 0;
  /// Sets a key, making file and section where needed; false when the file cannot be written.
  virtual bool Write(const std::string& path, std::string_view section, std::string_view key,
                     std::string_view value) = 0;
};

/// Start of another program.
class ProcessPort {
 public:
  virtual ~ProcessPort() = default;
  /// Starts a command line hidden, without waiting; false when it could not be started.
  virtual bool StartHidden(const std::string& command_line) = 0;
  /// Opens a document with the program that the desktop has for it.
  virtual bool OpenDocument(const std::string& path) = 0;
};

enum class MessageIcon : std::uint8_t { None, Question, Critical };

/// Message boxes.
class MessagePort {
 public:
  virtual ~MessagePort() = default;
  /// A box with OK.
  virtual void Show(std::string_view text, std::string_view title) = 0;
  /// A box with Yes and No; true for Yes. Closing it any other way is No.
  [[nodiscard]] virtual bool AskYesNo(std::string_view text, std::string_view title,
                                      MessageIcon icon) = 0;
  /// The same for a question whose No would lose work: true for Yes, false for a No that was
  /// pressed, nothing when the box is closed without an answer. A port whose boxes cannot be
  /// closed returns what AskYesNo does.
  [[nodiscard]] virtual std::optional<bool> AskOrCancel(std::string_view text,
                                                        std::string_view title) {
    return AskYesNo(text, title, MessageIcon::Question);
  }
};

/// What a file dialog shows: `Filter` is caption and patterns in turn, joined by "|".
struct FileDialogRequest {
  std::string Title;
  std::string Filter;
  std::string StartFolder;
  std::string StartName;
};

/// A font as the font dialog takes and returns it.
struct FontChoice {
  std::string Name;
  float Size = 8.0F;
  bool Bold = false;
  bool Italic = false;
  std::int32_t Color = 0;
};

/// The common dialogs. A cancelled dialog returns null.
class DialogPort {
 public:
  virtual ~DialogPort() = default;
  virtual std::optional<std::string> OpenFile(const FileDialogRequest& request) = 0;
  virtual std::optional<std::string> SaveFile(const FileDialogRequest& request) = 0;
  virtual std::optional<std::int32_t> PickColor(std::int32_t start) = 0;
  virtual std::optional<FontChoice> PickFont(const FontChoice& start) = 0;
  virtual std::optional<std::string> PickFolder(const std::string& start) = 0;
};

/// The message loop.
class ScreenPort {
 public:
  virtual ~ScreenPort() = default;
  /// Lets the windows repaint during a long loop.
  virtual void Yield() = 0;
};

struct ScreenPoint {
  std::int32_t X = 0;
  std::int32_t Y = 0;
};

/// A rectangle in screen pixels.
struct ScreenRect {
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Right = 0;
  std::int32_t Bottom = 0;
};

/// Mouse capture, cursor confinement and the rubber band of one design window.
class GesturePort {
 public:
  virtual ~GesturePort() = default;
  virtual void TakeCapture() = 0;
  virtual void ReleaseCapture() = 0;
  /// Keeps the cursor within the window's rectangle until FreeCursor.
  virtual void ConfineCursor() = 0;
  virtual void FreeCursor() = 0;
  [[nodiscard]] virtual ScreenPoint CursorPosition() = 0;
  /// Screen position of the window's client origin, in pixels.
  [[nodiscard]] virtual ScreenPoint ClientOrigin() = 0;
  /// Draws the outline once with an inverting pen; a second call erases it.
  virtual void DrawRubberBand(const ScreenRect& rect) = 0;
  virtual void TakeFocus() = 0;
};

/// A folder that an instance of the program has, or had, for itself.
struct InstanceFolder {
  std::string Path;                ///< without a closing "\\"
  bool Running = false;            ///< its instance runs, or it is this one's
  std::vector<std::string> Files;  ///< bare names
};

/// Folders of running instances. An instance holds its folder until its process ends, however
/// that ends.
class InstanceFolderPort {
 public:
  virtual ~InstanceFolderPort() = default;
  /// Makes a folder under `parent`, which is made too where it is missing, and holds it from now
  /// on. Its path; "" when that fails.
  [[nodiscard]] virtual std::string Claim(const std::string& parent) = 0;
  /// The folders under `parent`, in no order.
  [[nodiscard]] virtual std::vector<InstanceFolder> List(const std::string& parent) = 0;
  /// Deletes a folder with its files; false when it stays. A folder of a running instance is let
  /// go of first.
  virtual bool Remove(const std::string& path) = 0;
};

/// The ports that the logic gets by reference; all live as long as the program.
struct Ports {
  FilePort& Files;
  ProfilePort& Profiles;
  ProcessPort& Processes;
  MessagePort& Messages;
  DialogPort& Dialogs;
  ScreenPort& Screen;
};

}  // namespace tarnwick
