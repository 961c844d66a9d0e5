// The window with the pages of the help.
#pragma once

#include <QWidget>

#include "shell/help_pages.h"

class QTextBrowser;

namespace tarnwick {

/// Shows one page at a time. Links between the pages are followed, with Back by Alt+Left; others
/// go to the desktop's browser. Esc closes it.
class HelpWindow final : public QWidget {
  Q_OBJECT

 public:
  /// `parent` is the main window.
  explicit HelpWindow(QWidget* parent);

  /// Shows a page from its beginning, and the window in front.
  void OpenPage(HelpPage page);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Show(HelpPage page);
  void GoBack();

  QWidget* home_;
  QTextBrowser* text_;
  HelpPage page_ = HelpPage::Running;
  QList<HelpPage> before_;  ///< the pages that Back goes to, the last one first
};

}  // namespace tarnwick
