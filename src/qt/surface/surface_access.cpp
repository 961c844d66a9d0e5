#include "qt/surface/surface_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <unordered_map>
#include <utility>
#include <vector>

#include "designer/hit_test.h"
#include "designer/selection.h"
#include "qt/kit/text_bridge.h"
#include "qt/surface/design_surface.h"

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

/// An object of a design form. It lives as long as its surface, and is no object's any more once
/// the object has left the form.
class ObjectAccess final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  ObjectAccess(DesignSurface& surface, std::weak_ptr<DesignControl> object)
      : surface_(surface), object_(std::move(object)) {}

  [[nodiscard]] bool isValid() const override {
    const ControlRef object = object_.lock();
    const DesignForm* const form = surface_.Form();
    return object && form != nullptr && form->Element(object->Id, object->Index) == object;
  }
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&surface_);
  }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
    return nullptr;
  }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
    return -1;
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const ControlRef object = object_.lock();
    if (!object) return {};
    if (kind == QAccessible::Name) return ToQString(object->Tag);
    if (kind == QAccessible::Description) return ToQString(InfoOf(object->Id).Name);
    return {};
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  [[nodiscard]] QRect rect() const override {
    const ControlRef object = object_.lock();
    if (!object) return {};
    const QRect place = PixelRectOf(*object);
    return {surface_.mapToGlobal(place.topLeft()), place.size()};
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
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }

  [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction() && isValid()) surface_.PressObject(object_.lock());
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override {
    return {};
  }

 private:
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

QAccessibleInterface* MakeAccess(const QString& /*class_name*/, QObject* object) {
  if (auto* const surface = qobject_cast<DesignSurface*>(object)) {
    return new SurfaceAccess(*surface);
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
