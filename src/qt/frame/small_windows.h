// The small windows of the shell: logo, About, main form and floating tool box.
#pragma once

#include <QDialog>
#include <QWidget>
#include <string_view>

class QLabel;

namespace tarnwick {

class MDIForm1;
class ToolBoxPanel;

/// The window that stays on top of all until the first form stands.
class LogoWindow final : public QWidget {
  Q_OBJECT

 public:
  explicit LogoWindow(QWidget* parent);
  void ShowText(std::string_view text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* text_;
};

/// `ObjectBar`: the tool box as a floating window. Closing it by its own button tells the shell.
class ObjectBar final : public QWidget {
  Q_OBJECT

 public:
  explicit ObjectBar(QWidget* parent);
  void Attach(MDIForm1& shell);
  void Refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  MDIForm1* shell_ = nullptr;
  ToolBoxPanel* tools_;
};

/// Opens `FormMain` and takes its choice.
void RunFormMainDialog(MDIForm1& shell, QWidget* parent);
/// Name, version and program folder.
void RunAboutDialog(std::string_view program_folder, QWidget* parent);

}  // namespace tarnwick
