// Boxes of typed text: one line, and many.
#pragma once

#include "run/widget_view.h"

class QLineEdit;
class QTextEdit;

namespace tarnwick::run {

class EditView final : public TableView<EditView> {
 public:
  EditView(Stage& stage, const ObjectRecord& box);
  bool Invoke(const ObjectRecord& box, const MemberInfo& method, std::span<Value> arguments,
              Value& result) override;
  bool Live(const ObjectRecord& box, const MemberInfo& member, std::span<const Value> index,
            Value& out) override;

  void ShowText(const ObjectRecord& box);
  void ShowLimits(const ObjectRecord& box);
  void ShowSelection(const ObjectRecord& box);
  /// The selection is hidden while another object has the focus, when the program wants that.
  void FocusChanged();
  void ShowInks(const ObjectRecord& box) { ShowColor(box); }
  void ShowMask(const ObjectRecord& box);
  static constexpr ShowRow<EditView> kRows[] = {
      {Word::InputMask, &EditView::ShowMask},     {Word::HideSelection, &EditView::ShowInks},
      {Word::MaxLength, &EditView::ShowLimits},   {Word::PasswordChar, &EditView::ShowLimits},
      {Word::ReadOnly, &EditView::ShowLimits},    {Word::Text, &EditView::ShowText},
      {Word::SelStart, &EditView::ShowSelection}, {Word::SelLength, &EditView::ShowSelection}};

 protected:
  void ShowColor(const ObjectRecord& box) override;

 private:
  [[nodiscard]] QLineEdit& Edit() const;
  void Typed();
  void SelectionMoved();
  bool showing_ = false;  ///< what changes now is no typing
};

/// Positions count CR and LF both, as programs do.
class RichEditView final : public TableView<RichEditView> {
 public:
  RichEditView(Stage& stage, const ObjectRecord& box);
  bool Invoke(const ObjectRecord& box, const MemberInfo& method, std::span<Value> arguments,
              Value& result) override;
  bool Live(const ObjectRecord& box, const MemberInfo& member, std::span<const Value> index,
            Value& out) override;

  void ShowText(const ObjectRecord& box);
  void ShowLimits(const ObjectRecord& box);
  void ShowBars(const ObjectRecord& box);
  void ShowSelection(const ObjectRecord& box);
  void ShowInks(const ObjectRecord& box) { ShowColor(box); }
  static constexpr ShowRow<RichEditView> kRows[] = {
      {Word::HideSelection, &RichEditView::ShowInks},
      {Word::ReadOnly, &RichEditView::ShowLimits},
      {Word::WantTabs, &RichEditView::ShowLimits},
      {Word::Alignment, &RichEditView::ShowLimits},
      {Word::WordWrap, &RichEditView::ShowBars},
      {Word::ScrollBars, &RichEditView::ShowBars},
      {Word::HideScrollBars, &RichEditView::ShowBars},
      {Word::Text, &RichEditView::ShowText},
      {Word::SelStart, &RichEditView::ShowSelection},
      {Word::SelLength, &RichEditView::ShowSelection}};

 protected:
  void ShowFont(const ObjectRecord& box) override;
  void ShowColor(const ObjectRecord& box) override;

 private:
  [[nodiscard]] QTextEdit& Edit() const;
  void Typed();
  void SelectionMoved();
  /// Position in the program's text of one in the toolkit's, and back.
  [[nodiscard]] int Counted(int position) const;
  [[nodiscard]] int Uncounted(std::int64_t position) const;
  bool showing_ = false;
};

}  // namespace tarnwick::run
