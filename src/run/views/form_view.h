// A window of the running program.
#pragma once

#include "run/widget_view.h"

class QMenuBar;

namespace tarnwick::run {

class RunForm;

/// The window of a QFORM: a menu strip and the client area on which its objects stand. The frame
/// around it is the desktop's own; Width and Height count the measures of the design form's.
class FormView final : public ObjectView {
 public:
  FormView(Stage& stage, const ObjectRecord& form);
  ~FormView() override;

  [[nodiscard]] QWidget* Widget() const override;
  [[nodiscard]] QWidget* Ground() const override;
  void Build(const ObjectRecord& form) override;
  void Apply(const ObjectRecord& form, Word property) override;
  bool Invoke(const ObjectRecord& form, const MemberInfo& method, std::span<Value> arguments,
              Value& result) override;
  void ShowDrawing() override;
  void Retire() override;

  // Reported by the window
  void Resized();
  void ClientResized();
  void Moved();
  void StateChanged();
  void ActivationChanged();
  void CloseAsked();
  /// A key that no object took: Enter presses the default button, Esc the cancel button.
  [[nodiscard]] bool KeyLeft(int key);

 private:
  void ShowFrame(const ObjectRecord& form);
  void ShowPlace(const ObjectRecord& form);
  void ShowSize(const ObjectRecord& form);
  void ShowCaption(const ObjectRecord& form);
  void ShowColor(const ObjectRecord& form);
  void ShowCursor(const ObjectRecord& form);
  void ShowHint(const ObjectRecord& form);
  void ShowIcon(const ObjectRecord& form);
  void ShowEnabled(const ObjectRecord& form);
  void ShowMenu(const ObjectRecord& form);
  void ShowScroll(const ObjectRecord& form);
  void ShowState(const ObjectRecord& form);
  void ShowVisible(const ObjectRecord& form);
  void Appear(const ObjectRecord& form);
  void Disappear();
  /// The windows that stand around the client area: what the menu strip takes.
  [[nodiscard]] int StripHeight() const;

  static const ShowRow<FormView> kRows[18];
  QPointer<RunForm> window_;
  WidgetEvents events_;
  bool showing_ = false;  ///< sizes that come now are our own
};

/// Orders the objects of a form by their numbers and gives the first one the focus.
void OrderTabs(Stage& stage, ObjectId form);

}  // namespace tarnwick::run
