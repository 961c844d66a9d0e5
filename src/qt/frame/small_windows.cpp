#include "qt/frame/small_windows.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "designer/tool_box.h"
#include "qt/frame/tool_box_panel.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "shell/mdi_form.h"
#include "shell/titles.h"

namespace tarnwick {

namespace {

constexpr int kLogoIcon = 64;
constexpr int kObjectBarColumns = 4;

QLabel* PictureLabel(int size, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setFixedSize(size, size);
  label->setPixmap(ProgramIcon().pixmap(size, size));
  label->setScaledContents(true);
  return label;
}

QLabel* NameLabel(qreal scale, QWidget* parent) {
  auto* label = new QLabel(ToQString(kApplicationTitle), parent);
  QFont large = label->font();
  large.setPointSizeF(large.pointSizeF() * scale);
  large.setWeight(QFont::DemiBold);
  label->setFont(large);
  return label;
}

}  // namespace

LogoWindow::LogoWindow(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::WindowStaysOnTopHint), text_(new QLabel(this)) {
  setObjectName(QStringLiteral("Logo"));
  text_->setObjectName(QStringLiteral("LogoText"));
  text_->setProperty("quiet", true);
  text_->setMinimumWidth(120);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(kGap);
  texts->addStretch();
  texts->addWidget(NameLabel(2.0, this));
  texts->addWidget(text_);
  texts->addStretch();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(4 * kRoom, 3 * kRoom, 5 * kRoom, 3 * kRoom);
  row->setSpacing(3 * kRoom);
  row->addWidget(PictureLabel(kLogoIcon, this));
  row->addLayout(texts);
}

void LogoWindow::ShowText(std::string_view text) {
  text_->setText(ToQString(text));
  if (isVisible()) return;
  adjustSize();
  if (const QWidget* over = parentWidget()) move(over->geometry().center() - rect().center());
  show();
  raise();
}

void LogoWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  painter.setPen(LineOf(palette()));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.fillRect(0, 0, width(), 3, AccentOf(palette()));
}

ObjectBar::ObjectBar(QWidget* parent)
    : QWidget(parent, Qt::Tool),
      tools_(new ToolBoxPanel(QStringLiteral("ObjectBarBtn"), kObjectBarColumns, this)) {
  setObjectName(QStringLiteral("ObjectBar"));
  setWindowTitle(QStringLiteral("Objects"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kRoom, kRoom, kRoom, kRoom);
  column->addWidget(tools_);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

void ObjectBar::Attach(MDIForm1& shell) {
  shell_ = &shell;
  tools_->Attach(shell);
}

void ObjectBar::Refresh() {
  tools_->Refresh();
}

void ObjectBar::closeEvent(QCloseEvent* event) {
  // Hiding is the shell's to decide, so that its menu row follows.
  event->ignore();
  if (shell_ != nullptr) shell_->SetPanelShown(Panel::ObjectBar, false);
}

void ObjectBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && shell_ != nullptr) {
    shell_->PressTool(kArrowTool);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void RunFormMainDialog(MDIForm1& shell, QWidget* parent) {
  FormMain logic(shell.Tables());
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("FormMain"));
  dialog.setWindowTitle(QStringLiteral("Select Main Form"));
  auto* list = new QListWidget(&dialog);
  list->setObjectName(QStringLiteral("List1"));
  list->setIconSize(QSize(16, 16));
  for (const std::string& line : logic.List1()) {
    list->addItem(new QListWidgetItem(IconOf(QStringLiteral("form")), ToQString(line)));
  }
  list->setCurrentRow(logic.Selected());
  auto* text = new QLineEdit(ToQString(logic.Text1()), &dialog);
  text->setObjectName(QStringLiteral("Text1"));
  KeepInCodePage(*text);
  auto* label = new QLabel(QStringLiteral("&Main Form"), &dialog);
  label->setBuddy(text);
  auto* buttons = new QDialogButtonBox(&dialog);
  QPushButton* ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
  ok->setObjectName(QStringLiteral("Command1"));
  ok->setDefault(true);
  buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole)
      ->setObjectName(QStringLiteral("Command2"));
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  column->setSpacing(kRoom);
  column->addWidget(list);
  column->addWidget(label);
  column->addWidget(text);
  column->addSpacing(kRoom);
  column->addWidget(buttons);
  dialog.resize(380, 340);
  QObject::connect(list, &QListWidget::itemClicked, &dialog, [&](QListWidgetItem* item) {
    logic.List1_Click(list->row(item));
    text->setText(ToQString(logic.Text1()));
  });
  QObject::connect(text, &QLineEdit::textChanged, &dialog,
                   [&](const QString& typed) { logic.Text1_Change(FromQString(typed)); });
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  if (dialog.exec() == QDialog::Accepted) shell.TakeMainForm(logic);
}

void RunAboutDialog(std::string_view program_folder, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("FormAbout"));
  dialog.setWindowTitle(QStringLiteral("About Tarnwick"));
  auto* version = new QLabel(QStringLiteral("Version " TARNWICK_VERSION), &dialog);
  auto* purpose =
      new QLabel(QStringLiteral("Visual development environment for RapidQ BASIC"), &dialog);
  auto* folder = new QLabel(ToQString(program_folder), &dialog);
  folder->setProperty("quiet", true);
  folder->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(kGap);
  texts->addWidget(NameLabel(1.6, &dialog));
  texts->addWidget(version);
  texts->addWidget(purpose);
  texts->addSpacing(kRoom);
  texts->addWidget(new QLabel(QStringLiteral("Program folder"), &dialog));
  texts->addWidget(folder);
  auto* row = new QHBoxLayout;
  row->setSpacing(2 * kRoom);
  row->addWidget(PictureLabel(kLogoIcon, &dialog), 0, Qt::AlignTop);
  row->addLayout(texts, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &dialog);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  column->setSpacing(2 * kRoom);
  column->addLayout(row);
  column->addWidget(buttons);
  dialog.exec();
}

}  // namespace tarnwick
