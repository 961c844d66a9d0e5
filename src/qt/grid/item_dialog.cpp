#include "qt/grid/item_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

#include "inspector/form_add_items.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

/// The text with its hard blanks, which the field's plain text turns into soft ones; "\n" between
/// the lines.
QString TextOf(const QPlainTextEdit& field) {
  QString text = field.document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, u'\n');
}

/// What the list cannot hold shows as "?" where it is typed.
void KeepItems(QPlainTextEdit& field) {
  const QString typed = TextOf(field);
  const QString kept = ToQString(FormAddItems::Storable(FromQString(typed)));
  if (typed == kept) return;
  const int caret = field.textCursor().position();
  field.setPlainText(kept);
  QTextCursor cursor = field.textCursor();
  cursor.setPosition(qMin<int>(caret, static_cast<int>(kept.size())));
  field.setTextCursor(cursor);
}

}  // namespace

void RunItemDialog(FormAddItems& logic, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("FormAddItems"));
  dialog.setWindowTitle(QStringLiteral("Items"));
  auto* label = new QLabel(QStringLiteral("One item a &line"), &dialog);
  auto* text = new QPlainTextEdit(&dialog);
  text->setObjectName(QStringLiteral("TextAdd"));
  text->setAccessibleName(QStringLiteral("Items, one a line"));
  text->setTabChangesFocus(true);
  text->setPlainText(ToQString(logic.TextAdd()));
  label->setBuddy(text);
  const QString at_opening = TextOf(*text);
  QObject::connect(text, &QPlainTextEdit::textChanged, &dialog, [text] { KeepItems(*text); });
  auto* buttons = new QDialogButtonBox(&dialog);
  QPushButton* ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
  ok->setShortcut(QKeySequence(QStringLiteral("Ctrl+Return")));
  ok->setToolTip(QStringLiteral("Store the items (Ctrl+Enter)"));
  QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
  cancel->setToolTip(QStringLiteral("Leave the items as they were (Esc)"));
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
  // A text that was not edited may hold bytes that the field shows otherwise.
  const QString lines = TextOf(*text);
  if (lines != at_opening) logic.Ok(FromQString(lines));
}

}  // namespace tarnwick
