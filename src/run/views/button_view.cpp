#include "run/views/button_view.h"

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/drawing_surfaces.h"
#include "run/stage.h"

namespace tarnwick::run {
namespace {

/// A button of the toolkit that its view paints.
template <class Button, class View>
class PaintedButton final : public Button {
 public:
  explicit PaintedButton(View& view) : view_(view) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    view_.Paint(painter);
  }
  bool hitButton(const QPoint& at) const override { return this->rect().contains(at); }
  void nextCheckState() override {
    // A radio button that is chosen stays so.
    const bool radio = this->metaObject()->inherits(&QRadioButton::staticMetaObject);
    if (this->isCheckable()) this->setChecked(radio || !this->isChecked());
  }

 private:
  View& view_;
};

QColor InkOf(Stage& stage, const ObjectRecord& object) {
  return looks::ColorOf(static_cast<std::int32_t>(stage.World().FontOf(object).Color));
}

void DrawFocus(QPainter& painter, const QRect& rect) {
  QPen pen(Qt::black, 1, Qt::CustomDashLine);
  pen.setDashPattern({1, 1});
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

/// The text of a box stands right of its mark, or left.
bool TextIsLeft(const ObjectRecord& box) {
  return box.Number(Word::Alignment) == 0;
}

QWidget* MakeMark(MarkView& view, const ObjectRecord& box) {
  if (box.Is(ObjectClass::QRadioButton)) return new PaintedButton<QRadioButton, MarkView>(view);
  return new PaintedButton<QCheckBox, MarkView>(view);
}

void ReportClicks(Stage& stage, ObjectId id, QAbstractButton& button) {
  QObject::connect(&button, &QAbstractButton::clicked, &button,
                   [&stage, id] { stage.Report([&stage, id] { stage.World().Click(id); }); });
}

/// The part of a picture that shows the state of a button: up, disabled, clicked, stays down stand
/// side by side in it. A state without a part of its own is shown by the first.
QPixmap PartOf(const QPixmap& picture, const ObjectRecord& button, const QAbstractButton& widget) {
  const auto parts = static_cast<int>(std::clamp<std::int64_t>(button.Number(Word::NumBMPs), 1, 4));
  if (picture.isNull() || parts == 1) return picture;
  int part = 0;
  if (!widget.isEnabled()) part = 1;
  if (button.Truth(Word::Down)) part = 3;
  if (widget.isDown()) part = 2;
  const int width = picture.width() / parts;
  return picture.copy(part < parts ? part * width : 0, 0, width, picture.height());
}

/// The focus is shown once the user has come by key.
bool ShowsFocus(const QWidget& widget) {
  return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

}  // namespace

ButtonView::ButtonView(Stage& stage, const ObjectRecord& button)
    : TableView(stage, button, new PaintedButton<QPushButton, ButtonView>(*this),
                WidgetEvents::Mouse::Own) {
  auto& widget = *static_cast<QPushButton*>(Widget());
  widget.setAutoDefault(false);
  // Flat and oval buttons stay out of the order of Tab.
  if (!button.Is(ObjectClass::QButton)) widget.setFocusPolicy(Qt::NoFocus);
  widget.setAttribute(Qt::WA_Hover);
  ReportClicks(stage, button.Id, widget);
}

void ButtonView::ShowCaption(const ObjectRecord& button) {
  static_cast<QPushButton*>(Widget())->setText(looks::ToQString(button.Text(Word::Caption)));
  Widget()->update();
}

void ButtonView::Paint(QPainter& painter) const {
  const ObjectRecord* const button = Record();
  if (button == nullptr) return;
  const auto& widget = *static_cast<QPushButton*>(Widget());
  const QPixmap picture = PartOf(stage().Surfaces().Shown(*button), *button, widget);
  const std::int64_t layout = button->Number(Word::Layout);
  looks::ButtonFace face;
  face.Picture = &picture;
  face.Side = static_cast<looks::PictureSide>(layout >= 0 && layout <= 3 ? layout : 0);
  face.Spacing = static_cast<int>(std::clamp<std::int64_t>(button->Number(Word::Spacing), 0, 64));
  face.Default = button->Truth(Word::Default);
  face.Down = widget.isDown() || button->Truth(Word::Down);
  face.Flat = button->Truth(Word::Flat) && !widget.underMouse();
  if (!button->Is(ObjectClass::QButton)) {
    face.Face = looks::ColorOf(static_cast<std::int32_t>(button->Number(Word::Color)));
  }
  const looks::FaceText caption{button->Text(Word::Caption), stage().FontOf(*button),
                                InkOf(stage(), *button), widget.isEnabled()};
  const auto draw = button->Is(ObjectClass::QOvalBtn) ? looks::DrawOvalFace : looks::DrawButtonFace;
  draw(painter, stage().Texts(), widget.rect(), caption, face);
  if (ShowsFocus(widget)) DrawFocus(painter, widget.rect().adjusted(4, 4, -4, -4));
}

MarkView::MarkView(Stage& stage, const ObjectRecord& box)
    : TableView(stage, box, MakeMark(*this, box), WidgetEvents::Mouse::Own) {
  auto& widget = *static_cast<QAbstractButton*>(Widget());
  widget.setAutoExclusive(false);
  ReportClicks(stage, box.Id, widget);
}

void MarkView::ShowCaption(const ObjectRecord& box) {
  static_cast<QAbstractButton*>(Widget())->setText(looks::ToQString(box.Text(Word::Caption)));
  Widget()->update();
}

void MarkView::ShowChecked(const ObjectRecord& box) {
  static_cast<QAbstractButton*>(Widget())->setChecked(box.Truth(Word::Checked));
  Widget()->update();
}

void MarkView::Paint(QPainter& painter) const {
  const ObjectRecord* const box = Record();
  if (box == nullptr) return;
  const auto& widget = *static_cast<QAbstractButton*>(Widget());
  const looks::FaceText caption{box->Text(Word::Caption), stage().FontOf(*box),
                                InkOf(stage(), *box), widget.isEnabled()};
  looks::DrawMarkFace(painter, stage().Texts(), widget.rect(), caption,
                      box->Is(ObjectClass::QRadioButton), widget.isChecked(),
                      looks::ColorOf(static_cast<std::int32_t>(box->Number(Word::Color))),
                      TextIsLeft(*box));
  if (!ShowsFocus(widget)) return;
  const looks::LaidText& laid =
      stage().Texts().Lay(box->Text(Word::Caption), caption.Font, looks::TextFlow::Line, 0);
  const int left = TextIsLeft(*box) ? 0 : looks::kMarkSize + looks::kMarkGap - 1;
  const int top = (widget.height() - laid.Height) / 2;
  DrawFocus(painter, QRect(left, top, laid.Width + 2, laid.Height) & widget.rect());
}

}  // namespace tarnwick::run
