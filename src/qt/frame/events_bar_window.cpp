#include "qt/frame/events_bar_window.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "shell/command_center.h"

namespace tarnwick {

namespace {

constexpr int kIcon = 20;
constexpr int kButton = 34;
constexpr int kButtonsInARow = 10;
constexpr int kRowsShown = 3;
constexpr int kHeadHeight = 24;
constexpr int kCloseIcon = 12;
constexpr int kEdge = 24;  ///< distance from the container's corner

}  // namespace

EventsBarWindow::EventsBarWindow(EventsBar& bar, CommandCenter& commands, QWidget& container,
                                 QWidget* parent)
    : QFrame(parent),
      bar_(bar),
      commands_(commands),
      container_(container),
      title_(new QLabel(this)),
      scroll_(new QScrollArea(this)),
      room_(new QWidget),
      declare_(MakeButton(QStringLiteral("btnCDeclare"))),
      pross_(new QMenu(this)) {
  setObjectName(QStringLiteral("FrmBarra"));
  setProperty("panel", true);
  setCursor(Qt::ArrowCursor);
  pross_->setObjectName(QStringLiteral("Pross"));
  title_->setProperty("heading", true);
  title_->setAttribute(Qt::WA_TransparentForMouseEvents);

  auto* close = new QToolButton(this);
  close->setObjectName(QStringLiteral("FrmBarraClose"));
  close->setIcon(IconOf(QStringLiteral("close")));
  close->setIconSize(QSize(kCloseIcon, kCloseIcon));
  close->setToolTip(QStringLiteral("Hide"));
  close->setAccessibleName(QStringLiteral("Hide"));
  close->setFocusPolicy(Qt::TabFocus);
  connect(close, &QToolButton::clicked, this, [this] { Hide(); });
  auto* head = new QHBoxLayout;
  head->setContentsMargins(kGap, 0, 0, 0);
  head->addWidget(title_);
  head->addStretch();
  head->addWidget(close);
  title_->setFixedHeight(kHeadHeight);

  declare_->setToolTip(ToQString(kPublicDeclarations));
  declare_->setAccessibleName(ToQString(kPublicDeclarations));
  declare_->setIcon(IconOf(IconNameOf(Command::PublicDeclarations)));
  connect(declare_, &QToolButton::clicked, this, [this] {
    bar_.btnCDeclare_Click();
    PopUp(*declare_);
  });

  scroll_->setObjectName(QStringLiteral("FrmBarraRoom"));
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->setWidget(room_);
  // The buttons stand on the bar's own ground.
  scroll_->viewport()->setAutoFillBackground(false);
  room_->setAutoFillBackground(false);
  scroll_->verticalScrollBar()->setSingleStep(kButton);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kRoom, kGap, kRoom, kRoom);
  column->setSpacing(kGap);
  column->addLayout(head);
  column->addWidget(scroll_);
  column->setSizeConstraint(QLayout::SetFixedSize);
  setTabOrder(declare_, close);
  PutButtons();
  hide();
  container_.installEventFilter(this);
  parent->installEventFilter(this);
}

QToolButton* EventsBarWindow::MakeButton(const QString& name) {
  auto* button = new QToolButton(room_);
  button->setObjectName(name);
  button->setIconSize(QSize(kIcon, kIcon));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void EventsBarWindow::Refresh() {
  const int form = bar_.CurrentForm();
  const bool shown = form != 0 && commands_.PanelShown(Panel::EventsBar);
  if (form != 0) {
    ShowTitle(ToQString(bar_.Caption(form)));
    SetButtons(bar_.btncodigo(form));
  }
  const bool had_focus = isAncestorOf(QApplication::focusWidget());
  setVisible(shown);
  if (!shown && had_focus) Q_EMIT Left();
  if (!shown) return;
  Place();
  raise();
}

void EventsBarWindow::SetButtons(std::vector<BarButton> buttons) {
  if (buttons == shown_) return;
  shown_ = std::move(buttons);
  while (buttons_.size() > shown_.size()) {
    // The press that removes a button may still be running in it.
    if (buttons_.back()->hasFocus()) declare_->setFocus();
    buttons_.back()->hide();
    buttons_.back()->deleteLater();
    buttons_.pop_back();
  }
  while (buttons_.size() < shown_.size()) {
    const int number = static_cast<int>(buttons_.size());
    QToolButton* button = MakeButton(QStringLiteral("btncodigo_%1").arg(number + 1));
    connect(button, &QToolButton::clicked, this, [this, number] { Press(number); });
    setTabOrder(buttons_.empty() ? declare_ : buttons_.back(), button);
    buttons_.push_back(button);
    button->show();
  }
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    const QString tip = ToQString(shown_[i].Tip);
    buttons_[i]->setIcon(IconOf(IconNameOf(shown_[i].Picture)));
    buttons_[i]->setToolTip(tip);
    buttons_[i]->setAccessibleName(tip);
  }
  PutButtons();
}

