#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/drawing_surfaces.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/list_views.h"

namespace tarnwick::run {
namespace {

using objects::ListItems;

constexpr std::int64_t kListOnly = 2;
constexpr std::int64_t kDrawn = 3;  ///< from here on the program draws the entries
constexpr std::int64_t kVariable = 4;

/// Entries that the program draws: they have a height and nothing else. Without a handler they are
/// texts.
class DrawnRows final : public QStyledItemDelegate {
 public:
  DrawnRows(const ComboView& view, QObject* parent) : QStyledItemDelegate(parent), view_(view) {}
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    if (!view_.IsDrawn()) QStyledItemDelegate::paint(painter, option, index);
  }
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override {
    const QVariant own = index.data(Qt::UserRole);
    return {option.fontMetrics.horizontalAdvance(index.data().toString()),
            own.isValid() ? own.toInt() : Height};
  }

  int Height = 0;

 private:
  const ComboView& view_;
};

/// The open list of a drop-down list with such entries.
class DrawnList final : public QListView {
 public:
  explicit DrawnList(ComboView& view) : view_(view) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    QListView::paintEvent(event);
    QPainter painter(viewport());
    view_.PaintDrawn(painter);
  }
  void scrollContentsBy(int dx, int dy) override {
    QListView::scrollContentsBy(dx, dy);
    view_.Changed();
  }
  void resizeEvent(QResizeEvent* event) override {
    QListView::resizeEvent(event);
    view_.Changed();
  }
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
    QListView::currentChanged(current, previous);
    view_.Changed();
  }

 private:
  ComboView& view_;
};

/// A drop-down list in the look of the design form's.
class ComboField final : public QComboBox {
 public:
  explicit ComboField(ComboView& view) : view_(view) { setInsertPolicy(NoInsert); }

  void showPopup() override {
    view_.Opens();
    down_ = true;
    QComboBox::showPopup();
    update();
    view_.Changed();
  }
  void hidePopup() override {
    down_ = false;
    QComboBox::hidePopup();
    update();
    view_.Changed();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { view_.Paint(*this, down_); }
  void resizeEvent(QResizeEvent* event) override {
    QComboBox::resizeEvent(event);
    if (lineEdit() != nullptr) lineEdit()->setGeometry(looks::ComboTextOf(rect()));
    view_.Changed();
  }
  void focusInEvent(QFocusEvent* event) override {
    QComboBox::focusInEvent(event);
    view_.Changed();
  }
  void focusOutEvent(QFocusEvent* event) override {
    QComboBox::focusOutEvent(event);
    view_.Changed();
  }

 private:
  ComboView& view_;
  bool down_ = false;
};

QComboBox* MakeComboField(ComboView& view) {
  return new ComboField(view);
}

}  // namespace

ComboView::ComboView(Stage& stage, const ObjectRecord& combo)
    : TableView(stage, combo, MakeComboField(*this), WidgetEvents::Mouse::Own),
      drawing_(stage, combo.Id, Word::OnDrawItem, [this] { return Parts(); }) {
  connect(&Combo(), &QComboBox::activated, this, [this](int index) { Picked(index); });
  connect(&Combo(), &QComboBox::editTextChanged, this,
          [this](const QString& text) { Typed(text); });
}

QComboBox& ComboView::Combo() const {
  return *static_cast<QComboBox*>(Widget());
}

void ComboView::Opens() {
  stage().Raise(Id(), Word::OnDropDown);
}

void ComboView::Picked(int index) {
  if (showing_) return;
  stage().Report(
      [this, index] { stage().World().UserSet(Id(), Word::ItemIndex, Value::Integer(index)); });
}

void ComboView::Typed(const QString& text) {
  if (showing_) return;
  // A text that comes from the list is the choice of an entry.
  if (Combo().view()->isVisible() || Combo().currentText() != text) return;
  stage().Report([this, bytes = looks::FromQString(text)] {
    stage().World().UserSet(Id(), Word::Text, Value::Text(bytes));
  });
}

std::vector<DrawnPart> ComboView::Parts() {
  std::vector<DrawnPart> parts;
  const ObjectRecord* const combo = Record();
  if (combo == nullptr || combo->Number(Word::Style) < kDrawn) return parts;
  const QAbstractItemView& list = *Combo().view();
  const bool open = list.isVisible();
  const QRect seen = list.viewport()->rect();
  for (int row = open ? std::max(0, list.indexAt(QPoint(1, 1)).row()) : Combo().count();
       row < Combo().count(); ++row) {
    const QModelIndex index = list.model()->index(row, 0);
    const QRect place = list.visualRect(index);
    if (place.top() > seen.bottom()) break;
    parts.push_back({{row}, list.currentIndex() == index ? kPartSelected : 0, place});
  }
  face_ = looks::ComboTextOf(Combo().rect());
  if (open) face_.moveTop(seen.height());
  if (Combo().currentIndex() < 0) return parts;
  std::int64_t state = kPartFace;
  if (!Combo().isEnabled()) state |= kPartDisabled;
  if (Combo().hasFocus() && !open) state |= kPartSelected | kPartFocused;
  parts.push_back({{Combo().currentIndex()}, state, face_});
  return parts;
}

bool ComboView::IsDrawn() const {
  const ObjectRecord* const combo = Record();
  return combo != nullptr && combo->Number(Word::Style) >= kDrawn &&
         combo->IsHooked(Word::OnDrawItem);
}

void ComboView::PaintDrawn(QPainter& painter) const {
  stage().Surfaces().Paint(painter, Id(), QPoint());
}

void ComboView::ShowDrawing() {
  Combo().update();
  if (Combo().view()->isVisible()) Combo().view()->viewport()->update();
}

