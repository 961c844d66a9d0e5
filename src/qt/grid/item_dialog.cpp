#include "qt/grid/item_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "inspector/form_add_items.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

void RunItemDialog(FormAddItems& logic, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("FormAddItems"));
  dialog.setWindowTitle(QStringLiteral("Items"));
  auto* label = new QLabel(QStringLiteral("One item a &line"), &dialog);
  auto* text = new QPlainTextEdit(&dialog);
  text->setObjectName(QStringLiteral("TextAdd"));
  text->setTabChangesFocus(true);
  text->setPlainText(ToQString(logic.TextAdd()));
  label->setBuddy(text);
  // What the code page lacks shows as "?" where it is typed.
  QObject::connect(text, &QPlainTextEdit::textChanged, &dialog, [text] {
    const QString typed = text->toPlainText();
    const QString kept = ShownInCodePage(typed);
    if (typed == kept) return;
    const int caret = text->textCursor().position();
    text->setPlainText(kept);
    QTextCursor cursor = text->textCursor();
    cursor.setPosition(qMin<int>(caret, static_cast<int>(kept.size())));
    text->setTextCursor(cursor);
  });
  auto* buttons = new QDialogButtonBox(&dialog);
  QPushButton* ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
  ok->setShortcut(QKeySequence(QStringLiteral("Ctrl+Return")));
  ok->setToolTip(QStringLiteral("Ctrl+Enter"));
  buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  column->setSpacing(kRoom);
  column->addWidget(label);
  column->addWidget(text);
  column->addWidget(buttons);
  dialog.resize(360, 320);
  if (dialog.exec() != QDialog::Accepted) return;
  QString lines = text->toPlainText();
  lines.replace(u'\n', QStringLiteral("\r\n"));
  logic.Ok(FromQString(lines));
}

}  // namespace tarnwick
