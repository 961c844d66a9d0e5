#include "qt/frame/main_form_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "shell/form_commands.h"

namespace tarnwick {

void RunMainFormDialog(FormCommands& forms, QWidget* parent) {
  FormMain logic = forms.MainFormDialog();
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("FormMain"));
  dialog.setWindowTitle(QStringLiteral("Select Main Form"));
  auto* list = new QListWidget(&dialog);
  list->setObjectName(QStringLiteral("List1"));
  list->setIconSize(QSize(16, 16));
  for (const std::string& line : logic.List1()) {
    list->addItem(new QListWidgetItem(IconOf(QStringLiteral("form")), ToQString(line)));
  }
  list->setAccessibleName(QStringLiteral("Forms"));
  list->setCurrentRow(logic.Selected());
  auto* text = new QLineEdit(ToQString(logic.Text1()), &dialog);
  text->setObjectName(QStringLiteral("Text1"));
  KeepInCodePage(*text);
  auto* label = new QLabel(QStringLiteral("&Main Form"), &dialog);
  label->setBuddy(text);
  auto* buttons = new QDialogButtonBox(&dialog);
  QPushButton* ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
  ok->setObjectName(QStringLiteral("Command1"));
  ok->setToolTip(QStringLiteral("Take this form (Enter)"));
  ok->setDefault(true);
  QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
  cancel->setObjectName(QStringLiteral("Command2"));
  cancel->setToolTip(QStringLiteral("Change nothing (Esc)"));
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  column->setSpacing(kRoom);
  column->addWidget(list);
  column->addWidget(label);
  column->addWidget(text);
  column->addSpacing(kRoom);
  column->addWidget(buttons);
  dialog.resize(380, 340);
  const auto choose = [&](int row) {
    logic.List1_Click(row);
    text->setText(ToQString(logic.Text1()));
  };
  // By mouse and by keys alike; a click on the marked line takes it back after typing.
  QObject::connect(list, &QListWidget::currentRowChanged, &dialog, choose);
  QObject::connect(list, &QListWidget::itemClicked, &dialog,
                   [&](QListWidgetItem* item) { choose(list->row(item)); });
  QObject::connect(text, &QLineEdit::textChanged, &dialog,
                   [&](const QString& typed) { logic.Text1_Change(FromQString(typed)); });
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  if (dialog.exec() == QDialog::Accepted) forms.TakeMainForm(logic);
}

}  // namespace tarnwick
