#include "qt/surface/container.h"

#include <QApplication>
#include <QEvent>

#include "qt/kit/theme.h"
#include "qt/surface/surface_access.h"

namespace tarnwick {

namespace {

/// New windows stand one step right and below of the one before, for a few steps.
constexpr int kFirstOffset = 24;
constexpr int kStep = 28;
constexpr int kSteps = 8;
constexpr int kMargin = 24;

}  // namespace

Container::Container(looks::PictureCache& pictures, TextCache& texts, QWidget* parent)
    : QScrollArea(parent), pictures_(pictures), texts_(texts), canvas_(new QWidget) {
  setObjectName(QStringLiteral("FormContenedor"));
  setAccessibleName(QStringLiteral("Design forms"));
  setFrameShape(QFrame::NoFrame);
  canvas_->setObjectName(QStringLiteral("Canvas"));
  canvas_->setBackgroundRole(QPalette::Mid);
  setBackgroundRole(QPalette::Mid);
  setWidget(canvas_);
  InstallSurfaceAccess();
  // Picture files are changed by other programs, which the user comes back from.
  connect(qApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive) LookAtFilesAgain();
          });
}

Container::~Container() {
  // The gestures go with the members, the windows as children after them.
  for (const auto& [form, window] : windows_) window->Detach();
}

DesignWindow& Container::Open(FormUser& user, DesignWindowHost& host) {
  const int form = user.Number();
  Close(form);
  auto* window = new DesignWindow(user, Gestures(form), host, pictures_, texts_, canvas_);
  connect(window, &DesignWindow::FillRequested, this,
          [this, window] { window->Fill(RoomToFill()); });
  window->installEventFilter(this);
  window->SetCurrent(form == current_);
  windows_[form] = window;
  const auto left = left_.extract(form);
  if (left.empty()) {
    const int offset = kFirstOffset + (opened_++ % kSteps) * kStep;
    window->move(offset, offset);
    return *window;
  }
  const Left& before = left.mapped();
  window->Restore(before.State, before.Normal);
  if (before.Shown) {
    window->show();
    window->raise();
  }
  if (before.Focused) window->Surface().setFocus();
  return *window;
}

void Container::Close(int form) {
  const auto found = windows_.find(form);
  if (found == windows_.end()) return;
  DesignWindow* window = found->second;
  const QWidget* const focus = window->window()->focusWidget();
  left_[form] = {window->State(), window->NormalGeometry(), !window->isHidden(),
                 focus != nullptr && window->isAncestorOf(focus)};
  windows_.erase(found);
  window->Detach();
  window->hide();
  window->deleteLater();
  FitCanvas();
}

void Container::ForgetAbove(int form) {
  std::erase_if(left_, [form](const auto& entry) { return entry.first > form; });
  if (form == 0) opened_ = 0;
}

SurfaceGestures& Container::Gestures(int form) {
  std::unique_ptr<SurfaceGestures>& gestures = gestures_[form];
  if (!gestures) gestures = std::make_unique<SurfaceGestures>();
  return *gestures;
}

DesignWindow* Container::Window(int form) const {
  const auto found = windows_.find(form);
  return found == windows_.end() ? nullptr : found->second;
}

void Container::BringUp(int form) {
  DesignWindow* window = Window(form);
  if (window == nullptr) return;
  window->Unroll();
  window->show();
  window->raise();
  FitCanvas();
  ensureWidgetVisible(window, 0, 0);
}

void Container::Focus(int form) {
  DesignWindow* window = Window(form);
  if (window == nullptr) return;
  if (window->Surface().isVisibleTo(this)) {
    window->Surface().setFocus();
  } else {
    // A rolled-up window takes no keys, and no other form may get those meant for it.
    setFocus();
  }
}

void Container::SetCurrent(int form) {
  current_ = form;
  for (const auto& [number, window] : windows_) window->SetCurrent(number == form);
}

bool Container::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show ||
      type == QEvent::Hide) {
    FitCanvas();
  }
  return QScrollArea::eventFilter(object, event);
}

void Container::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  FitCanvas();
  FitMaximised();
}

void Container::scrollContentsBy(int dx, int dy) {
  QScrollArea::scrollContentsBy(dx, dy);
  FitMaximised();
}

QRect Container::VisiblePart() const {
  return {-canvas_->pos(), viewport()->size()};
}

QRect Container::RoomToFill() const {
  // Scroll bars that no window needs any more go with the next event only.
  const QSize whole = maximumViewportSize();
  const QSize needed = NeededByWindows();
  const bool all_fits = needed.width() <= whole.width() && needed.height() <= whole.height();
  return all_fits ? QRect(QPoint(0, 0), whole) : VisiblePart();
}

QSize Container::NeededByWindows() const {
  QSize size(0, 0);
  for (const auto& [number, window] : windows_) {
    if (window->isHidden() || window->State() == WindowState::Maximised) continue;
    const QRect place = window->geometry();
    size = size.expandedTo(QSize(place.right() + kMargin, place.bottom() + kMargin));
  }
  return size;
}

void Container::FitMaximised() {
  for (const auto& [number, window] : windows_) {
    if (window->State() == WindowState::Maximised) window->Fill(RoomToFill());
  }
}

void Container::LookAtFilesAgain() {
  pictures_.Recheck();
  for (const auto& [number, window] : windows_) {
    window->update();
    window->Surface().update();
  }
}

void Container::FitCanvas() {
  const QSize size = viewport()->size().expandedTo(NeededByWindows());
  if (size != canvas_->size()) canvas_->resize(size);
}

}  // namespace tarnwick
