#include "run/stage.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "run/drawing_surfaces.h"
#include "run/file_dialogs.h"
#include "run/menus.h"
#include "run/page_printer.h"
#include "run/system_view.h"

namespace tarnwick::run {

using objects::ClassFlag;

Stage::Stage()
    : pictures_([this](const std::string& path) { return ReadFile(path); }),
      surfaces_(std::make_unique<DrawingSurfaces>(*this)),
      printer_(std::make_unique<PagePrinter>(*this)) {}

Stage::~Stage() {
  // The objects are gone already: what windows report while they close is lost.
  world_ = nullptr;
  for (const auto& [id, view] : views_) retired_.push_back(view);
  for (ObjectView* const view : retired_) {
    if (view->Widget() != nullptr) view->Widget()->blockSignals(true);
  }
  for (ObjectView* const view : retired_) view->Retire();
  for (ObjectView* const view : retired_) delete view;
}

std::optional<std::string> Stage::ReadFile(const std::string& path) {
  basic::FileHost* const files = world_->Files();
  const auto file = files == nullptr ? nullptr : files->Open(path, basic::FileMode::Read);
  if (file == nullptr) return std::nullopt;
  return file->Read(static_cast<std::size_t>(file->Size()));
}

ObjectView* Stage::ViewOf(ObjectId object) const {
  const auto found = views_.find(object);
  return found == views_.end() ? nullptr : found->second;
}

ObjectView* Stage::FormViewOf(ObjectId object) const {
  const ObjectRecord* const record = world_->Find(object);
  const ObjectRecord* const form = record == nullptr ? nullptr : world_->FormOf(*record);
  return form == nullptr ? nullptr : ViewOf(form->Id);
}

const looks::FormFont& Stage::FontOf(const ObjectRecord& object) {
  const objects::FontValues font = world_->FontOf(object);
  return texts_.FontOf({font.Name, static_cast<float>(font.Size), font.Bold, font.Italic,
                        font.Underline, font.StrikeOut});
}

// --- Asked by the objects

void Stage::Realise(const ObjectRecord& object) {
  ObjectView* const view = MakeView(*this, object);
  if (view == nullptr) return;
  views_[object.Id] = view;
  if (object.Info().Has(ClassFlag::Window)) forms_.push_back(object.Id);
  view->Build(object);
}

void Stage::Apply(const ObjectRecord& object, const MemberInfo& member) {
  surfaces_->PropertyChanged(object, member.Name);
  if (ObjectView* const view = ViewOf(object.Id)) {
    view->Apply(object, member.Name);
  } else {
    ApplySystem(*this, object, member.Name);
  }
}

void Stage::ItemsChanged(const ObjectRecord& list, const objects::ItemsChange& change) {
  if (ObjectView* const view = ViewOf(list.Id)) view->ShowItems(list, change);
}

void Stage::MenuChanged(const ObjectRecord& menu) {
  changed_menus_.insert(menu.Id);
}

bool Stage::Invoke(const ObjectRecord& object, const MemberInfo& method, std::span<Value> arguments,
                   Value& result) {
  if (object.Is(ObjectClass::Printer)) {
    return printer_->Invoke(object, method.Name, arguments, result);
  }
  if (surfaces_->Invoke(object, method.Name, arguments, result)) return true;
  if (ObjectView* const view = ViewOf(object.Id)) {
    return view->Invoke(object, method, arguments, result);
  }
  return InvokeSystem(*this, object, method.Name, arguments, result);
}

bool Stage::Live(const ObjectRecord& object, const MemberInfo& member, std::span<const Value> index,
                 Value& out) {
  if (object.Is(ObjectClass::Printer)) return printer_->Live(object, member.Name, out);
  if (surfaces_->Live(object, member.Name, index, out)) return true;
  if (ObjectView* const view = ViewOf(object.Id)) return view->Live(object, member, index, out);
  return LiveSystem(*this, object, member.Name, index, out);
}

void Stage::Destroy(ObjectId object) {
  surfaces_->Drop(object);
  changed_menus_.erase(object);
  std::erase(modal_, object);
  std::erase(forms_, object);
  const auto found = views_.find(object);
  if (found == views_.end()) return;
  ObjectView* const view = found->second;
  views_.erase(found);
  view->Retire();
  retired_.push_back(view);
}

objects::TextSize Stage::Measure(const objects::FontValues& font, std::string_view text,
                                 int wrap_width) {
  const looks::FormFont& screen =
      texts_.FontOf({font.Name, static_cast<float>(font.Size), font.Bold, font.Italic,
                     font.Underline, font.StrikeOut});
  const looks::LaidText& laid = texts_.Lay(
      text, screen, wrap_width > 0 ? looks::TextFlow::Wrapped : looks::TextFlow::Line, wrap_width);
  return {laid.Width, laid.Height};
}

objects::PickedNames Stage::PickFiles(const ObjectRecord& dialog) {
  ++depth_;
  objects::PickedNames picked = PickFilesByDialog(dialog, QApplication::activeWindow());
  --depth_;
  return picked;
}

// --- Events

void Stage::Report(std::function<void()> report) {
  if (quiet_) {
    reports_.push_back(std::move(report));
  } else if (!Ending()) {
    report();
  }
}

bool Stage::Raise(ObjectId object, Word event, std::vector<Value> arguments) {
  if (quiet_) {
    reports_.emplace_back([this, object, event, arguments] { Raise(object, event, arguments); });
    return true;
  }
  if (Ending()) return false;
  world_->Raise(object, event, arguments);
  if (world_->Find(object) == nullptr) return false;
  return arguments.empty() || arguments.front().AsInteger() != 0;
}

void Stage::RunReports() {
  // A handler that waits for data may bring further reports.
  while (!reports_.empty()) {
    for (const std::function<void()>& report : std::exchange(reports_, {})) {
      if (!Ending()) report();
    }
  }
}

bool Stage::PumpEvents(int wait_ms) {
  if (depth_ == 0) {
    // Reports may be those of views whose objects are gone by now.
    ++depth_;
    if (!reports_.empty()) RunReports();
    --depth_;
    // No event is being handled: what the views of freed objects held can go.
    for (ObjectView* const view : retired_) delete view;
    retired_.clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  RebuildMenus();
  ++depth_;
  QAbstractEventDispatcher* const events = QAbstractEventDispatcher::instance();
  if (!events->processEvents(QEventLoop::AllEvents) && wait_ms != 0 && !Ending()) {
    QTimer wake;
    if (wait_ms > 0) {
      wake.setSingleShot(true);
      wake.setTimerType(Qt::PreciseTimer);
      wake.start(wait_ms);
    }
    events->processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  }
  --depth_;
  return true;
}

void Stage::Repaint() {
  if (quiet_) return;
  RebuildMenus();
  quiet_ = true;
  ++depth_;
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                  QEventLoop::ExcludeSocketNotifiers);
  --depth_;
  quiet_ = false;
}

void Stage::Rest(int wait_ms) {
  QTimer wake;
  wake.setSingleShot(true);
  wake.setTimerType(Qt::PreciseTimer);
  wake.start(wait_ms);
  const bool before = quiet_;
  quiet_ = true;
  ++depth_;
  QAbstractEventDispatcher::instance()->processEvents(QEventLoop::ExcludeUserInputEvents |
                                                      QEventLoop::WaitForMoreEvents);
  --depth_;
  quiet_ = before;
}

// --- Menus

void Stage::RebuildMenus() {
  if (changed_menus_.empty()) return;
  changed_menus_.clear();
  for (const ObjectId id : forms_) {
    const ObjectRecord* const form = world_->Find(id);
    ObjectView* const view = ViewOf(id);
    // A form shows its menus by the property that a menu is hung on it with.
    if (form != nullptr && view != nullptr) view->Apply(*form, Word::Parent);
  }
}

void Stage::Popup(ObjectId menu, const QPoint& at) {
  ++depth_;
  OpenPopup(*this, menu, at);
  --depth_;
}

}  // namespace tarnwick::run
