#include "run/widget_events.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>

#include "looks/text_bridge.h"
#include "run/stage.h"

namespace tarnwick::run {
namespace {

constexpr int kDoubleBit = 64;

int ButtonNumber(Qt::MouseButton button) {
  if (button == Qt::RightButton) return 1;
  return button == Qt::MiddleButton ? 2 : 0;
}

/// The character of a key in the code page; 0 when it has none.
int CharacterOf(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.isEmpty()) return 0;
  const std::string bytes = looks::FromQString(text.left(1));
  return bytes.empty() ? 0 : static_cast<unsigned char>(bytes[0]);
}

}  // namespace

void WidgetEvents::Watch(QWidget& keys, QWidget& mouse) {
  keys_ = &keys;
  pointed_ = &mouse;
  keys.installEventFilter(this);
  if (&mouse != &keys) mouse.installEventFilter(this);
  mouse.setMouseTracking(true);
  // What the control leaves to its parent is no event of the parent.
  mouse.setAttribute(Qt::WA_NoMousePropagation);
}

void WidgetEvents::WatchPart(QWidget& part) {
  part_ = &part;
  part.installEventFilter(this);
  part.setMouseTracking(true);
  part.setContextMenuPolicy(Qt::NoContextMenu);
}

bool WidgetEvents::eventFilter(QObject* watched, QEvent* event) {
  if (sending_ || stage_.Ending() || stage_.World().Find(object_) == nullptr) return false;
  const bool pointed = watched == pointed_ || watched == part_;
  if (pointed && pointed_->isEnabled() && ByMouse(*event)) return true;
  return watched == keys_ && keys_->isEnabled() && ByKey(*keys_, *event);
}

