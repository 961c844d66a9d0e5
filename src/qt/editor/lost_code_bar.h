// The offer of a text that was typed and not accepted.
#pragma once

#include <QFrame>

namespace tarnwick {

class CodeEdit;
namespace editor {
class TypedText;
}

/// A bar above the text of a code window with "Restore" and "Discard". It is there while something
/// was lost on what is shown, and never takes the focus by itself.
class LostCodeBar final : public QFrame {
  Q_OBJECT

 public:
  LostCodeBar(editor::TypedText& typed, CodeEdit& code);

  /// Shows or hides the bar for what is in the editor now.
  void Refresh();

 private:
  editor::TypedText& typed_;
};

}  // namespace tarnwick
