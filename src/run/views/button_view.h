// Buttons, check boxes and radio buttons.
#pragma once

#include "looks/object_faces.h"
#include "run/widget_view.h"

class QAbstractButton;

namespace tarnwick::run {

class ButtonView final : public TableView<ButtonView> {
 public:
  ButtonView(Stage& stage, const ObjectRecord& button);
  void Paint(QPainter& painter) const;

  void ShowCaption(const ObjectRecord& button);
  static constexpr ShowRow<ButtonView> kRows[] = {{Word::Caption, &ButtonView::ShowCaption}};
};

/// A check box or a radio button; Qt's own exclusion is off, the groups are the objects' affair.
class MarkView final : public TableView<MarkView> {
 public:
  MarkView(Stage& stage, const ObjectRecord& box);
  void Paint(QPainter& painter) const;

  void ShowCaption(const ObjectRecord& box);
  void ShowChecked(const ObjectRecord& box);
  static constexpr ShowRow<MarkView> kRows[] = {{Word::Caption, &MarkView::ShowCaption},
                                                {Word::Checked, &MarkView::ShowChecked}};
};

}  // namespace tarnwick::run