bool WidgetEvents::ByMouse(QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      return Pressed(static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
      return Released(static_cast<QMouseEvent&>(event));
    case QEvent::MouseMove:
      return Moved(static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonDblClick:
      return DoubleClicked(static_cast<QMouseEvent&>(event));
    case QEvent::Wheel:
      Turned(static_cast<QWheelEvent&>(event));
      return true;
    case QEvent::Enter:
    case QEvent::Leave:
      ShowHint(event.type() == QEvent::Enter);
      return false;
    case QEvent::ContextMenu: {
      // With a popup menu of its own the widget's is not shown.
      const ObjectRecord* const object = stage_.World().Find(object_);
      return object->Object(Word::PopupMenu) != ObjectId::None || mouse_ == Mouse::Plain;
    }
    default:
      return false;
  }
}

bool WidgetEvents::ByKey(QWidget& widget, QEvent& event) {
  // A key that another widget has left is no key of this one.
  const bool mine = widget.hasFocus() || (widget.isWindow() && widget.focusWidget() == nullptr);
  switch (event.type()) {
    case QEvent::KeyPress:
      return mine && KeyPressed(widget, static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
      return mine && KeyReleased(static_cast<QKeyEvent&>(event));
    case QEvent::FocusIn:
      stage_.Raise(object_, Word::OnEnter);
      return false;
    case QEvent::FocusOut:
      stage_.Raise(object_, Word::OnExit);
      return false;
    default:
      return false;
  }
}

QPoint WidgetEvents::Within(const QMouseEvent& event) const {
  const QWidget& origin = keys_->isWindow() ? *pointed_ : *keys_;
  return origin.mapFromGlobal(event.globalPosition().toPoint());
}

bool WidgetEvents::Pressed(const QMouseEvent& event) {
  const QPoint at = Within(event);
  if (event.button() == Qt::LeftButton) pressed_ = true;
  stage_.Raise(
      object_, Word::OnMouseDown,
      {Value::Integer(ButtonNumber(event.button())), Value::Integer(at.x()), Value::Integer(at.y()),
       Value::Integer(ShiftBits(event.modifiers(), event.buttons()))});
  return mouse_ == Mouse::Plain;
}

bool WidgetEvents::Released(const QMouseEvent& event) {
  const QPoint at = Within(event);
  const QPoint global = event.globalPosition().toPoint();
  const bool left = event.button() == Qt::LeftButton;
  const bool click = left && pressed_ && mouse_ != Mouse::Own && pointed_->rect().contains(at);
  if (left) pressed_ = false;
  if (click) stage_.Report([this] { stage_.World().Click(object_); });
  stage_.Raise(
      object_, Word::OnMouseUp,
      {Value::Integer(ButtonNumber(event.button())), Value::Integer(at.x()), Value::Integer(at.y()),
       Value::Integer(ShiftBits(event.modifiers(), event.buttons()))});
  if (event.button() == Qt::RightButton) ShowPopup(global);
  return mouse_ == Mouse::Plain;
}

void WidgetEvents::Turned(QWheelEvent& event) {
  // What the control does not need scrolls what it stands on.
  const QPointer<QWidget> pointed(pointed_);
  const auto turn = [&](QWidget& at) {
    QWheelEvent own(at.mapFromGlobal(event.globalPosition()), event.globalPosition(),
                    event.pixelDelta(), event.angleDelta(), event.buttons(), event.modifiers(),
                    event.phase(), event.inverted(), event.source());
    own.ignore();
    QCoreApplication::sendEvent(&at, &own);
    return own.isAccepted();
  };
  const bool before = std::exchange(sending_, true);
  bool taken = turn(*pointed);
  QPointer<QWidget> above(pointed.isNull() ? nullptr : pointed->parentWidget());
  while (!taken && !above.isNull() && !above->isWindow()) {
    auto* const area = qobject_cast<QAbstractScrollArea*>(above.data());
    if (area != nullptr && area->viewport() != pointed) taken = turn(*area->viewport());
    if (!above.isNull()) above = above->parentWidget();
  }
  sending_ = before;
  event.setAccepted(taken);
}

void WidgetEvents::ShowHint(bool enters) {
  const ObjectRecord* const object = stage_.World().Find(object_);
  const std::string hint(enters && object != nullptr ? object->Text(Word::Hint) : "");
  stage_.Report([&stage = stage_, id = object_, hint] {
    objects::ObjectWorld& world = stage.World();
    const ObjectId application =
        world.BuiltIn(static_cast<basic::ClassId>(ObjectClass::Application));
    objects::ObjectRecord* const program = world.Find(application);
    if (program == nullptr || program->Text(Word::Hint) == hint) return;
    program->Put(Word::Hint, Value::Text(hint));
    if (!world.Raise(application, Word::OnHint)) return;
    const ObjectRecord* const over = world.Find(id);
    const ObjectRecord* const form = over == nullptr ? nullptr : world.FormOf(*over);
    Value argument = Value::Text(hint);
    if (form != nullptr) world.Raise(form->Id, Word::OnHint, {&argument, 1});
  });
}

bool WidgetEvents::Moved(const QMouseEvent& event) {
  const QPoint at = Within(event);
  stage_.Raise(object_, Word::OnMouseMove,
               {Value::Integer(at.x()), Value::Integer(at.y()),
                Value::Integer(ShiftBits(event.modifiers(), event.buttons()))});
  return mouse_ == Mouse::Plain;
}

bool WidgetEvents::DoubleClicked(const QMouseEvent& event) {
  const QPoint at = Within(event);
  if (event.button() == Qt::LeftButton) {
    pressed_ = true;
    stage_.Raise(object_, Word::OnDblClick);
  }
  stage_.Raise(
      object_, Word::OnMouseDown,
      {Value::Integer(ButtonNumber(event.button())), Value::Integer(at.x()), Value::Integer(at.y()),
       Value::Integer(ShiftBits(event.modifiers(), event.buttons()) | kDoubleBit)});
  return mouse_ == Mouse::Plain;
}

bool WidgetEvents::KeyPressed(QWidget& widget, const QKeyEvent& event) {
  const QPointer<QWidget> target(&widget);
  const ObjectView* const form_view = stage_.FormViewOf(object_);
  const ObjectRecord* const form = form_view == nullptr ? nullptr : form_view->Record();
  std::vector<ObjectId> receivers{object_};
  if (form != nullptr && form->Id != object_ && form->Truth(Word::KeyPreview)) {
    receivers.insert(receivers.begin(), form->Id);
  }
  const int code = VirtualKey(event);
  int character = CharacterOf(event);
  const int before = character;
  for (const ObjectId receiver : receivers) {
    if (stage_.Ending()) return true;
    Value down[] = {Value::Integer(code), Value::Integer(ShiftBits(event.modifiers(), {}))};
    stage_.World().Raise(receiver, Word::OnKeyDown, down);
    if (code != 0 && down[0].AsInteger() == 0) return true;
  }
  for (const ObjectId receiver : receivers) {
    if (character == 0) break;
    if (stage_.Ending()) return true;
    Value pressed[] = {Value::Integer(character)};
    stage_.World().Raise(receiver, Word::OnKeyPress, pressed);
    character = static_cast<int>(pressed[0].AsInteger() & 0xFF);
    if (character == 0) return true;
  }
  if (target.isNull() || stage_.World().Find(object_) == nullptr) return true;
  if (character == before) return false;
  // The handler made another character of it.
  const QString text = looks::ToQString(std::string(1, static_cast<char>(character)));
  const int key = text.at(0).toUpper().unicode();
  QKeyEvent changed(QEvent::KeyPress, key, event.modifiers(), text);
  sending_ = true;
  QCoreApplication::sendEvent(target, &changed);
  sending_ = false;
  return true;
}

bool WidgetEvents::KeyReleased(const QKeyEvent& event) {
  const ObjectView* const form_view = stage_.FormViewOf(object_);
  const ObjectRecord* const form = form_view == nullptr ? nullptr : form_view->Record();
  const int code = VirtualKey(event);
  std::vector<Value> up{Value::Integer(code), Value::Integer(ShiftBits(event.modifiers(), {}))};
  if (form != nullptr && form->Id != object_ && form->Truth(Word::KeyPreview)) {
    stage_.Raise(form->Id, Word::OnKeyUp, up);
  }
  stage_.Raise(object_, Word::OnKeyUp, std::move(up));
  return stage_.World().Find(object_) == nullptr;
}

void WidgetEvents::ShowPopup(const QPoint& global) {
  // An object without a menu shows that of what it stands on.
  const ObjectRecord* object = stage_.World().Find(object_);
  while (object != nullptr) {
    const ObjectRecord* const menu = stage_.World().Find(object->Object(Word::PopupMenu));
    if (menu != nullptr) {
      if (menu->Truth(Word::AutoPopup)) stage_.Popup(menu->Id, global);
      return;
    }
    object = stage_.World().Find(object->Parent);
  }
}

}  // namespace tarnwick::run
