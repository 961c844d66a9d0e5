#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>

#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/list_views.h"

namespace tarnwick::run {
namespace {

using objects::ListItems;

constexpr std::int64_t kListOnly = 2;

/// A drop-down list in the look of the design form's.
class ComboField final : public QComboBox {
 public:
  explicit ComboField(ComboView& view) : view_(view) { setInsertPolicy(NoInsert); }

  void showPopup() override {
    view_.Opens();
    down_ = true;
    QComboBox::showPopup();
    update();
  }
  void hidePopup() override {
    down_ = false;
    QComboBox::hidePopup();
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { view_.Paint(*this, down_); }
  void resizeEvent(QResizeEvent* event) override {
    QComboBox::resizeEvent(event);
    if (lineEdit() != nullptr) lineEdit()->setGeometry(looks::ComboTextOf(rect()));
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
    : TableView(stage, combo, MakeComboField(*this), WidgetEvents::Mouse::Own) {
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

void ComboView::ShowStyle(const ObjectRecord& combo) {
  const bool edits = combo.Number(Word::Style) < kListOnly;
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
}

void ComboView::ShowText(const ObjectRecord& combo) {
  showing_ = true;
  Combo().setCurrentIndex(static_cast<int>(combo.Number(Word::ItemIndex)));
  if (Combo().isEditable()) Combo().setEditText(looks::ToQString(combo.Text(Word::Text)));
  if (QLineEdit* const line = Combo().lineEdit()) line->setCursorPosition(0);
  showing_ = false;
  Combo().update();
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
  const QColor ink =
      looks::ColorOf(static_cast<std::int32_t>(stage().World().FontOf(*combo).Color));
  looks::DrawFaceText(painter, stage().Texts(), looks::ComboTextOf(widget.rect()),
                      {combo->Text(Word::Text), stage().FontOf(*combo), ink, enabled},
                      Qt::AlignVCenter, looks::TextFlow::Plain);
}

}  // namespace tarnwick::run
