// Gauges, track bars, scroll bars and status bars.
#pragma once

#include "run/widget_view.h"

class QAbstractSlider;

namespace tarnwick::run {

/// How much of something is done.
class GaugeView final : public TableView<GaugeView> {
 public:
  GaugeView(Stage& stage, const ObjectRecord& gauge);
  void Paint(QPainter& painter) const;

  void ShowPosition(const ObjectRecord& gauge);
  static constexpr ShowRow<GaugeView> kRows[] = {{Word::Position, &GaugeView::ShowPosition},
                                                 {Word::Min, &GaugeView::ShowPosition},
                                                 {Word::Max, &GaugeView::ShowPosition}};
};

/// A bar whose position the user moves: a track bar or a scroll bar.
class SliderView final : public TableView<SliderView> {
 public:
  SliderView(Stage& stage, const ObjectRecord& bar);

  void ShowRange(const ObjectRecord& bar);
  void ShowLayout(const ObjectRecord& bar);
  static constexpr ShowRow<SliderView> kRows[] = {
      {Word::Min, &SliderView::ShowRange},         {Word::Max, &SliderView::ShowRange},
      {Word::Position, &SliderView::ShowRange},    {Word::LineSize, &SliderView::ShowRange},
      {Word::SmallChange, &SliderView::ShowRange}, {Word::PageSize, &SliderView::ShowRange},
      {Word::LargeChange, &SliderView::ShowRange}, {Word::Orientation, &SliderView::ShowLayout},
      {Word::Kind, &SliderView::ShowLayout},       {Word::Frequency, &SliderView::ShowLayout},
      {Word::TickMarks, &SliderView::ShowLayout},  {Word::TickStyle, &SliderView::ShowLayout},
      {Word::SelStart, &SliderView::ShowRange},    {Word::SelEnd, &SliderView::ShowRange}};

 private:
  [[nodiscard]] QAbstractSlider& Bar() const;
  void Moved(int position);
  bool showing_ = false;
};

/// Texts in a row at the lower edge of a form.
class StatusView final : public TableView<StatusView> {
 public:
  StatusView(Stage& stage, const ObjectRecord& bar);
  void Paint(QPainter& painter) const;
  void ShowItems(const ObjectRecord& bar, const objects::ItemsChange& change) override;

  void ShowTexts(const ObjectRecord& bar);
  static constexpr ShowRow<StatusView> kRows[] = {{Word::SimpleText, &StatusView::ShowTexts},
                                                  {Word::SimplePanel, &StatusView::ShowTexts},
                                                  {Word::SizeGrip, &StatusView::ShowTexts}};
};

}  // namespace tarnwick::run
