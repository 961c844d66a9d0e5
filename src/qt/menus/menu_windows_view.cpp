#include "qt/menus/menu_windows_view.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

#include "qt/kit/window_place.h"
#include "qt/menus/menu_dialog.h"
#include "shell/mdi_form.h"

namespace tarnwick {

namespace {

/// Reports when a window is hidden.
class HideWatch final : public QObject {
 public:
  explicit HideWatch(QObject* parent) : QObject(parent) {}
  void SetHidden(std::function<void()> hidden) { hidden_ = std::move(hidden); }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Hide && !event->spontaneous()) hidden_();
    return QObject::eventFilter(object, event);
  }

 private:
  std::function<void()> hidden_;
};

}  // namespace

void MenuWindowsView::OpenMenuEdit() {
  const DesignForm* form = shell_.Tables().CurrentForm;
  if (form == nullptr || dialog_ != nullptr) return;
  menus::FormMenu designer(shell_.Context(), shell_.Steps(), form->Number());
  Run(designer);
}

void MenuWindowsView::OpenPopUpEdit(int form, int index) {
  if (dialog_ != nullptr) return;
  if (code_.IsCodeOpen()) {
    code_.BringCodeToFront();
    return;
  }
  menus::FormPopUp designer(shell_.Context(), shell_.Steps(), *this, form, index);
  Run(designer);
}

void MenuWindowsView::Run(menus::MenuDesigner& designer) {
  MenuDialog dialog(designer, &main_window_);
  QObject::connect(&dialog, &MenuDialog::CloseRefused, &dialog,
                   [this] { code_.BringCodeToFront(); });
  dialog_ = &dialog;
  dialog.exec();
  dialog_ = nullptr;
  // Back to where it was opened, also where no window manager sees to that.
  main_window_.activateWindow();
}

void MenuWindowsView::OpenCode() {
  QWidget* const editor = main_window_.findChild<QWidget*>(QStringLiteral("FormCodigo"));
  if (dialog_ == nullptr || editor == nullptr) {
    code_.OpenCode();
    return;
  }
  // A modal dialog lets no window work but its own ones, so the editor is one of them for a while.
  GiveToParent(*editor, *dialog_);
  dialog_->SetWaiting(true);
  code_.OpenCode();
  auto* watch = new HideWatch(dialog_);
  const auto give_back = [this, editor, dialog = QPointer<MenuDialog>(dialog_), watch] {
    editor->removeEventFilter(watch);
    watch->deleteLater();
    GiveToParent(*editor, main_window_);
    if (dialog == nullptr) return;
    dialog->SetWaiting(false);
    dialog->activateWindow();
  };
  if (!code_.IsCodeOpen()) {
    give_back();
    return;
  }
  // The window is not given away while it is being hidden.
  watch->SetHidden([dialog = dialog_, give_back] {
    QMetaObject::invokeMethod(dialog, give_back, Qt::QueuedConnection);
  });
  editor->installEventFilter(watch);
}

}  // namespace tarnwick
