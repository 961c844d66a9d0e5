// The windows of a running program: the toolkit's side of the door between objects and widgets.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <unordered_map>
#include <vector>

#include "looks/form_texts.h"
#include "looks/picture_cache.h"
#include "objects/object_world.h"
#include "objects/widget_port.h"
#include "run/object_view.h"

namespace tarnwick::run {

class DrawingSurfaces;
class PagePrinter;

/// Shows the records of an `ObjectWorld` as widgets and reports what the user does.
///
///   Stage stage;
///   ObjectWorld world(stage, &files, facts);
///   stage.Connect(world);
class Stage final : public objects::WidgetPort {
 public:
  Stage();
  ~Stage() override;
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;
  /// Before the program starts.
  void Connect(objects::ObjectWorld& world) { world_ = &world; }

  void Realise(const ObjectRecord& object) override;
  void Apply(const ObjectRecord& object, const MemberInfo& member) override;
  void ItemsChanged(const ObjectRecord& list, const objects::ItemsChange& change) override;
  void MenuChanged(const ObjectRecord& menu) override;
  bool Invoke(const ObjectRecord& object, const MemberInfo& method, std::span<Value> arguments,
              Value& result) override;
  bool Live(const ObjectRecord& object, const MemberInfo& member, std::span<const Value> index,
            Value& out) override;
  void Destroy(ObjectId object) override;
  bool PumpEvents(int wait_ms) override;
  void Repaint() override;
  /// Handles events for up to so many milliseconds, until some have come. Those of the user wait,
  /// and nothing is reported to the program before it asks for events.
  void Rest(int wait_ms);
  objects::TextSize Measure(const objects::FontValues& font, std::string_view text,
                            int wrap_width) override;
  objects::PickedNames PickFiles(const ObjectRecord& dialog) override;

  // --- For the views
  [[nodiscard]] objects::ObjectWorld& World() const { return *world_; }
  /// The record of an object; null when it is gone, or all objects are.
  [[nodiscard]] const ObjectRecord* RecordOf(ObjectId object) const {
    return world_ == nullptr ? nullptr : world_->Find(object);
  }
  [[nodiscard]] looks::FormTexts& Texts() { return texts_; }
  [[nodiscard]] looks::PictureCache& Pictures() { return pictures_; }
  [[nodiscard]] DrawingSurfaces& Surfaces() { return *surfaces_; }
  [[nodiscard]] PagePrinter& Printer() { return *printer_; }
  /// The view of an object; null when it is not realised.
  [[nodiscard]] ObjectView* ViewOf(ObjectId object) const;
  /// The view of the form on which an object stands; null when it stands on none.
  [[nodiscard]] ObjectView* FormViewOf(ObjectId object) const;
  /// The bytes of a file of the program; nothing when it cannot be read.
  [[nodiscard]] std::optional<std::string> ReadFile(const std::string& path);
  /// The font of an object as the screen has it.
  [[nodiscard]] const looks::FormFont& FontOf(const ObjectRecord& object);
  /// Reports to the world: at once, or, while windows only repaint, before the next events.
  void Report(std::function<void()> report);
  /// Raises an event; false when the handler set its first argument to 0 or the object is gone.
  bool Raise(ObjectId object, Word event, std::vector<Value> arguments = {});
  /// True while windows only repaint: timers let a tick pass.
  [[nodiscard]] bool Quiet() const { return quiet_; }
  /// True when the program is ending.
  [[nodiscard]] bool Ending() const { return world_ == nullptr || world_->Ending(); }
  /// Opens a popup menu at a position of the screen. Nothing when there is no such menu.
  void Popup(ObjectId menu, const QPoint& at);
  /// Runs a dialog of the toolkit, which handles events until it is closed.
  void Within(const std::function<void()>& dialog) {
    ++depth_;
    dialog();
    --depth_;
  }
  /// The form's window got a menu bar or lost it.
  void ShowMenus() { RebuildMenus(); }
  /// Forms that wait for the user, the innermost last.
  [[nodiscard]] std::vector<ObjectId>& Modal() { return modal_; }

 private:
  void RunReports();
  void RebuildMenus();

  objects::ObjectWorld* world_ = nullptr;
  looks::FormTexts texts_;
  looks::PictureCache pictures_;
  std::unique_ptr<DrawingSurfaces> surfaces_;
  std::unique_ptr<PagePrinter> printer_;
  std::unordered_map<ObjectId, ObjectView*> views_;
  std::vector<ObjectView*> retired_;
  std::set<ObjectId> changed_menus_;
  std::vector<ObjectId> forms_;
  std::vector<ObjectId> modal_;
  std::vector<std::function<void()>> reports_;
  int depth_ = 0;
  bool quiet_ = false;
};

/// Makes the view of an object; null for a class that shows nothing.
[[nodiscard]] ObjectView* MakeView(Stage& stage, const ObjectRecord& object);

}  // namespace tarnwick::run
