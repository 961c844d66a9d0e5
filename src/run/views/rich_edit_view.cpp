#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <algorithm>

#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/page_printer.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/text_views.h"

namespace tarnwick::run {
namespace {

constexpr int kEdge = 2;
constexpr int kDocumentMargin = 1;

/// A text box on the field that its view paints.
class TextField final : public QTextEdit {
 public:
  explicit TextField(const RichEditView& view) : view_(view) {
    setAcceptRichText(false);
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setLineWidth(kEdge);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(kDocumentMargin);
    constexpr int kSide = looks::kFieldLeft - kEdge - kDocumentMargin;
    constexpr int kAbove = looks::kFieldTop - kEdge - kDocumentMargin;
    setViewportMargins(kSide, kAbove, kSide, kAbove);
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::Paint) return QTextEdit::event(event);
    PaintField(*this, view_);
    return true;
  }
  void keyPressEvent(QKeyEvent* event) override {
    const ObjectRecord* const box = view_.Record();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool returns = box == nullptr || box->Truth(Word::WantReturns);
    // Escape belongs to the form, and so does Enter when it makes no line.
    if (event->key() == Qt::Key_Escape || (enter && !returns)) {
      event->ignore();
    } else if (Room() > 0 || textCursor().hasSelection() || !IsTyping(*event)) {
      QTextEdit::keyPressEvent(event);
    }
  }
  void insertFromMimeData(const QMimeData* source) override {
    const qsizetype room = Room() + textCursor().selectedText().size();
    insertPlainText(source->text().left(room));
  }

 private:
  /// Characters that MaxLength leaves.
  [[nodiscard]] qsizetype Room() const {
    constexpr qsizetype kNoLimit = 1'000'000'000;
    const ObjectRecord* const box = view_.Record();
    const std::int64_t most = box == nullptr ? 0 : box->Number(Word::MaxLength);
    if (most <= 0) return kNoLimit;
    return std::max<qsizetype>(0, static_cast<qsizetype>(most) - document()->characterCount() + 1);
  }
  /// True for a key that adds to the text.
  static bool IsTyping(const QKeyEvent& event) {
    const QString text = event.text();
    const bool control = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    return !control && !text.isEmpty() && (text.at(0).isPrint() || text.at(0) == u'\r');
  }

  const RichEditView& view_;
};

QTextEdit* MakeTextField(const RichEditView& view) {
  return new TextField(view);
}

/// Which bars a number of ScrollBars stands for.
struct BarRow {
  bool Across;
  bool Down;
};
constexpr BarRow kBars[] = {{false, false}, {true, false}, {false, true}, {true, true}};

}  // namespace

RichEditView::RichEditView(Stage& stage, const ObjectRecord& box)
    : TableView(stage, box, MakeTextField(*this), WidgetEvents::Mouse::Own, nullptr) {
  Events().Watch(Edit(), *Edit().viewport());
  connect(&Edit(), &QTextEdit::textChanged, this, [this] { Typed(); });
  connect(&Edit(), &QTextEdit::selectionChanged, this, [this] { SelectionMoved(); });
  connect(&Edit(), &QTextEdit::cursorPositionChanged, this, [this] { SelectionMoved(); });
}

QTextEdit& RichEditView::Edit() const {
  return *static_cast<QTextEdit*>(Widget());
}

int RichEditView::Counted(int position) const {
  return position + Edit().document()->findBlock(position).blockNumber();
}

