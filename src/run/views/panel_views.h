// Panels, group boxes and scroll boxes: what other objects stand on.
#pragma once

#include "run/widget_view.h"

class QScrollArea;

namespace tarnwick::run {

/// A panel with its bevels and its caption in the middle.
class PanelView final : public TableView<PanelView> {
 public:
  PanelView(Stage& stage, const ObjectRecord& panel);
  void Paint(QPainter& painter) const;
  void Resized();

  void ShowBevel(const ObjectRecord& panel);
  void ShowCaption(const ObjectRecord& panel);
  static constexpr ShowRow<PanelView> kRows[] = {
      {Word::BevelInner, &PanelView::ShowBevel},  {Word::BevelOuter, &PanelView::ShowBevel},
      {Word::BevelWidth, &PanelView::ShowBevel},  {Word::BorderWidth, &PanelView::ShowBevel},
      {Word::BorderStyle, &PanelView::ShowBevel}, {Word::Caption, &PanelView::ShowCaption}};
};

/// A frame with a caption in its upper edge.
class GroupView final : public TableView<GroupView> {
 public:
  GroupView(Stage& stage, const ObjectRecord& group);
  void Paint(QPainter& painter) const;
  void Resized();

  void ShowCaption(const ObjectRecord& group);
  static constexpr ShowRow<GroupView> kRows[] = {{Word::Caption, &GroupView::ShowCaption}};
};

/// An area that has bars when what stands on it needs more room.
class ScrollBoxView final : public TableView<ScrollBoxView> {
 public:
  ScrollBoxView(Stage& stage, const ObjectRecord& box);
  [[nodiscard]] QWidget* Ground() const override;

  void ShowEdge(const ObjectRecord& box);
  static constexpr ShowRow<ScrollBoxView> kRows[] = {{Word::BorderStyle, &ScrollBoxView::ShowEdge}};

 protected:
  void ShowColor(const ObjectRecord& box) override;

 private:
  [[nodiscard]] QScrollArea& Area() const;
};

}  // namespace tarnwick::run
