// What the code windows ask of the windows around them.
#pragma once

#include <string_view>

namespace tarnwick::editor {

/// The events bars, and the code window itself as far as its logic opens and closes it.
class CodeHost {
 public:
  CodeHost() = default;
  CodeHost(const CodeHost&) = delete;
  CodeHost& operator=(const CodeHost&) = delete;
  virtual ~CodeHost() = default;

  /// The object of a form got code: it has a button on the form's events bar from now on.
  virtual void PopBoockMarck(int form, std::string_view name) = 0;
  /// An event's text of the object became empty.
  virtual void DelBoockMarck(int form, std::string_view name) = 0;
  /// Code of a form is about to be stored: a step that can be undone begins, with its name.
  /// CodeAccepted ends it.
  virtual void AcceptBegins(int form, std::string_view step) = 0;
  /// Accepted code changed the project.
  virtual void CodeAccepted(int form) = 0;
  /// Closes the window whose step this was; nothing is stored any more.
  virtual void Unload() = 0;
};

}  // namespace tarnwick::editor
