#include "qt/editor/code_marks_view.h"

#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cstddef>
#include <utility>

#include "qt/editor/code_edit.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

using editor::CodeMark;
using Base = QsciScintillaBase;

/// Milliseconds without typing ahead of a check.
constexpr int kPause = 300;
constexpr int kMarginWidth = 18;
constexpr int kSignSide = 14;
constexpr int kErrorSign = 1;
constexpr int kNoteSign = 2;
constexpr int kErrorWave = 9;
constexpr int kNoteWave = 10;

/// The text as the widget holds it, in UTF-8: of a long one even the change of its code page takes
/// longer than a frame may.
std::string BytesOf(const CodeEdit& code) {
  const auto* bytes =
      static_cast<const char*>(code.SendScintillaPtrResult(Base::SCI_GETCHARACTERPOINTER));
  return {bytes, static_cast<std::size_t>(code.SendScintilla(Base::SCI_GETLENGTH))};
}

QColor ColorOf(CodeMark::Sort sort, Theme theme) {
  if (sort == CodeMark::Sort::Error) {
    return theme == Theme::Dark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xC6, 0x28, 0x28);
  }
  return theme == Theme::Dark ? QColor(0xFF, 0xCA, 0x28) : QColor(0xB2, 0x6A, 0x00);
}

