// Lists of entries: list boxes and drop-down lists.
#pragma once

#include "run/owner_drawing.h"
#include "run/widget_view.h"

class QComboBox;
class QPainter;
class QListWidget;

namespace tarnwick::run {

class ListView final : public TableView<ListView> {
 public:
  ListView(Stage& stage, const ObjectRecord& list);
  void ShowItems(const ObjectRecord& list, const objects::ItemsChange& change) override;
  void ShowDrawing() override;
  bool Live(const ObjectRecord& list, const MemberInfo& member, std::span<const Value> index,
            Value& out) override;

  /// A press of a mouse button is being handled: what it picks is known behind it.
  void Pressing(bool pressing) { pressing_ = pressing; }
  void Keying(bool keying) { keying_ = keying; }
  /// Entries moved, or another one has the focus.
  void Moved() { drawing_.Want(); }
  /// Paints what the program has drawn over the entries.
  void PaintDrawn(QPainter& painter) const;
  /// The user pressed an entry, whether or not it was picked before.
  void Pressed(int row);

  void ShowEntries(const ObjectRecord& list);
  void ShowMode(const ObjectRecord& list);
  void ShowPicked(const ObjectRecord& list);
  void ShowTop(const ObjectRecord& list);
  void ShowHeights(const ObjectRecord& list);
  void FitHeight(const ObjectRecord& list);
  static constexpr ShowRow<ListView> kRows[] = {
      {Word::Style, &ListView::ShowHeights},       {Word::ItemHeight, &ListView::ShowHeights},
      {Word::MultiSelect, &ListView::ShowMode},    {Word::ExtendedSelect, &ListView::ShowMode},
      {Word::Columns, &ListView::ShowMode},        {Word::Sorted, &ListView::ShowEntries},
      {Word::ItemIndex, &ListView::ShowPicked},    {Word::TopIndex, &ListView::ShowTop},
      {Word::IntegralHeight, &ListView::FitHeight}};

 protected:
  void BuildOwn(const ObjectRecord& list) override;
  void ShowFont(const ObjectRecord& list) override;
  void Placed(const ObjectRecord& list) override { FitHeight(list); }

 private:
  [[nodiscard]] QListWidget& List() const;
  void Picked();
  void SelectionChanged();
  [[nodiscard]] std::vector<DrawnPart> Parts() const;
  OwnerDrawing drawing_;
  bool showing_ = false;  ///< what changes now is no choice of the user
  bool pressing_ = false;
  bool keying_ = false;
  bool built_ = false;
};

class ComboView final : public TableView<ComboView> {
 public:
  ComboView(Stage& stage, const ObjectRecord& combo);
  void ShowItems(const ObjectRecord& combo, const objects::ItemsChange& change) override;

  void ShowStyle(const ObjectRecord& combo);
  void ShowEntries(const ObjectRecord& combo);
  void ShowText(const ObjectRecord& combo);
  void ShowCount(const ObjectRecord& combo);
  void ShowHeights(const ObjectRecord& combo);
  static constexpr ShowRow<ComboView> kRows[] = {
      {Word::Style, &ComboView::ShowStyle},       {Word::Sorted, &ComboView::ShowEntries},
      {Word::ItemIndex, &ComboView::ShowText},    {Word::Text, &ComboView::ShowText},
      {Word::MaxLength, &ComboView::ShowCount},   {Word::DropDownCount, &ComboView::ShowCount},
      {Word::ItemHeight, &ComboView::ShowHeights}};

  void ShowDrawing() override;

  void Paint(QWidget& widget, bool down) const;
  /// Paints what the program has drawn over the entries of the open list.
  void PaintDrawn(QPainter& painter) const;
  void Opens();
  /// True when the program draws the entries.
  [[nodiscard]] bool IsDrawn() const;
  /// What the program draws itself is drawn again.
  void Changed() { drawing_.Want(); }

 protected:
  void ShowFont(const ObjectRecord& combo) override;

 private:
  [[nodiscard]] QComboBox& Combo() const;
  [[nodiscard]] std::vector<DrawnPart> Parts();
  void Picked(int index);
  void Typed(const QString& text);
  OwnerDrawing drawing_;
  QRect face_;  ///< where the box stands on the surface: below the entries of the open list
  bool showing_ = false;
};

}  // namespace tarnwick::run