void ComboView::ShowHeights(const ObjectRecord& combo) {
  if (combo.Number(Word::Style) < kDrawn) return;
  const auto fitted = [](std::int64_t height) {
    constexpr std::int64_t kTallest = 1'000;
    return static_cast<int>(std::clamp<std::int64_t>(height, 1, kTallest));
  };
  const int usual = fitted(combo.Number(Word::ItemHeight));
  if (auto* const rows = dynamic_cast<DrawnRows*>(Combo().itemDelegate())) rows->Height = usual;
  const bool variable = combo.Number(Word::Style) >= kVariable;
  for (int row = 0; row < Combo().count() && variable; ++row) {
    Value arguments[] = {Value::Integer(row), Value::Integer(usual)};
    if (!stage().World().Raise(Id(), Word::OnMeasureItem, arguments) || Record() == nullptr) return;
    Combo().setItemData(row, fitted(arguments[1].AsInteger()), Qt::UserRole);
  }
  drawing_.Want();
}

void ComboView::ShowFont(const ObjectRecord& combo) {
  WidgetView::ShowFont(combo);
  drawing_.Want();
}

void ComboView::ShowStyle(const ObjectRecord& combo) {
  const bool edits = combo.Number(Word::Style) < kListOnly;
  const bool drawn = combo.Number(Word::Style) >= kDrawn;
  if (drawn && dynamic_cast<DrawnList*>(Combo().view()) == nullptr) {
    Combo().setView(new DrawnList(*this));
    Combo().setItemDelegate(new DrawnRows(*this, &Combo()));
  }
  ShowHeights(combo);
  if (Combo().isEditable() == edits) return;
  showing_ = true;
  Combo().setEditable(edits);
  if (QLineEdit* const line = Combo().lineEdit()) {
    line->setFrame(false);
    line->setCompleter(nullptr);
    line->setTextMargins(-2, 0, 0, 0);
    line->setObjectName(Combo().objectName() + QStringLiteral(".Edit"));
    // Keys come to the list, which has the focus for the line; the pointer meets the line.
    Events().WatchPart(*line);
    line->setGeometry(looks::ComboTextOf(Combo().rect()));
  }
  showing_ = false;
  ShowText(combo);
}

void ComboView::ShowEntries(const ObjectRecord& combo) {
  const auto* const items = combo.As<ListItems>();
  if (items == nullptr) return;
  QStringList texts;
  for (const ListItems::Item& item : items->Items) texts << looks::ToQString(item.Text);
  showing_ = true;
  Combo().clear();
  Combo().addItems(texts);
  showing_ = false;
  ShowText(combo);
  ShowHeights(combo);
}

void ComboView::ShowItems(const ObjectRecord& combo, const objects::ItemsChange& change) {
  const auto* const items = combo.As<ListItems>();
  if (items == nullptr) return;
  if (change.What == objects::ItemsChange::Kind::All) return ShowEntries(combo);
  showing_ = true;
  const auto first = static_cast<int>(change.First);
  for (std::size_t i = 0; i < change.Count; ++i) {
    const int row = first + static_cast<int>(i);
    switch (change.What) {
      case objects::ItemsChange::Kind::Removed:
        Combo().removeItem(first);
        break;
      case objects::ItemsChange::Kind::Inserted:
        Combo().insertItem(row, looks::ToQString(items->Items[change.First + i].Text));
        break;
      default:
        Combo().setItemText(row, looks::ToQString(items->Items[change.First + i].Text));
    }
  }
  showing_ = false;
  ShowText(combo);
  ShowHeights(combo);
}

void ComboView::ShowText(const ObjectRecord& combo) {
  showing_ = true;
  Combo().setCurrentIndex(static_cast<int>(combo.Number(Word::ItemIndex)));
  if (Combo().isEditable()) Combo().setEditText(looks::ToQString(combo.Text(Word::Text)));
  if (QLineEdit* const line = Combo().lineEdit()) line->setCursorPosition(0);
  showing_ = false;
  Combo().update();
  drawing_.Want();
}

void ComboView::ShowCount(const ObjectRecord& combo) {
  constexpr std::int64_t kMost = 100;
  Combo().setMaxVisibleItems(
      static_cast<int>(std::clamp<std::int64_t>(combo.Number(Word::DropDownCount), 1, kMost)));
  const std::int64_t most = combo.Number(Word::MaxLength);
  if (QLineEdit* const line = Combo().lineEdit()) {
    line->setMaxLength(most > 0 ? static_cast<int>(std::min<std::int64_t>(most, 32'767)) : 32'767);
  }
}

void ComboView::Paint(QWidget& widget, bool down) const {
  const ObjectRecord* const combo = Record();
  if (combo == nullptr) return;
  QPainter painter(&widget);
  const bool enabled = widget.isEnabled();
  looks::DrawComboFace(painter, widget.rect(), PaperOf(*combo), enabled, down);
  if (combo->Number(Word::Style) < kListOnly) return;
  if (IsDrawn()) {
    const QRect place = looks::ComboTextOf(widget.rect());
    painter.setClipRect(place);
    return stage().Surfaces().Paint(painter, Id(), place.topLeft() - face_.topLeft());
  }
  const QColor ink =
      looks::ColorOf(static_cast<std::int32_t>(stage().World().FontOf(*combo).Color));
  looks::DrawFaceText(painter, stage().Texts(), looks::ComboTextOf(widget.rect()),
                      {combo->Text(Word::Text), stage().FontOf(*combo), ink, enabled},
                      Qt::AlignVCenter, looks::TextFlow::Plain);
}

}  // namespace tarnwick::run
