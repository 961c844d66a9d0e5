#include "qt/editor/code_edit.h"

#include <QAction>
#include <QEvent>
#include <QInputDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include <Qsci/qscicommandset.h>

#include "editor/form_view_codes.h"
#include "qt/editor/code_lexer.h"
#include "qt/editor/member_list_popup.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kNumberMargin = 0;
constexpr int kTabWidth = 4;
constexpr QColor kMarginPaper(0x99, 0x99, 0x99);
constexpr QColor kMarginText(0xDD, 0xDD, 0xDD);

/// The key codes of the member list; 0 for keys that it does not know.
int ListKeyOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Backspace:
      return editor::list_key::kBackspace;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return editor::list_key::kEnter;
    case Qt::Key_Escape:
      return editor::list_key::kEscape;
    case Qt::Key_Space:
      return editor::list_key::kSpace;
    case Qt::Key_Up:
      return editor::list_key::kUp;
    case Qt::Key_Down:
      return editor::list_key::kDown;
    default:
      return event.key() < 0x100 ? event.key() : editor::list_key::kNone;
  }
}

}  // namespace

CodeEdit::CodeEdit(const QString& name, const std::vector<std::string>& keywords,
                   const editor::MemberLookup& lookup, std::string_view font_name, QWidget* parent)
    : QsciScintilla(parent),
      lexer_(new CodeLexer(keywords, ThemeOf(QsciScintilla::palette()), this)),
      popup_(new MemberListPopup(*this)),
      list_(*this, lookup, *popup_) {
  setObjectName(name);
  SetUp(font_name);
  connect(popup_, &MemberListPopup::Clicked, this, [this](int row) { list_.Click(row); });
  connect(popup_, &MemberListPopup::DoubleClicked, this, [this](int row) {
    list_.DoubleClick(row);
    Sync();
  });
  connect(this, &QsciScintilla::textChanged, this, [this] { changed_ = true; });
  connect(this, &QsciScintilla::linesChanged, this, [this] { FitLineNumbers(); });
  connect(this, &QsciScintillaBase::SCN_ZOOM, this, [this] { FitLineNumbers(); });
  connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, [this](int) { Sync(); });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { list_.HideList(); });
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { list_.HideList(); });
}

CodeEdit::~CodeEdit() = default;

void CodeEdit::SetUp(std::string_view font_name) {
  setUtf8(true);
  setEolMode(EolWindows);
  setAutoIndent(true);
  setIndentationsUseTabs(false);
  setTabWidth(kTabWidth);
  setTabIndents(true);
  setBackspaceUnindents(false);
  setBraceMatching(SloppyBraceMatch);
  setCaretLineVisible(true);
  // The line stays marked while find or the function panel has the keys.
  SendScintilla(SCI_SETCARETLINEVISIBLEALWAYS, 1UL);
  setAccessibleName(QStringLiteral("Code"));
  // The windows around have commands of their own for these keys, and the toolkit's widget would
  // keep every key that it has a command for.
  for (const int key : {int{Qt::CTRL} | Qt::Key_D, int{Qt::CTRL} | Qt::Key_L}) {
    if (QsciCommand* command = standardCommands()->boundTo(key)) command->setKey(0);
  }
  SendScintilla(SCI_ASSIGNCMDKEY, static_cast<unsigned long>(SCK_ADD + (SCMOD_CTRL << 16)),
                static_cast<long>(SCI_ZOOMIN));
  SendScintilla(SCI_SETSCROLLWIDTH, 1UL);
  SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1UL);
  QFont font(ToQString(font_name), editor::kCodeFontPoints);
  font.setStyleHint(QFont::Monospace);
  lexer_->SetFont(font);
  setLexer(lexer_);
  setMarginType(kNumberMargin, NumberMargin);
  setMarginLineNumbers(kNumberMargin, true);
  setMarginWidth(kSignMargin, 0);
  setMarginsFont(font);
  SendScintilla(SCI_SETMARGINLEFT, 0UL, static_cast<long>(kGap));
  SetColors();
  FitLineNumbers();
}

void CodeEdit::SetColors() {
  const QPalette palette = QsciScintilla::palette();
  const bool dark = ThemeOf(palette) == Theme::Dark;
  setMarginsBackgroundColor(dark ? QColor(0x2B, 0x32, 0x37) : kMarginPaper);
  setMarginsForegroundColor(dark ? QColor(0x98, 0xA4, 0xAB) : kMarginText);
  setCaretForegroundColor(palette.color(QPalette::Text));
  setCaretLineBackgroundColor(dark ? QColor(0x22, 0x2B, 0x30) : QColor(0xEE, 0xF4, 0xF4));
  setSelectionBackgroundColor(palette.color(QPalette::Highlight));
  setSelectionForegroundColor(palette.color(QPalette::HighlightedText));
  setMatchedBraceForegroundColor(AccentOf(palette));
  setMatchedBraceBackgroundColor(palette.color(QPalette::Base));
  setUnmatchedBraceForegroundColor(QColor(0xD3, 0x2F, 0x2F));
  setUnmatchedBraceBackgroundColor(palette.color(QPalette::Base));
}

void CodeEdit::changeEvent(QEvent* event) {
  QsciScintilla::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || lexer_ == nullptr) return;
  lexer_->SetTheme(ThemeOf(QsciScintilla::palette()));
  SetColors();
}

void CodeEdit::FitLineNumbers() {
  const int digits = std::max(3, static_cast<int>(QString::number(lines()).size()));
  setMarginWidth(kNumberMargin, QString(digits + 1, u'0'));
}

