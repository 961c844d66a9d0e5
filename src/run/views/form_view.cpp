#include "run/views/form_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "looks/text_bridge.h"
#include "objects/frame_size.h"
#include "run/drawing_surfaces.h"
#include "run/menus.h"
#include "run/stage.h"
#include "run/views/run_form.h"

namespace tarnwick::run {
namespace {

constexpr std::int64_t kStayOnTop = 3;
constexpr std::int64_t kMinimized = 1;
constexpr std::int64_t kMaximized = 2;

/// What a border style gives a window.
struct BorderRow {
  Qt::WindowFlags Flags;
  bool Sizable;
  bool Icons;  ///< buttons to minimise and maximise
};
constexpr Qt::WindowFlags kTitled = Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint;
const BorderRow kBorders[] = {
    {Qt::Window | Qt::FramelessWindowHint, false, false},
    {kTitled, false, true},
    {kTitled, true, true},
    {Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint, false, false},
    {Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint, false, false},
    {Qt::Tool | Qt::WindowTitleHint | Qt::CustomizeWindowHint, true, false},
};

const BorderRow& BorderOf(const ObjectRecord& form) {
  const std::int64_t style = form.Number(Word::BorderStyle);
  const bool known = style >= 0 && style < static_cast<std::int64_t>(std::size(kBorders));
  return kBorders[known ? style : 2];
}

struct IconRow {
  int Bit;
  Qt::WindowType Flag;
  bool Always;  ///< also on windows that have no buttons for their size
};
constexpr IconRow kIcons[] = {{0, Qt::WindowCloseButtonHint, true},
                              {0, Qt::WindowSystemMenuHint, true},
                              {1, Qt::WindowMinimizeButtonHint, false},
                              {2, Qt::WindowMaximizeButtonHint, false}};

Qt::WindowFlags FlagsOf(const ObjectRecord& form) {
  const BorderRow& border = BorderOf(form);
  Qt::WindowFlags flags = border.Flags;
  const auto* const state = form.As<objects::FormState>();
  for (const IconRow& icon : kIcons) {
    const bool there = state == nullptr || (state->Icons >> icon.Bit & 1) != 0;
    if (there && (icon.Always || border.Icons)) flags |= icon.Flag;
  }
  if (form.Number(Word::FormStyle) == kStayOnTop) flags |= Qt::WindowStaysOnTopHint;
  return flags;
}

}  // namespace

FormView::FormView(Stage& stage, const ObjectRecord& form)
    : ObjectView(stage, form),
      window_(new RunForm(*this, stage)),
      events_(stage, form.Id, WidgetEvents::Mouse::Plain) {
  window_->setObjectName(looks::ToQString(form.FullName()));
  events_.Watch(*window_, *window_->Client());
}

FormView::~FormView() {
  delete window_.data();
}

QWidget* FormView::Widget() const {
  return window_;
}

QWidget* FormView::Ground() const {
  return window_ == nullptr ? nullptr : window_->Client();
}

const ShowRow<FormView> FormView::kRows[18] = {
    {Word::BorderStyle, &FormView::ShowFrame}, {Word::FormStyle, &FormView::ShowFrame},
    {Word::Parent, &FormView::ShowMenu},       {Word::Width, &FormView::ShowSize},
    {Word::Height, &FormView::ShowSize},       {Word::Left, &FormView::ShowPlace},
    {Word::Top, &FormView::ShowPlace},         {Word::Caption, &FormView::ShowCaption},
    {Word::Color, &FormView::ShowColor},       {Word::Cursor, &FormView::ShowCursor},
    {Word::Hint, &FormView::ShowHint},         {Word::ShowHint, &FormView::ShowHint},
    {Word::Icon, &FormView::ShowIcon},         {Word::IcoHandle, &FormView::ShowIcon},
    {Word::Enabled, &FormView::ShowEnabled},   {Word::WindowState, &FormView::ShowState},
    {Word::Visible, &FormView::ShowVisible},   {Word::AutoScroll, &FormView::ShowScroll},
};

void FormView::Build(const ObjectRecord& form) {
  // It is shown when its objects stand on it.
  for (const ShowRow<FormView>& row : kRows) {
    if (row.Property != Word::Visible && row.Property != Word::WindowState) {
      (this->*row.Show)(form);
    }
  }
  ShowDrawing();
}

void FormView::Apply(const ObjectRecord& form, Word property) {
  if (window_ != nullptr) ShowBy(*this, kRows, form, property);
}

bool FormView::Invoke(const ObjectRecord& form, const MemberInfo& method,
                      std::span<Value> /*arguments*/, Value& /*result*/) {
  if (window_ == nullptr) return false;
  if (method.Name == Word::Show || method.Name == Word::SetFocus) {
    window_->raise();
    window_->activateWindow();
    return true;
  }
  if (method.Name == Word::Repaint) {
    // What was drawn lasts until now.
    stage().Surfaces().Forget(form.Id);
    window_->Client()->repaint();
    stage().Raise(form.Id, Word::OnPaint);
    return true;
  }
  return false;
}

void FormView::ShowDrawing() {
  if (window_ == nullptr) return;
  window_->Client()->update();
  const QBitmap shape = stage().Surfaces().ShapeOf(Id());
  if (shape.isNull()) return;
  window_->setMask(shape);
}

void FormView::Retire() {
  if (window_ == nullptr) return;
  Disappear();
}

// --- Properties

void FormView::ShowFrame(const ObjectRecord& form) {
  const Qt::WindowFlags flags = FlagsOf(form);
  if (window_->windowFlags() == flags) return;
  const bool seen = window_->isVisible();
  // Behind another change it is not active yet.
  const bool active = window_->isActiveWindow() || QApplication::activeWindow() == nullptr;
  showing_ = true;
  window_->setWindowFlags(flags);
  ShowSize(form);
  // The window is another one to the desktop, which knows its frame only when it is shown.
  window_->move(PlaceOf(form).topLeft());
  if (seen) window_->show();
  if (active) window_->activateWindow();
  showing_ = false;
}

void FormView::ShowSize(const ObjectRecord& form) {
  const objects::FrameSize frame = objects::FrameOf(form);
  const QSize outer = PlaceOf(form).size();
  const QSize client(std::max(0, outer.width() - frame.Width),
                     std::max(0, outer.height() - frame.Height) + window_->StripHeight());
  showing_ = true;
  if (BorderOf(form).Sizable) {
    window_->setMinimumSize(0, 0);
    window_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    window_->resize(client);
  } else {
    window_->setFixedSize(client);
  }
  showing_ = false;
}

void FormView::ShowPlace(const ObjectRecord& form) {
  showing_ = true;
  window_->move(PlaceOf(form).topLeft());
  showing_ = false;
}

void FormView::ShowCaption(const ObjectRecord& form) {
  window_->setWindowTitle(looks::ToQString(form.Text(Word::Caption)));
}

void FormView::ShowColor(const ObjectRecord& /*form*/) {
  window_->Client()->update();
}

void FormView::ShowCursor(const ObjectRecord& form) {
  window_->Client()->setCursor(CursorOf(form.Number(Word::Cursor)));
}

void FormView::ShowHint(const ObjectRecord& form) {
  window_->Client()->setToolTip(form.Truth(Word::ShowHint) ? looks::ToQString(form.Text(Word::Hint))
                                                           : QString());
}

void FormView::ShowIcon(const ObjectRecord& form) {
  const QPixmap& picture = stage().Surfaces().PictureOf(form);
  if (!picture.isNull()) window_->setWindowIcon(QIcon(picture));
}

void FormView::ShowEnabled(const ObjectRecord& form) {
  window_->setEnabled(form.Truth(Word::Enabled));
}

void FormView::ShowMenu(const ObjectRecord& form) {
  const auto* const state = form.As<objects::FormState>();
  const ObjectRecord* const menu = state == nullptr ? nullptr : stage().World().Find(state->Menu);
  FillMenuStrip(stage(), *window_->Strip(), menu);
  window_->SetStrip(menu != nullptr);
  ShowSize(form);
}

void FormView::ShowScroll(const ObjectRecord& /*form*/) {
  window_->FitClient();
}

void FormView::ShowState(const ObjectRecord& form) {
  if (!form.Truth(Word::Visible)) return;
  const std::int64_t state = form.Number(Word::WindowState);
  showing_ = true;
  if (state == kMinimized) {
    window_->showMinimized();
  } else if (state == kMaximized) {
    window_->showMaximized();
  } else {
    window_->showNormal();
  }
  showing_ = false;
}

void FormView::ShowVisible(const ObjectRecord& form) {
  if (form.Truth(Word::Visible)) {
    Appear(form);
  } else {
    Disappear();
  }
}

// --- Showing

void FormView::Appear(const ObjectRecord& form) {
  const auto* const state = form.As<objects::FormState>();
  const bool modal = state != nullptr && state->Modal;
  std::vector<ObjectId>& waiting = stage().Modal();
  ObjectView* const owner = waiting.empty() ? nullptr : stage().ViewOf(waiting.back());
  stage().ShowMenus();
  window_->setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  window_->winId();
  if (QWindow* const window = window_->windowHandle()) {
    // A window that the waiting one has opened takes input beside it.
    const bool owned = owner != nullptr && owner != this && owner->Widget() != nullptr;
    window->setTransientParent(owned ? owner->Widget()->windowHandle() : nullptr);
  }
  if (modal && std::find(waiting.begin(), waiting.end(), Id()) == waiting.end()) {
    waiting.push_back(Id());
  }
  OrderTabs(stage(), Id());
  DockChildren(stage(), Id(), window_->Client()->rect());
  ShowState(form);
  window_->activateWindow();
  stage().Raise(Id(), Word::OnPaint);
}

void FormView::Disappear() {
  std::erase(stage().Modal(), Id());
  window_->hide();
}

// --- Reported by the window

void FormView::ClientResized() {
  if (Record() != nullptr) DockChildren(stage(), Id(), window_->Client()->rect());
}

void FormView::Resized() {
  const ObjectRecord* const form = Record();
  if (form == nullptr) return;
  ClientResized();
  if (showing_ || !window_->isVisible() || window_->isMinimized()) return;
  const objects::FrameSize frame = objects::FrameOf(*form);
  const Value width = Value::Integer(window_->width() + frame.Width);
  const Value height = Value::Integer(window_->height() - window_->StripHeight() + frame.Height);
  stage().Report([this, width, height] {
    stage().World().UserSet(Id(), Word::Width, width);
    stage().World().UserSet(Id(), Word::Height, height);
  });
}

void FormView::Moved() {
  const ObjectRecord* const form = Record();
  if (form == nullptr || showing_ || !window_->isVisible() || window_->isMinimized()) return;
  const QPoint at = window_->pos();
  stage().Report([this, at] {
    stage().World().UserSet(Id(), Word::Left, Value::Integer(at.x()));
    stage().World().UserSet(Id(), Word::Top, Value::Integer(at.y()));
  });
}

void FormView::StateChanged() {
  if (showing_ || Record() == nullptr) return;
  std::int64_t state = 0;
  if (window_->isMaximized()) state = kMaximized;
  if (window_->isMinimized()) state = kMinimized;
  const std::int64_t before = Record()->Number(Word::WindowState);
  const ObjectId application =
      stage().World().BuiltIn(static_cast<basic::ClassId>(ObjectClass::Application));
  if (state == kMinimized && before != kMinimized) stage().Raise(application, Word::OnMinimize);
  if (state != kMinimized && before == kMinimized) stage().Raise(application, Word::OnRestore);
  stage().Report(
      [this, state] { stage().World().UserSet(Id(), Word::WindowState, Value::Integer(state)); });
}

void FormView::ActivationChanged() {
  if (stage().Ending()) return;
  const ObjectId application =
      stage().World().BuiltIn(static_cast<basic::ClassId>(ObjectClass::Application));
  stage().Raise(application, window_->isActiveWindow() ? Word::OnActivate : Word::OnDeactivate);
}

void FormView::CloseAsked() {
  stage().Report([this] { stage().World().CloseForm(Id()); });
}

bool FormView::KeyLeft(int key) {
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!enter && key != Qt::Key_Escape) return false;
  const ObjectRecord* const form = Record();
  if (form == nullptr) return false;
  auto* const focused = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
  if (enter && focused != nullptr && !focused->isCheckable()) {
    focused->click();
    return true;
  }
  const Word wanted = enter ? Word::Default : Word::Cancel;
  for (const ObjectId id : form->Children) {
    const ObjectRecord* const child = stage().World().Find(id);
    ObjectView* const view = stage().ViewOf(id);
    if (child == nullptr || view == nullptr || !child->Truth(wanted)) continue;
    auto* const button = qobject_cast<QAbstractButton*>(view->Widget());
    if (button == nullptr || !button->isVisible() || !button->isEnabled()) continue;
    button->click();
    return true;
  }
  return false;
}

