#include "run/views/run_form.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>
#include <algorithm>

#include "looks/frame_metrics.h"
#include "looks/platform_colors.h"
#include "run/drawing_surfaces.h"
#include "run/menus.h"
#include "run/stage.h"
#include "run/views/form_view.h"

namespace tarnwick::run {
namespace {

/// The area on which the objects stand.
class ClientArea final : public QWidget {
 public:
  ClientArea(FormView& view, Stage& stage, QWidget* parent)
      : QWidget(parent), view_(view), stage_(stage) {
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    const ObjectRecord* const form = view_.Record();
    if (form == nullptr) return;
    painter.fillRect(event->rect(),
                     looks::ColorOf(static_cast<std::int32_t>(form->Number(Word::Color))));
    stage_.Surfaces().Paint(painter, form->Id, QPoint());
  }

 private:
  FormView& view_;
  Stage& stage_;
};

}  // namespace

RunForm::RunForm(FormView& view, Stage& stage)
    : view_(view), client_(new ClientArea(view, stage, this)), strip_(MakeMenuStrip(this)) {
  strip_->hide();
}

void RunForm::SetStrip(bool there) {
  has_strip_ = there;
  strip_->setVisible(there);
  Arrange();
}

int RunForm::StripHeight() const {
  return has_strip_ ? looks::kMenuStripHeight : 0;
}

void RunForm::Arrange() {
  const int strip = StripHeight();
  strip_->setGeometry(0, 0, width(), looks::kMenuStripHeight);
  client_->setGeometry(0, strip, width(), std::max(0, height() - strip));
}

void RunForm::resizeEvent(QResizeEvent* /*event*/) {
  Arrange();
  view_.Resized();
}

void RunForm::moveEvent(QMoveEvent* /*event*/) {
  view_.Moved();
}

void RunForm::closeEvent(QCloseEvent* event) {
  // Whether it closes is the program's affair.
  event->ignore();
  view_.CloseAsked();
}

void RunForm::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) view_.StateChanged();
  if (event->type() == QEvent::ActivationChange) view_.ActivationChanged();
}

void RunForm::keyPressEvent(QKeyEvent* event) {
  if (!view_.KeyLeft(event->key())) QWidget::keyPressEvent(event);
}

}  // namespace tarnwick::run