void EventsBarWindow::PutButtons() {
  constexpr int width = kButtonsInARow * kButton;
  const auto put = [&](QToolButton& button, int number) {
    const BarPlace place = SpotOnBar(number, width, kButton);
    button.setGeometry(place.Left, place.Top, kButton, kButton);
    return place.Top + kButton;
  };
  int height = put(*declare_, 0);
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    height = put(*buttons_[i], static_cast<int>(i) + 1);
  }
  room_->setFixedSize(width, height);
  const int shown = std::min(height, kRowsShown * kButton);
  const int bar = height > shown ? scroll_->verticalScrollBar()->sizeHint().width() : 0;
  scroll_->setFixedSize(width + bar, shown);
}

/// A long name is cut at its end: the bar is no wider than its buttons.
void EventsBarWindow::ShowTitle(const QString& title) {
  const int room = kButtonsInARow * kButton - kHeadHeight - 2 * kGap;
  const QString cut = title_->fontMetrics().elidedText(title, Qt::ElideRight, room);
  title_->setText(cut);
  title_->setToolTip(cut == title ? QString() : title);
  setAccessibleName(title);
}

void EventsBarWindow::Press(int number) {
  const auto index = static_cast<std::size_t>(number);
  if (index >= shown_.size()) return;
  const std::string tag = shown_[index].Tag;
  bar_.btncodigo_Click(tag);
  PopUp(*buttons_[index]);
}

void EventsBarWindow::PopUp(QToolButton& button) {
  pross_->clear();
  const std::vector<std::string>& rows = bar_.ProssItem();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const int row = static_cast<int>(i);
    QAction* action = pross_->addAction(ToQString(rows[i]));
    action->setObjectName(QStringLiteral("ProssItem_%1").arg(row));
    connect(action, &QAction::triggered, this, [this, row] { bar_.ProssItem_Click(row); });
  }
  if (rows.empty()) return;
  pross_->setActiveAction(pross_->actions().front());
  pross_->popup(button.mapToGlobal(QPoint(0, button.height())));
}

void EventsBarWindow::Hide() {
  // Hiding is the shell's to decide, so that its menu row follows.
  commands_.SetPanelShown(Panel::EventsBar, false);
}

void EventsBarWindow::Place() {
  const QWidget* over = parentWidget();
  const QSize size = sizeHint();
  QPoint place = pos();
  if (!placed_) {
    const QPoint corner = container_.mapTo(over, QPoint(0, container_.height()));
    place = corner + QPoint(kEdge, -kEdge - size.height());
    // A low container is left at its bottom: above it are the menus.
    place.setY(std::max(place.y(), corner.y() - container_.height()));
  }
  place.setX(std::clamp(place.x(), 0, std::max(0, over->width() - size.width())));
  place.setY(std::clamp(place.y(), 0, std::max(0, over->height() - size.height())));
  move(place);
}

bool EventsBarWindow::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  if (!isHidden() && (type == QEvent::Resize || type == QEvent::Move)) Place();
  return QFrame::eventFilter(object, event);
}

void EventsBarWindow::mousePressEvent(QMouseEvent* event) {
  dragging_ = event->button() == Qt::LeftButton;
  grip_ = event->position().toPoint();
}

void EventsBarWindow::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_) return;
  placed_ = true;
  move(mapToParent(event->position().toPoint()) - grip_);
  Place();
}

void EventsBarWindow::mouseReleaseEvent(QMouseEvent* /*event*/) {
  dragging_ = false;
}

void EventsBarWindow::keyPressEvent(QKeyEvent* event) {
  auto* const button = qobject_cast<QToolButton*>(QApplication::focusWidget());
  if (event->key() == Qt::Key_Escape) {
    Q_EMIT Left();
  } else if (button != nullptr &&
             (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    button->click();
  } else {
    QFrame::keyPressEvent(event);
  }
}

}  // namespace tarnwick
