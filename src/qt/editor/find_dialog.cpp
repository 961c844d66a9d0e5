#include "qt/editor/find_dialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "qt/editor/code_edit.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

QLineEdit* MakeField(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(QString::fromLatin1(name));
  KeepInCodePage(*field);
  return field;
}

}  // namespace

FindDialog::FindDialog(CodeEdit& code, QWidget* parent)
    : QDialog(parent),
      code_(code),
      find_(MakeField("FindText")),
      replace_(MakeField("ReplaceText")),
      match_case_(new QCheckBox(QStringLiteral("Match &case"))),
      whole_words_(new QCheckBox(QStringLiteral("Whole &words"))),
      wrap_(new QCheckBox(QStringLiteral("Wrap aroun&d"))),
      said_(new QLabel) {
  setObjectName(QStringLiteral("FindDialog"));
  setWindowTitle(QStringLiteral("Find and Replace"));
  wrap_->setChecked(true);
  said_->setProperty("quiet", true);
  said_->setObjectName(QStringLiteral("FindResult"));
  Build();
}

void FindDialog::Build() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  grid->setSpacing(kRoom);
  auto* find_label = new QLabel(QStringLiteral("&Find"));
  auto* replace_label = new QLabel(QStringLiteral("Replace w&ith"));
  find_label->setBuddy(find_);
  replace_label->setBuddy(replace_);
  find_->setMinimumWidth(260);
  grid->addWidget(find_label, 0, 0);
  grid->addWidget(find_, 0, 1);
  grid->addWidget(replace_label, 1, 0);
  grid->addWidget(replace_, 1, 1);
  grid->addWidget(match_case_, 2, 1);
  grid->addWidget(whole_words_, 3, 1);
  grid->addWidget(wrap_, 4, 1);
  said_->setWordWrap(true);
  grid->addWidget(said_, 2, 0, 3, 1, Qt::AlignTop);
  int row = 0;
  const auto add = [&](const char* caption, const char* name, const char* tip, auto press) {
    auto* button = new QPushButton(QString::fromLatin1(caption));
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(tip));
    button->setAutoDefault(row == 0);
    button->setDefault(row == 0);
    connect(button, &QPushButton::clicked, this, press);
    grid->addWidget(button, row++, 2);
  };
  add("Find &Next", "FindNext", "Go to the next one (F3)", [this] { Find(true); });
  add("Find &Previous", "FindPrevious", "Go to the one before (Shift+F3)", [this] { Find(false); });
  add("&Replace", "Replace", "Replace this one and go to the next", [this] { Replace(); });
  add("Replace &All", "ReplaceAll", "Replace all of them in one step", [this] { ReplaceAll(); });
  add("Close", "CloseFind", "Close (Esc)", [this] { close(); });
}

void FindDialog::Open() {
  const QString selected = code_.selectedText();
  if (!selected.isEmpty() && !selected.contains(u'\n')) find_->setText(selected);
  said_->clear();
  if (!isVisible()) MoveAside();
  show();
  raise();
  activateWindow();
  find_->setFocus();
  find_->selectAll();
}

/// To the lower right of its window, where it hides the least of the text.
void FindDialog::MoveAside() {
  adjustSize();
  const QWidget& window = *parentWidget();
  const QRect text(code_.mapTo(&window, QPoint(0, 0)), code_.size());
  const QPoint corner = window.mapToGlobal(QPoint(window.width(), text.bottom()));
  move(corner - QPoint(width() + 2 * kRoom, height() + 2 * kRoom));
}

void FindDialog::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (event->spontaneous() || !parentWidget()->isVisible()) return;
  // Not every desktop gives the keys back by itself.
  parentWidget()->activateWindow();
  code_.SetFocus();
}

int FindDialog::SearchFlags() const {
  return (match_case_->isChecked() ? int{QsciScintillaBase::SCFIND_MATCHCASE} : 0) |
         (whole_words_->isChecked() ? int{QsciScintillaBase::SCFIND_WHOLEWORD} : 0);
}

bool FindDialog::Find(bool forward) {
  const QString text = find_->text();
  if (text.isEmpty()) return false;
  int line = 0;
  int column = 0;
  int end_line = 0;
  int end_column = 0;
  if (code_.hasSelectedText()) {
    code_.getSelection(&line, &column, &end_line, &end_column);
  } else {
    code_.getCursorPosition(&line, &column);
    end_line = line;
    end_column = column;
  }
  const bool found = code_.findFirst(text, false, match_case_->isChecked(),
                                     whole_words_->isChecked(), wrap_->isChecked(), forward,
                                     forward ? end_line : line, forward ? end_column : column);
  said_->setText(found ? QString() : QStringLiteral("Nothing was found."));
  return found;
}

bool FindDialog::SelectionMatches() const {
  const QByteArray wanted = find_->text().toUtf8();
  if (wanted.isEmpty() || !code_.hasSelectedText()) return false;
  const long begin = code_.SendScintilla(QsciScintillaBase::SCI_GETSELECTIONSTART);
  const long end = code_.SendScintilla(QsciScintillaBase::SCI_GETSELECTIONEND);
  code_.SendScintilla(QsciScintillaBase::SCI_SETSEARCHFLAGS,
                      static_cast<unsigned long>(SearchFlags()));
  code_.SendScintilla(QsciScintillaBase::SCI_SETTARGETRANGE, static_cast<unsigned long>(begin),
                      end);
  const long at =
      code_.SendScintilla(QsciScintillaBase::SCI_SEARCHINTARGET,
                          static_cast<unsigned long>(wanted.size()), wanted.constData());
  return at == begin && code_.SendScintilla(QsciScintillaBase::SCI_GETTARGETEND) == end;
}

void FindDialog::Replace() {
  if (SelectionMatches()) code_.SetSelText(FromQString(replace_->text()));
  Find(true);
}

void FindDialog::ReplaceAll() {
  const QByteArray wanted = find_->text().toUtf8();
  if (wanted.isEmpty()) return;
  const QByteArray by = replace_->text().toUtf8();
  int count = 0;
  code_.SendScintilla(QsciScintillaBase::SCI_SETSEARCHFLAGS,
                      static_cast<unsigned long>(SearchFlags()));
  code_.beginUndoAction();
  long from = 0;
  for (;;) {
    const long end = code_.SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
    code_.SendScintilla(QsciScintillaBase::SCI_SETTARGETRANGE, static_cast<unsigned long>(from),
                        end);
    const long at =
        code_.SendScintilla(QsciScintillaBase::SCI_SEARCHINTARGET,
                            static_cast<unsigned long>(wanted.size()), wanted.constData());
    if (at < 0) break;
    code_.SendScintilla(QsciScintillaBase::SCI_REPLACETARGET, static_cast<unsigned long>(by.size()),
                        by.constData());
    from = at + by.size();
    ++count;
  }
  code_.endUndoAction();
  said_->setText(count == 0 ? QStringLiteral("Nothing was found.")
                            : QStringLiteral("%1 replaced.").arg(count));
}

}  // namespace tarnwick
