// What all objects that stand on a form show alike.
#pragma once

#include <QCursor>
#include <QPointer>
#include <QWidget>

#include "run/object_view.h"
#include "run/widget_events.h"

namespace tarnwick::run {

/// A view with a widget of its own that stands on the widget of its parent.
class WidgetView : public ObjectView {
 public:
  /// Takes over `widget`. `pointed` is what the pointer meets of it, when that is a part.
  WidgetView(Stage& stage, const ObjectRecord& object, QWidget* widget, WidgetEvents::Mouse mouse,
             QWidget* pointed = nullptr);
  ~WidgetView() override;

  [[nodiscard]] QWidget* Widget() const override { return widget_; }
  void Build(const ObjectRecord& object) final;
  void Apply(const ObjectRecord& object, Word property) final;
  bool Invoke(const ObjectRecord& object, const MemberInfo& method, std::span<Value> arguments,
              Value& result) override;

 protected:
  /// Shows the properties of its class.
  virtual void BuildOwn(const ObjectRecord& object) = 0;
  /// Shows a property of its class; what is left shows by painting the widget again.
  virtual void ApplyOwn(const ObjectRecord& object, Word property) = 0;
  /// Gives the widget the font and the colours of the object.
  virtual void ShowFont(const ObjectRecord& object);
  virtual void ShowColor(const ObjectRecord& object);
  /// The widget has got the place of the object.
  virtual void Placed(const ObjectRecord& /*object*/) {}
  [[nodiscard]] WidgetEvents& Events() { return events_; }

 private:
  void ShowPlace(const ObjectRecord& object);
  void ShowAlign(const ObjectRecord& object);
  void ShowVisible(const ObjectRecord& object);
  void ShowTabOrder(const ObjectRecord& object);
  void ShowEnabled(const ObjectRecord& object);
  void ShowHint(const ObjectRecord& object);
  void ShowCursor(const ObjectRecord& object);
  void ShowParent(const ObjectRecord& object);
  void FontChanged(const ObjectRecord& object) { ShowFont(object); }
  void ColorChanged(const ObjectRecord& object) { ShowColor(object); }

  static const ShowRow<WidgetView> kRows[14];
  QPointer<QWidget> widget_;
  WidgetEvents events_;
};

/// A widget view whose class has a table of its own properties.
template <class Own>
class TableView : public WidgetView {
 public:
  using WidgetView::WidgetView;

 protected:
  void BuildOwn(const ObjectRecord& object) override {
    ShowAll(static_cast<Own&>(*this), Own::kRows, object);
  }
  void ApplyOwn(const ObjectRecord& object, Word property) override {
    if (!ShowBy(static_cast<Own&>(*this), Own::kRows, object, property)) Widget()->update();
  }
};

/// The cursor of the property Cursor.
[[nodiscard]] QCursor CursorOf(std::int64_t number);
/// The rectangle of an object within its parent, pixels.
[[nodiscard]] QRect PlaceOf(const ObjectRecord& object);
/// Docks the objects with Align within the ground of their parent, in the order of their sides.
void DockChildren(Stage& stage, ObjectId parent, const QRect& area);

}  // namespace tarnwick::run