// --- Focus

void OrderTabs(Stage& stage, ObjectId form) {
  const ObjectRecord* const record = stage.World().Find(form);
  ObjectView* const view = stage.ViewOf(form);
  if (record == nullptr || view == nullptr) return;
  struct Stop {
    std::int64_t Number;
    QWidget* Widget;
  };
  std::vector<Stop> stops;
  for (const ObjectId id : record->Children) {
    const ObjectRecord* const child = stage.World().Find(id);
    const ObjectView* const shown = stage.ViewOf(id);
    QWidget* const widget = shown == nullptr ? nullptr : shown->Widget();
    if (child == nullptr || widget == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
    const std::int64_t number = child->Number(Word::TabOrder);
    stops.push_back({number < 0 ? INT64_MAX : number, widget});
  }
  std::stable_sort(stops.begin(), stops.end(),
                   [](const Stop& a, const Stop& b) { return a.Number < b.Number; });
  for (std::size_t i = 1; i < stops.size(); ++i) {
    QWidget::setTabOrder(stops[i - 1].Widget, stops[i].Widget);
  }
  if (view->Widget()->focusWidget() != nullptr) return;
  for (const Stop& stop : stops) {
    if (!stop.Widget->isEnabled() || stop.Widget->isHidden()) continue;
    stop.Widget->setFocus(Qt::OtherFocusReason);
    return;
  }
  view->Widget()->setFocus(Qt::OtherFocusReason);
}

}  // namespace tarnwick::run