/// A disc for an error and a triangle for a note, each with an exclamation mark.
QImage SignOf(CodeMark::Sort sort, Theme theme, qreal ratio) {
  QImage image(QSize(kSignSide, kSignSide) * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ground = ColorOf(sort, theme);
  painter.setPen(QPen(ground, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(ground);
  const QRectF room(1.5, 1.5, kSignSide - 3, kSignSide - 3);
  const bool error = sort == CodeMark::Sort::Error;
  if (error) {
    painter.drawEllipse(room);
  } else {
    painter.drawPolygon(
        QPolygonF({QPointF(room.center().x(), room.top()), room.bottomRight(), room.bottomLeft()}));
  }
  painter.setPen(
      QPen(theme == Theme::Dark ? Qt::black : Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap));
  const qreal x = room.center().x();
  const qreal top = error ? 4 : 6;
  painter.drawLine(QPointF(x, top), QPointF(x, error ? 7.5 : 8.5));
  painter.drawPoint(QPointF(x, error ? 10 : 11));
  return image;
}

}  // namespace

CodeMarksView::CodeMarksView(CodeEdit& code, QLabel& words, editor::CodeMarks& checks,
                             Prepare prepare)
    : QObject(&code), code_(code), words_(words), checks_(checks), prepare_(std::move(prepare)) {
  thread_.setMaxThreadCount(1);
  thread_.setThreadPriority(QThread::LowPriority);
  words_.setObjectName(QStringLiteral("MarkText"));
  words_.setAccessibleName(QStringLiteral("Mistakes"));
  words_.setTextFormat(Qt::PlainText);
  SetUp();
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, [this] { CheckNow(); });
  connect(&code_, &QsciScintilla::textChanged, this, [this] {
    ++version_;
    pause_.start();
  });
  connect(&code_, &QsciScintilla::cursorPositionChanged, this, [this] { ShowWords(); });
  code_.viewport()->installEventFilter(this);
  code_.installEventFilter(this);
}

void CodeMarksView::SetUp() {
  const Theme theme = ThemeOf(code_.palette());
  code_.setMarginType(CodeEdit::kSignMargin, QsciScintilla::SymbolMargin);
  code_.setMarginWidth(CodeEdit::kSignMargin, kMarginWidth);
  code_.setMarginMarkerMask(CodeEdit::kSignMargin, (1 << kErrorSign) | (1 << kNoteSign));
  const qreal ratio = code_.devicePixelRatioF();
  code_.SendScintilla(Base::SCI_RGBAIMAGESETSCALE, static_cast<unsigned long>(ratio * 100));
  const auto colored = [&](CodeMark::Sort sort, int sign, int wave) {
    code_.markerDefine(SignOf(sort, theme, ratio), sign);
    code_.indicatorDefine(QsciScintilla::SquiggleIndicator, wave);
    code_.setIndicatorForegroundColor(ColorOf(sort, theme), wave);
  };
  colored(CodeMark::Sort::Error, kErrorSign, kErrorWave);
  colored(CodeMark::Sort::Note, kNoteSign, kNoteWave);
}

void CodeMarksView::Clear() {
  code_.markerDeleteAll(kErrorSign);
  code_.markerDeleteAll(kNoteSign);
  const long length = code_.SendScintilla(Base::SCI_GETLENGTH);
  for (const int wave : {kErrorWave, kNoteWave}) {
    code_.SendScintilla(Base::SCI_SETINDICATORCURRENT, static_cast<unsigned long>(wave));
    code_.SendScintilla(Base::SCI_INDICATORCLEARRANGE, 0UL, length);
  }
  marks_.clear();
}

void CodeMarksView::Restart() {
  Clear();
  ShowWords();
  CheckAgain();
}

void CodeMarksView::CheckAgain() {
  ++version_;
  checks_.ForgetFiles();
  pause_.start();
}

void CodeMarksView::CheckNow() {
  if (checking_) {
    // One check at a time: this text's turn comes when the one that runs has ended.
    pause_.start();
    return;
  }
  pause_.stop();
  checking_ = true;
  thread_.start([this, check = prepare_(), utf8 = BytesOf(code_), version = version_] {
    QMetaObject::invokeMethod(
        this, [this, found = check.Run(Utf8ToCodePage(utf8)), version] { Finish(found, version); },
        Qt::QueuedConnection);
  });
}

void CodeMarksView::Finish(editor::CodeCheck::Found found, unsigned version) {
  checking_ = false;
  // What was typed meanwhile has begun a pause of its own.
  if (version != version_) return;
  if (!found.Unread.empty()) {
    checks_.Read(found.Unread);
    CheckNow();
    return;
  }
  Clear();
  marks_ = std::move(found.Marks);
  for (const CodeMark& mark : marks_) ShowMark(mark);
  ShowWords();
}

void CodeMarksView::ShowMark(const CodeMark& mark) {
  const bool error = mark.What == CodeMark::Sort::Error;
  code_.markerAdd(mark.Line, error ? kErrorSign : kNoteSign);
  // What is missing at the end of a line is shown under its last character.
  const int length = static_cast<int>(code_.GetLine(mark.Line).size());
  const int begin = std::clamp(mark.Column, 0, std::max(0, length - 1));
  const int end = std::clamp(mark.Column + mark.Length, std::min(begin + 1, length), length);
  if (end > begin) {
    code_.fillIndicatorRange(mark.Line, begin, mark.Line, end, error ? kErrorWave : kNoteWave);
  }
}

QString CodeMarksView::TextOf(int line) const {
  QStringList texts;
  for (const CodeMark& mark : marks_) {
    if (mark.Line == line) texts.append(ToQString(mark.Text));
  }
  return texts.join(u'\n');
}

void CodeMarksView::ShowWords() {
  const int line = code_.GetSel().EndLineNo;
  QString text = TextOf(line).section(u'\n', 0, 0);
  if (text.isEmpty() && !marks_.empty()) {
    const CodeMark& first = marks_.front();
    text = QStringLiteral("Line %1: %2").arg(first.Line + 1).arg(ToQString(first.Text));
    if (marks_.size() > 1) {
      text = QStringLiteral("%1 mistakes (F8). %2").arg(marks_.size()).arg(text);
    }
  }
  Tell(text);
}

void CodeMarksView::Tell(const QString& text) {
  words_.setText(text);
  words_.setToolTip(text);
}

void CodeMarksView::GoToNext() {
  if (marks_.empty()) return;
  const editor::EditRange caret = code_.GetSel();
  const auto behind = [&caret](const CodeMark& mark) {
    return std::pair(mark.Line, mark.Column) > std::pair(caret.EndLineNo, caret.EndColNo);
  };
  const auto next = std::find_if(marks_.begin(), marks_.end(), behind);
  const CodeMark& mark = next == marks_.end() ? marks_.front() : *next;
  code_.SetCaretPos(mark.Line, mark.Column);
  code_.ensureLineVisible(mark.Line);
  code_.ensureCursorVisible();
}

void CodeMarksView::ShowTip(const QHelpEvent& event) {
  const long at = code_.SendScintilla(Base::SCI_POSITIONFROMPOINT,
                                      static_cast<unsigned long>(event.pos().x()), event.pos().y());
  const int line = static_cast<int>(code_.SendScintilla(Base::SCI_LINEFROMPOSITION, at));
  const int margins = code_.marginWidth(0) + code_.marginWidth(CodeEdit::kSignMargin);
  const bool in_margin = event.pos().x() < margins;
  bool on_wave = false;
  for (const int wave : {kErrorWave, kNoteWave}) {
    on_wave = on_wave || code_.SendScintilla(Base::SCI_INDICATORVALUEAT,
                                             static_cast<unsigned long>(wave), at) != 0;
  }
  const QString text = in_margin || on_wave ? TextOf(line) : QString();
  if (text.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(event.globalPos(), text, code_.viewport());
  }
}

bool CodeMarksView::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::ToolTip && object == code_.viewport()) {
    ShowTip(*static_cast<QHelpEvent*>(event));
    return true;
  }
  const bool looks_other =
      event->type() == QEvent::PaletteChange || event->type() == QEvent::ScreenChangeInternal;
  if (looks_other && object == &code_) SetUp();
  return QObject::eventFilter(object, event);
}

}  // namespace tarnwick
