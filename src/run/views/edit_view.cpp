#include <QEvent>
#include <QLineEdit>
#include <QPainter>

#include "looks/text_bridge.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/input_mask.h"
#include "run/views/text_views.h"

namespace tarnwick::run {
namespace {

/// A line edit on the field that its view paints.
class LineField final : public QLineEdit {
 public:
  explicit LineField(EditView& view) : view_(view) {
    setFrame(false);
    setAutoFillBackground(false);
    // The toolkit keeps two pixels at the sides and one above to itself.
    constexpr int kSide = looks::kFieldLeft - 2;
    constexpr int kAbove = looks::kFieldTop - 1;
    setTextMargins(kSide, kAbove, kSide, kAbove);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
  }

 protected:
  bool event(QEvent* event) override {
    // The toolkit would give the selection up when the window becomes the active one.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): what the line edit does is left out
    if (event->type() == QEvent::WindowActivate) return QWidget::event(event);
    return QLineEdit::event(event);
  }
  void paintEvent(QPaintEvent* event) override {
    PaintField(*this, view_);
    QLineEdit::paintEvent(event);
  }
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    view_.FocusChanged();
  }
  void focusOutEvent(QFocusEvent* event) override {
    // The toolkit gives the selection up; programs ask for it while other objects have the focus.
    const int start = selectionStart();
    const int length = selectionLength();
    QLineEdit::focusOutEvent(event);
    if (start >= 0 && !hasSelectedText()) setSelection(start, length);
    view_.FocusChanged();
  }

 private:
  EditView& view_;
};

constexpr int kLongest = 32'767;

}  // namespace

EditView::EditView(Stage& stage, const ObjectRecord& box)
    : TableView(stage, box, new LineField(*this), WidgetEvents::Mouse::OwnClicks) {
  connect(&Edit(), &QLineEdit::textChanged, this, [this] { Typed(); });
  connect(&Edit(), &QLineEdit::selectionChanged, this, [this] { SelectionMoved(); });
  connect(&Edit(), &QLineEdit::cursorPositionChanged, this, [this] { SelectionMoved(); });
}

QLineEdit& EditView::Edit() const {
  return *static_cast<QLineEdit*>(Widget());
}

void EditView::Typed() {
  if (showing_) return;
  QString text = Edit().text();
  const ObjectRecord* const box = Record();
  if (box == nullptr) return;
  constexpr std::int64_t kUpper = 1;
  constexpr std::int64_t kLower = 2;
  const std::int64_t letters = box->Number(Word::CharCase);
  if (letters == kUpper || letters == kLower) {
    const int caret = Edit().cursorPosition();
    text = letters == kUpper ? text.toUpper() : text.toLower();
    showing_ = true;
    Edit().setText(text);
    Edit().setCursorPosition(caret);
    showing_ = false;
  }
  SelectionMoved();
  stage().Report([this, bytes = looks::FromQString(text)] {
    stage().World().UserSet(Id(), Word::Text, Value::Text(bytes));
  });
}

void EditView::SelectionMoved() {
  if (showing_ || Record() == nullptr) return;
  const int start = Edit().hasSelectedText() ? Edit().selectionStart() : Edit().cursorPosition();
  const auto length = Edit().selectedText().size();
  stage().World().UserSet(Id(), Word::SelStart, Value::Integer(start));
  stage().World().UserSet(Id(), Word::SelLength, Value::Integer(length));
}

void EditView::ShowColor(const ObjectRecord& box) {
  WidgetView::ShowColor(box);
  // The field is painted below the text.
  QPalette palette = Edit().palette();
  palette.setColor(QPalette::Base, Qt::transparent);
  if (box.Truth(Word::HideSelection) && !Edit().hasFocus()) {
    palette.setColor(QPalette::Highlight, Qt::transparent);
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
  }
  Edit().setPalette(palette);
}

void EditView::FocusChanged() {
  if (const ObjectRecord* const box = Record()) ShowColor(*box);
}

void EditView::ShowText(const ObjectRecord& box) {
  const QString text = looks::ToQString(box.Text(Word::Text));
  if (text == Edit().text()) return;
  showing_ = true;
  Edit().setText(text);
  Edit().setCursorPosition(0);
  showing_ = false;
}

void EditView::ShowLimits(const ObjectRecord& box) {
  const std::int64_t most = box.Number(Word::MaxLength);
  // The toolkit sets the text again, and moves the caret with it.
  showing_ = true;
  Edit().setMaxLength(most > 0 && most < kLongest ? static_cast<int>(most) : kLongest);
  const Value& mark = box.At(Word::PasswordChar);
  const bool hidden = !mark.View().empty() || mark.AsInteger() != 0;
  Edit().setEchoMode(hidden ? QLineEdit::Password : QLineEdit::Normal);
  Edit().setReadOnly(box.Truth(Word::ReadOnly));
  showing_ = false;
}

void EditView::ShowMask(const ObjectRecord& box) {
  const QString mask = ToolkitMask(box.Text(Word::InputMask));
  if (mask == Edit().inputMask()) return;
  showing_ = true;
  Edit().setInputMask(mask);
  Edit().setText(looks::ToQString(box.Text(Word::Text)));
  Edit().setCursorPosition(0);
  showing_ = false;
}

void EditView::ShowSelection(const ObjectRecord& box) {
  showing_ = true;
  Edit().setSelection(static_cast<int>(box.Number(Word::SelStart)),
                      static_cast<int>(box.Number(Word::SelLength)));
  showing_ = false;
}

bool EditView::Invoke(const ObjectRecord& box, const MemberInfo& method, std::span<Value> arguments,
                      Value& result) {
  if (method.Name == Word::SelText && !arguments.empty()) {
    Edit().insert(looks::ToQString(arguments[0].AsText()));
    return true;
  }
  if (method.Name == Word::Undo) {
    Edit().undo();
    return true;
  }
  return WidgetView::Invoke(box, method, arguments, result);
}

bool EditView::Live(const ObjectRecord& /*box*/, const MemberInfo& member,
                    std::span<const Value> /*index*/, Value& out) {
  const bool selected = Edit().hasSelectedText();
  if (member.Name == Word::SelStart) {
    out = Value::Integer(selected ? Edit().selectionStart() : Edit().cursorPosition());
    return true;
  }
  if (member.Name == Word::SelLength) {
    out = Value::Integer(Edit().selectedText().size());
    return true;
  }
  if (member.Name == Word::EditText) {
    out = Value::Text(looks::FromQString(Edit().displayText()));
    return true;
  }
  return false;
}

}  // namespace tarnwick::run