QByteArray CodeEdit::fromMimeData(const QMimeData* source, bool& rectangular) const {
  const QByteArray given = QsciScintilla::fromMimeData(source, rectangular);
  return ShownInCodePage(QString::fromUtf8(given)).toUtf8();
}

void CodeEdit::inputMethodEvent(QInputMethodEvent* event) {
  event->setCommitString(ShownInCodePage(event->commitString()), event->replacementStart(),
                         event->replacementLength());
  QsciScintilla::inputMethodEvent(event);
  Sync();
}

std::string CodeEdit::Text() const {
  return FromQString(text());
}

void CodeEdit::SetText(std::string_view text) {
  list_.Reset();
  setText(ToQString(text));
  SendScintilla(SCI_EMPTYUNDOBUFFER);
  setModified(false);
  setCursorPosition(0, 0);
  caret_ = GetSel();
  changed_ = false;
}

std::string CodeEdit::GetLine(int line) const {
  if (line < 0 || line >= lines()) return {};
  QString of_line = text(line);
  while (of_line.endsWith(u'\n') || of_line.endsWith(u'\r')) of_line.chop(1);
  return FromQString(of_line);
}

editor::EditRange CodeEdit::GetSel() const {
  editor::EditRange range;
  if (hasSelectedText()) {
    getSelection(&range.StartLineNo, &range.StartColNo, &range.EndLineNo, &range.EndColNo);
    return range;
  }
  getCursorPosition(&range.EndLineNo, &range.EndColNo);
  range.StartLineNo = range.EndLineNo;
  range.StartColNo = range.EndColNo;
  return range;
}

void CodeEdit::SetSel(const editor::EditRange& range) {
  setSelection(range.StartLineNo, range.StartColNo, range.EndLineNo, range.EndColNo);
}

void CodeEdit::SetSelText(std::string_view text) {
  const QByteArray bytes = ToQString(text).toUtf8();
  SendScintilla(SCI_REPLACESEL, bytes.constData());
}

void CodeEdit::SetCaretPos(int line, int column) {
  setCursorPosition(line, column);
}

void CodeEdit::SetFocus() {
  setFocus(Qt::OtherFocusReason);
}

void CodeEdit::Sync() {
  const editor::EditRange caret = GetSel();
  if (changed_) {
    changed_ = false;
    caret_ = caret;
    list_.Changed();
  } else if (!(caret == caret_)) {
    caret_ = caret;
    list_.CaretMoved();
  }
}

bool CodeEdit::event(QEvent* event) {
  // Esc belongs to the open list first, to the window behind it.
  if (event->type() == QEvent::ShortcutOverride && list_.Visible()) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Escape) {
      event->accept();
      return true;
    }
  }
  return QsciScintilla::event(event);
}

void CodeEdit::keyPressEvent(QKeyEvent* event) {
  Sync();
  if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier) {
    Q_EMIT HelpWanted(ToQString(CurrentWord(*this)));
    return;
  }
  if (event->key() == Qt::Key_Slash && event->modifiers() == Qt::ControlModifier) {
    ToggleComment();
    return;
  }
  if (event->key() == Qt::Key_G && event->modifiers() == Qt::ControlModifier) {
    GoToLine();
    return;
  }
  if (list_.KeyDown(ListKeyOf(*event))) {
    Sync();
    event->accept();
    return;
  }
  if (event->key() == Qt::Key_Escape) {
    // The widget would keep it for itself, and it closes the window.
    event->ignore();
    return;
  }
  if (const QString typed = event->text(); !typed.isEmpty()) list_.KeyPress(typed.at(0).unicode());
  const QString kept = ShownInCodePage(event->text());
  QKeyEvent shown(event->type(), event->key(), event->modifiers(), kept, event->isAutoRepeat());
  QsciScintilla::keyPressEvent(&shown);
  event->setAccepted(shown.isAccepted());
  Sync();
}

void CodeEdit::mousePressEvent(QMouseEvent* event) {
  list_.HideList();
  QsciScintilla::mousePressEvent(event);
}

void CodeEdit::focusOutEvent(QFocusEvent* event) {
  list_.HideList();
  QsciScintilla::focusOutEvent(event);
}

void CodeEdit::ToggleComment() {
  const editor::EditRange range = GetSel();
  // A selection that ends at the start of a line does not mean that line.
  const bool ends_before = range.EndColNo == 0 && range.EndLineNo > range.StartLineNo;
  const int last = ends_before ? range.EndLineNo - 1 : range.EndLineNo;
  bool all = true;
  for (int line = range.StartLineNo; line <= last; ++line) {
    all = all && GetLine(line).starts_with('\'');
  }
  beginUndoAction();
  for (int line = range.StartLineNo; line <= last; ++line) {
    const long at = SendScintilla(SCI_POSITIONFROMLINE, line);
    if (all) {
      SendScintilla(SCI_DELETERANGE, static_cast<unsigned long>(at), 1L);
    } else {
      SendScintilla(SCI_INSERTTEXT, static_cast<unsigned long>(at), "'");
    }
  }
  endUndoAction();
}

void CodeEdit::GoToLine() {
  int line = 0;
  int column = 0;
  getCursorPosition(&line, &column);
  bool chosen = false;
  const int wanted = QInputDialog::getInt(this, QStringLiteral("Go to Line"),
                                          QStringLiteral("Line (1 to %1)").arg(lines()), line + 1,
                                          1, lines(), 1, &chosen);
  if (!chosen) return;
  setCursorPosition(wanted - 1, 0);
  ensureLineVisible(wanted - 1);
}

}  // namespace tarnwick
