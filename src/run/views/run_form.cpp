#include "run/views/run_form.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
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
  ClientArea(FormView& view, Stage& stage, RunForm& window) : view_(view), stage_(stage) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    fit_.setSingleShot(true);
    connect(&fit_, &QTimer::timeout, &window, [&window] { window.FitClient(); });
  }

  /// The room that the objects need; those that are docked need none. Nothing when the form does
  /// not scroll.
  [[nodiscard]] QSize Needed() const {
    QRect needed(0, 0, 0, 0);
    const ObjectRecord* const form = view_.Record();
    if (form == nullptr || !form->Truth(Word::AutoScroll)) return needed.size();
    for (const ObjectId id : form->Children) {
      const ObjectRecord* const child = stage_.RecordOf(id);
      const ObjectView* const shown = stage_.ViewOf(id);
      const QWidget* const widget = shown == nullptr ? nullptr : shown->Widget();
      const bool here = child != nullptr && widget != nullptr && widget->parentWidget() == this;
      if (here && !widget->isHidden() && child->Number(Word::Align) == 0) {
        needed = needed.united(widget->geometry());
      }
    }
    return {needed.right() + 1, needed.bottom() + 1};
  }
  /// Measures again with the next events: many objects that move at once are measured once.
  void WantFit() {
    if (!fit_.isActive()) fit_.start(0);
  }

 protected:
  void childEvent(QChildEvent* event) override {
    if (event->added()) event->child()->installEventFilter(this);
    if (event->removed()) WantFit();
  }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Move:
      case QEvent::Resize:
      case QEvent::ShowToParent:
      case QEvent::HideToParent:
        WantFit();
        break;
      default:
        break;
    }
    return false;
  }
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
  QTimer fit_;
};

/// Scrolls the client area. Keys are the affair of the form.
class FormArea final : public QScrollArea {
 public:
  explicit FormArea(QWidget* parent) : QScrollArea(parent) {
    setFrameStyle(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

}  // namespace

RunForm::RunForm(FormView& view, Stage& stage)
    : view_(view),
      area_(new FormArea(this)),
      client_(new ClientArea(view, stage, *this)),
      strip_(MakeMenuStrip(this)) {
  area_->setWidget(client_);
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
  area_->setGeometry(0, strip, width(), std::max(0, height() - strip));
  // A program that lays out its objects by the size does so before they are measured.
  const bool scrolls = client_->size() != room_;
  room_ = area_->size();
  if (scrolls) {
    FitClient();
  } else {
    client_->resize(room_);
    static_cast<ClientArea&>(*client_).WantFit();
  }
}

void RunForm::FitClient() {
  // As many pixels may be hidden: a form was drawn with the frame of another desktop around it, and
  // perhaps before it got its menu.
  const QSize hidden(2 * looks::kSizableBorder, 2 * looks::kSizableBorder + StripHeight());
  const QSize needed = static_cast<const ClientArea&>(*client_).Needed();
  const QSize most = needed - hidden;
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area_);
  // One bar may take the room that makes the other one needed.
  bool down = most.height() > room_.height();
  const bool across = most.width() > room_.width() - (down ? bar : 0);
  down = down || most.height() > room_.height() - (across ? bar : 0);
  QSize wanted(room_.width() - (down ? bar : 0), room_.height() - (across ? bar : 0));
  if (across) wanted.setWidth(std::max(needed.width(), wanted.width()));
  if (down) wanted.setHeight(std::max(needed.height(), wanted.height()));
  area_->setHorizontalScrollBarPolicy(across ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  area_->setVerticalScrollBarPolicy(down ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  if (client_->size() == wanted) return;
  client_->resize(wanted);
  view_.ClientResized();
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
