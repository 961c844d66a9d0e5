// Labels and images: faces without a control behind them.
#pragma once

#include "run/widget_view.h"

namespace tarnwick::run {

class LabelView final : public TableView<LabelView> {
 public:
  LabelView(Stage& stage, const ObjectRecord& label);
  void Paint(QPainter& painter) const;

  void ShowCaption(const ObjectRecord& label);
  static constexpr ShowRow<LabelView> kRows[] = {{Word::Caption, &LabelView::ShowCaption}};
};

/// An image or a canvas: a picture, and what was drawn on it.
class ImageView final : public TableView<ImageView> {
 public:
  ImageView(Stage& stage, const ObjectRecord& image);
  void Paint(QPainter& painter) const;

  bool Invoke(const ObjectRecord& image, const MemberInfo& method, std::span<Value> arguments,
              Value& result) override;

  void ShowPicture(const ObjectRecord& image);
  void ShowGround(const ObjectRecord& image);
  static constexpr ShowRow<ImageView> kRows[] = {
      {Word::OnPaint, &ImageView::ShowGround},    {Word::Bmp, &ImageView::ShowPicture},
      {Word::BMPHandle, &ImageView::ShowPicture}, {Word::Icon, &ImageView::ShowPicture},
      {Word::IcoHandle, &ImageView::ShowPicture}, {Word::AutoSize, &ImageView::ShowPicture}};
};

}  // namespace tarnwick::run
