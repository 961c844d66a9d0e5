#include "qt/surface/surface_access.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>
#include <vector>

#include "designer/hit_test.h"
#include "designer/selection.h"
#include "qt/kit/text_bridge.h"
#include "qt/surface/design_window.h"
#include "qt/surface/form_menu_strip.h"

namespace tarnwick {

namespace {

QAccessible::Role RoleOf(Kind kind) {
  switch (kind) {
    case Kind::Button:
      return QAccessible::PushButton;
    case Kind::Label:
      return QAccessible::StaticText;
    case Kind::CheckBox:
      return QAccessible::CheckBox;
    case Kind::OptionButton:
      return QAccessible::RadioButton;
    case Kind::TextBox:
    case Kind::RichTextBox:
      return QAccessible::EditableText;
    case Kind::ListBox:
      return QAccessible::List;
    case Kind::ComboBox:
      return QAccessible::ComboBox;
    default:
      return QAccessible::Graphic;
  }
}

/// What is painted and has no widget: a leaf below a widget, which takes a press.
class PaintedAccess : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  explicit PaintedAccess(QWidget& above) : above_(above) {}

  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&above_);
  }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
    return nullptr;
  }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
    return -1;
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  [[nodiscard]] QRect rect() const override {
    const QRect place = Place();
    return {above_.mapToGlobal(place.topLeft()), place.size()};
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction() && isValid()) Press();
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override {
    return {};
  }

 private:
  /// In pixels of the widget; empty for a part that is not there.
  [[nodiscard]] virtual QRect Place() const = 0;
  virtual void Press() = 0;

  QWidget& above_;
};

/// An object of a design form. It lives as long as its surface and is not valid any more when
/// the object was removed from the form.
class ObjectAccess final : public PaintedAccess {
 public:
  ObjectAccess(DesignSurface& surface, std::weak_ptr<DesignControl> object)
      : PaintedAccess(surface), surface_(surface), object_(std::move(object)) {}

  [[nodiscard]] bool isValid() const override {
    const ControlRef object = object_.lock();
    const DesignForm* const form = surface_.Form();
    return object && form != nullptr && form->Element(object->Id, object->Index) == object;
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const ControlRef object = object_.lock();
    if (!object) return {};
    if (kind == QAccessible::Name) return ToQString(object->Tag);
    if (kind == QAccessible::Description) return ToQString(InfoOf(object->Id).Name);
    return {};
  }
  [[nodiscard]] QAccessible::Role role() const override {
    const ControlRef object = object_.lock();
    return object ? RoleOf(object->Id) : QAccessible::NoRole;
  }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    const ControlRef object = object_.lock();
    state.invalid = !isValid();
    state.selectable = true;
    state.focusable = true;
    const bool selected =
        object && surface_.Form() != nullptr && surface_.Form()->ControlSel == object;
    state.selected = selected;
    state.focused = selected && surface_.hasFocus();
    return state;
  }

 private:
  [[nodiscard]] QRect Place() const override {
    const ControlRef object = object_.lock();
    return object ? PixelRectOf(*object) : QRect();
  }
  void Press() override { surface_.PressObject(object_.lock()); }

  DesignSurface& surface_;
  std::weak_ptr<DesignControl> object_;
};

/// The client area of a design form. Interfaces of objects are made when they are first asked for
/// and kept until the surface goes.
class SurfaceAccess final : public QAccessibleWidget {
 public:
  explicit SurfaceAccess(DesignSurface& surface)
      : QAccessibleWidget(&surface, QAccessible::Form), surface_(surface) {}
  ~SurfaceAccess() override {
    for (const auto& [object, id] : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  [[nodiscard]] int childCount() const override { return static_cast<int>(Objects().size()); }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    const std::vector<ControlRef> objects = Objects();
    if (index < 0 || static_cast<std::size_t>(index) >= objects.size()) return nullptr;
    return AccessOf(objects[static_cast<std::size_t>(index)]);
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    const std::vector<ControlRef> objects = Objects();
    for (std::size_t i = 0; i < objects.size(); ++i) {
      if (AccessOf(objects[i]) == child) return static_cast<int>(i);
    }
    return -1;
  }
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
    if (surface_.Form() == nullptr) return nullptr;
    const QPoint place = surface_.mapFromGlobal(QPoint(x, y));
    for (const ControlRef& object : PaintOrder(*surface_.Form())) {
      if (PixelRectOf(*object).contains(place)) return AccessOf(object);
    }
    return nullptr;
  }
  [[nodiscard]] QAccessibleInterface* focusChild() const override {
    const DesignForm* const form = surface_.Form();
    if (form == nullptr || !form->ControlSel || !surface_.hasFocus()) return nullptr;
    return AccessOf(form->ControlSel);
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name && surface_.Form() != nullptr) {
      return ToQString(surface_.FormName());
    }
    return QAccessibleWidget::text(kind);
  }

 private:
  /// Those that can be seen, in the order in which Tab meets them.
  [[nodiscard]] std::vector<ControlRef> Objects() const {
    std::vector<ControlRef> objects;
    if (surface_.Form() == nullptr) return objects;
    for (const ControlRef& control : surface_.Form()->Controls()) {
      if (control->Visible && IsObject(*control)) objects.push_back(control);
    }
    return objects;
  }
  [[nodiscard]] QAccessibleInterface* AccessOf(const ControlRef& object) const {
    const auto [found, fresh] = ids_.try_emplace(object.get(), 0U);
    QAccessibleInterface* known = fresh ? nullptr : QAccessible::accessibleInterface(found->second);
    // Another object can come to lie where one was that is gone.
    if (known != nullptr && known->isValid()) return known;
    if (known != nullptr) QAccessible::deleteAccessibleInterface(found->second);
    known = new ObjectAccess(surface_, object);
    found->second = QAccessible::registerAccessibleInterface(known);
    return known;
  }

  DesignSurface& surface_;
  mutable std::unordered_map<const DesignControl*, QAccessible::Id> ids_;
};