int RichEditView::Uncounted(std::int64_t position) const {
  // The block at or before it: blocks begin one further for each line end before them.
  const QTextDocument& document = *Edit().document();
  int low = 0;
  int high = document.blockCount() - 1;
  while (low < high) {
    const int middle = (low + high + 1) / 2;
    if (document.findBlockByNumber(middle).position() + middle <= position) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  const QTextBlock block = document.findBlockByNumber(low);
  const std::int64_t within = position - block.position() - low;
  return block.position() +
         static_cast<int>(std::clamp<std::int64_t>(within, 0, block.length() - 1));
}

void RichEditView::Typed() {
  if (showing_) return;
  QString text = Edit().toPlainText();
  text.replace(u'\n', QStringLiteral("\r\n"));
  SelectionMoved();
  stage().Report([this, bytes = looks::FromQString(text)] {
    stage().World().UserSet(Id(), Word::Text, Value::Text(bytes));
  });
}

void RichEditView::SelectionMoved() {
  if (showing_ || Record() == nullptr) return;
  const QTextCursor caret = Edit().textCursor();
  const int start = Counted(caret.selectionStart());
  const int end = Counted(caret.selectionEnd());
  stage().World().UserSet(Id(), Word::SelStart, Value::Integer(start));
  stage().World().UserSet(Id(), Word::SelLength, Value::Integer(end - start));
}

void RichEditView::ShowText(const ObjectRecord& box) {
  QString text = looks::ToQString(box.Text(Word::Text));
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  text.replace(u'\r', u'\n');
  if (text == Edit().toPlainText()) return;
  showing_ = true;
  Edit().setPlainText(text);
  showing_ = false;
}

void RichEditView::ShowLimits(const ObjectRecord& box) {
  constexpr Qt::Alignment kSides[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  Edit().setReadOnly(box.Truth(Word::ReadOnly));
  Edit().setTabChangesFocus(!box.Truth(Word::WantTabs));
  const std::int64_t side = box.Number(Word::Alignment);
  QTextOption option = Edit().document()->defaultTextOption();
  option.setAlignment(kSides[side >= 0 && side < 3 ? side : 0]);
  Edit().document()->setDefaultTextOption(option);
}

void RichEditView::ShowBars(const ObjectRecord& box) {
  const std::int64_t number = box.Number(Word::ScrollBars);
  const BarRow& bars = kBars[number >= 0 && number < 4 ? number : 0];
  const bool wraps = box.Truth(Word::WordWrap);
  const auto policy = [&](bool there) {
    if (!there) return Qt::ScrollBarAlwaysOff;
    return box.Truth(Word::HideScrollBars) ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOn;
  };
  Edit().setLineWrapMode(wraps ? QTextEdit::WidgetWidth : QTextEdit::NoWrap);
  Edit().setHorizontalScrollBarPolicy(policy(bars.Across && !wraps));
  Edit().setVerticalScrollBarPolicy(policy(bars.Down));
}

void RichEditView::ShowSelection(const ObjectRecord& box) {
  const std::int64_t start = box.Number(Word::SelStart);
  showing_ = true;
  QTextCursor caret = Edit().textCursor();
  caret.setPosition(Uncounted(start));
  caret.setPosition(Uncounted(start + box.Number(Word::SelLength)), QTextCursor::KeepAnchor);
  Edit().setTextCursor(caret);
  Edit().ensureCursorVisible();
  showing_ = false;
}

void RichEditView::ShowFont(const ObjectRecord& box) {
  WidgetView::ShowFont(box);
  Edit().document()->setDefaultFont(stage().FontOf(box).Font);
}

void RichEditView::ShowColor(const ObjectRecord& box) {
  WidgetView::ShowColor(box);
  if (!box.Truth(Word::HideSelection)) return;
  // The colours of a box that has not the focus.
  QPalette palette = Edit().palette();
  palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::transparent);
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                   palette.color(QPalette::Inactive, QPalette::Text));
  Edit().setPalette(palette);
}

bool RichEditView::Invoke(const ObjectRecord& box, const MemberInfo& method,
                          std::span<Value> arguments, Value& result) {
  if (method.Name == Word::SelText && !arguments.empty()) {
    QString text = looks::ToQString(arguments[0].AsText());
    Edit().textCursor().insertText(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    return true;
  }
  if (method.Name == Word::Undo) {
    Edit().undo();
    return true;
  }
  if (method.Name == Word::Print) {
    stage().Printer().Print(*Edit().document(),
                            arguments.empty() ? std::string() : arguments[0].AsText());
    return true;
  }
  if (method.Name == Word::SelAttributes && !arguments.empty()) {
    const ObjectRecord* const font = stage().World().Find(arguments[0].AsObject());
    if (font == nullptr) return false;
    QTextCharFormat format;
    format.setFont(stage().FontOf(*font).Font);
    format.setForeground(looks::ColorOf(static_cast<std::int32_t>(font->Number(Word::Color))));
    Edit().textCursor().mergeCharFormat(format);
    return true;
  }
  return WidgetView::Invoke(box, method, arguments, result);
}

bool RichEditView::Live(const ObjectRecord& /*box*/, const MemberInfo& member,
                        std::span<const Value> /*index*/, Value& out) {
  const QTextCursor caret = Edit().textCursor();
  const int start = Counted(caret.selectionStart());
  if (member.Name == Word::SelStart) {
    out = Value::Integer(start);
    return true;
  }
  if (member.Name == Word::SelLength) {
    out = Value::Integer(Counted(caret.selectionEnd()) - start);
    return true;
  }
  return false;
}

}  // namespace tarnwick::run
