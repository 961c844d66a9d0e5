#include "qt/kit/qt_ports.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>

#include "platform/native_path.h"
#include "qt/grid/font_dialog.h"
#include "qt/kit/color_dialog.h"
#include "qt/kit/text_bridge.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr qint64 kFrameMilliseconds = 16;

/// The window that a box stands over: the active one, or the main window while none is.
QWidget* Above() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  }
  return nullptr;
}

/// The machine path of a folder as a dialog starts in it; "" for none.
QString NativeFolder(const std::string& folder) {
  if (folder.empty()) return {};
  if (const auto found = FindNative(folder)) return QString::fromStdString(*found);
  return QString::fromStdString(PathToNative(folder));
}

std::optional<std::string> Chosen(const QString& path) {
  if (path.isEmpty()) return std::nullopt;
  return PathFromNative(path.toStdString());
}

std::optional<std::string> RunFileDialog(const FileDialogRequest& request, bool save) {
  QFileDialog dialog(Above(), ToQString(request.Title), NativeFolder(request.StartFolder));
  dialog.setObjectName(QStringLiteral("CommonDialog"));
  dialog.setNameFilters(ToQString(ToolkitFilter(request.Filter)).split(QStringLiteral(";;")));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // Whether a file may be replaced is asked by the program, in its own words.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (!request.StartName.empty()) dialog.selectFile(ToQString(request.StartName));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return Chosen(dialog.selectedFiles().value(0));
}

/// A box with Yes and No that can also be closed without an answer, by Esc or its title's button;
/// the toolkit's own takes either for No.
class ClosableBox final : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape) {
      done(QMessageBox::Cancel);
    } else {
      QMessageBox::keyPressEvent(event);
    }
  }
  void closeEvent(QCloseEvent* event) override {
    done(QMessageBox::Cancel);
    event->accept();
  }
};

}  // namespace

std::string ToolkitFilter(std::string_view filter) {
  std::string result;
  while (!filter.empty()) {
    const std::size_t bar = filter.find('|');
    std::string_view caption = filter.substr(0, bar);
    filter.remove_prefix(bar == std::string_view::npos ? filter.size() : bar + 1);
    const std::size_t end = filter.find('|');
    const std::string_view patterns = filter.substr(0, end);
    filter.remove_prefix(end == std::string_view::npos ? filter.size() : end + 1);
    // The toolkit takes the patterns from the brackets, so a caption's own pair goes.
    if (const std::size_t bracket = caption.find(" (*"); bracket != std::string_view::npos) {
      caption = caption.substr(0, bracket);
    }
    if (!result.empty()) result += ";;";
    result += caption;
    result += " (";
    for (const char c : patterns) result.push_back(c == ';' ? ' ' : c);
    result += ")";
    // "*.*" means every file, those without a dot too.
    if (const std::size_t all = result.rfind("(*.*)"); all != std::string::npos) {
      result.replace(all, 5, "(*)");
    }
  }
  return result;
}

void QtMessages::Show(std::string_view text, std::string_view title) {
  // What is shown and not asked is always about something that did not go as it should.
  QMessageBox box(QMessageBox::Warning, ToQString(title), ToQString(text), QMessageBox::Ok,
                  Above());
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool QtMessages::AskYesNo(std::string_view text, std::string_view title, MessageIcon icon) {
  QMessageBox::Icon shown = QMessageBox::NoIcon;
  if (icon == MessageIcon::Question) shown = QMessageBox::Question;
  if (icon == MessageIcon::Critical) shown = QMessageBox::Critical;
  QMessageBox box(shown, ToQString(title), ToQString(text), QMessageBox::Yes | QMessageBox::No,
                  Above());
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setTextFormat(Qt::PlainText);
  // Such questions delete or replace: Enter alone must not.
  box.setDefaultButton(QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

std::optional<bool> QtMessages::AskOrCancel(std::string_view text, std::string_view title) {
  ClosableBox box(QMessageBox::Question, ToQString(title), ToQString(text),
                  QMessageBox::Yes | QMessageBox::No, Above());
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  const int answer = box.exec();
  if (answer != QMessageBox::Yes && answer != QMessageBox::No) return std::nullopt;
  return answer == QMessageBox::Yes;
}

std::optional<std::string> QtDialogs::OpenFile(const FileDialogRequest& request) {
  return RunFileDialog(request, false);
}

std::optional<std::string> QtDialogs::SaveFile(const FileDialogRequest& request) {
  return RunFileDialog(request, true);
}

std::optional<std::int32_t> QtDialogs::PickColor(std::int32_t start) {
  return RunColorDialog(start, Above());
}

std::optional<FontChoice> QtDialogs::PickFont(const FontChoice& start) {
  return RunFontDialog(start, Above());
}

std::optional<std::string> QtDialogs::PickFolder(const std::string& start) {
  return Chosen(
      QFileDialog::getExistingDirectory(Above(), QStringLiteral("Folder"), NativeFolder(start)));
}

void QtScreen::Yield() {
  if (since_.isValid() && since_.elapsed() < kFrameMilliseconds) return;
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  since_.start();
}

}  // namespace tarnwick