constexpr std::array kFrameButtons{FramePart::Minimise, FramePart::Maximise, FramePart::Close};

/// A painted button of the frame of a design window. It lives as long as the window's interface.
class FrameButtonAccess final : public PaintedAccess {
 public:
  FrameButtonAccess(DesignWindow& window, FramePart part)
      : PaintedAccess(window), window_(window), part_(part) {}

  [[nodiscard]] bool isValid() const override { return true; }
  /// The name says what a press does now.
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return {};
    if (part_ == FramePart::Close) return QStringLiteral("Close");
    const bool maximises = part_ == FramePart::Maximise;
    const WindowState state = maximises ? WindowState::Maximised : WindowState::Minimised;
    if (window_.State() == state) return QStringLiteral("Restore");
    return maximises ? QStringLiteral("Maximise") : QStringLiteral("Minimise");
  }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::PushButton; }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = window_.Frame().ButtonRect(part_).isEmpty() || !window_.isVisible();
    return state;
  }

 private:
  [[nodiscard]] QRect Place() const override { return window_.Frame().ButtonRect(part_); }
  void Press() override { window_.PressButton(part_); }

  DesignWindow& window_;
  FramePart part_;
};

/// A design window: its widgets, then the buttons that its frame has.
class WindowAccess final : public QAccessibleWidget {
 public:
  explicit WindowAccess(DesignWindow& window)
      : QAccessibleWidget(&window, QAccessible::Window), window_(window) {
    for (std::size_t i = 0; i < ids_.size(); ++i) {
      ids_[i] =
          QAccessible::registerAccessibleInterface(new FrameButtonAccess(window, kFrameButtons[i]));
    }
  }
  ~WindowAccess() override {
    for (const QAccessible::Id id : ids_) QAccessible::deleteAccessibleInterface(id);
  }

  [[nodiscard]] int childCount() const override {
    return QAccessibleWidget::childCount() + static_cast<int>(Buttons().size());
  }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    const int widgets = QAccessibleWidget::childCount();
    if (index < widgets) return QAccessibleWidget::child(index);
    const std::vector<QAccessibleInterface*> buttons = Buttons();
    const auto button = static_cast<std::size_t>(index - widgets);
    return button < buttons.size() ? buttons[button] : nullptr;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    const std::vector<QAccessibleInterface*> buttons = Buttons();
    const auto found = std::find(buttons.begin(), buttons.end(), child);
    if (found == buttons.end()) return QAccessibleWidget::indexOfChild(child);
    return QAccessibleWidget::childCount() + static_cast<int>(found - buttons.begin());
  }
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
    for (QAccessibleInterface* const button : Buttons()) {
      if (button->rect().contains(x, y)) return button;
    }
    return QAccessibleWidget::childAt(x, y);
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return ToQString(window_.Surface().FormName());
    return QAccessibleWidget::text(kind);
  }

 private:
  [[nodiscard]] std::vector<QAccessibleInterface*> Buttons() const {
    std::vector<QAccessibleInterface*> buttons;
    const WindowFrame frame = window_.Frame();
    for (std::size_t i = 0; i < ids_.size(); ++i) {
      if (frame.ButtonRect(kFrameButtons[i]).isEmpty()) continue;
      buttons.push_back(QAccessible::accessibleInterface(ids_[i]));
    }
    return buttons;
  }

  DesignWindow& window_;
  std::array<QAccessible::Id, kFrameButtons.size()> ids_{};
};

/// A title of a form's menu bar, which opens its items.
class MenuTitleAccess final : public QAccessibleWidget {
 public:
  explicit MenuTitleAccess(QAbstractButton& title)
      : QAccessibleWidget(&title, QAccessible::MenuItem), title_(title) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    return state;
  }
  [[nodiscard]] QStringList actionNames() const override { return {showMenuAction()}; }
  void doAction(const QString& action) override {
    if (action == showMenuAction()) emit title_.pressed();
  }

 private:
  QAbstractButton& title_;
};

QAccessibleInterface* MakeAccess(const QString& /*class_name*/, QObject* object) {
  if (auto* const surface = qobject_cast<DesignSurface*>(object)) {
    return new SurfaceAccess(*surface);
  }
  if (auto* const window = qobject_cast<DesignWindow*>(object)) return new WindowAccess(*window);
  if (auto* const strip = qobject_cast<FormMenuStrip*>(object)) {
    return new QAccessibleWidget(strip, QAccessible::MenuBar);
  }
  auto* const button = qobject_cast<QAbstractButton*>(object);
  if (button != nullptr && qobject_cast<FormMenuStrip*>(button->parentWidget()) != nullptr) {
    return new MenuTitleAccess(*button);
  }
  return nullptr;
}

}  // namespace

void InstallSurfaceAccess() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeAccess);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace tarnwick
