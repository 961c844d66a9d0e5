#include "designer/surface_fixture.h"

namespace tarnwick {

RecordingHost::RecordingHost(CallLog& log) : log_(&log) {}

void RecordingHost::ClearPanel() {
  log_->Add("clear panel");
}

void RecordingHost::ShowProperties(std::string_view name_objet, std::string_view object_name) {
  log_->Add("properties " + std::string(name_objet) + " " + std::string(object_name));
}

void RecordingHost::SyncRow(std::string_view name_objet, std::string_view row) {
  log_->Add("sync " + std::string(name_objet) + " " + std::string(row));
}

void RecordingHost::RemoveHeadRow(const DesignControl& object) {
  log_->Add("head - " + object.Tag);
}

void RecordingHost::CommandsChanged() {
  log_->Add("commands");
}

void RecordingHost::OpenObjectPopUp() {
  log_->Add("pop-up");
}

void RecordingHost::SetStatus(std::string_view text) {
  log_->Add("status " + std::string(text));
}

void RecordingHost::NumberMoved(const ObjectPlace& object, bool back) {
  log_->Add(std::string(back ? "number back " : "number out ") +
            std::string(InfoOf(object.Id).Array) + std::to_string(object.Number));
}

bool RecordingHost::RaiseOpenCodeEditor() {
  if (EditorOpen) log_->Add("raise editor");
  return EditorOpen;
}

void RecordingHost::OpenCode() {
  log_->Add("code");
}

void RecordingHost::CompileAndRun() {
  log_->Add("compile");
}

RecordingObserver::RecordingObserver(CallLog& log) : log_(&log) {}

void RecordingObserver::FormChanged(int /*form*/) {
  log_->Add("window");
}

void RecordingObserver::ControlsChanged(int /*form*/) {
  log_->Add("paint");
}

void RecordingObserver::SelectionChanged(int /*form*/) {
  log_->Add("selection");
}

SurfaceTest::SurfaceTest() {
  ports.Gestures.Origin = {100, 50};
}

SurfaceTest::~SurfaceTest() = default;

float SurfaceTest::Twips(int pixels) {
  return static_cast<float>(pixels * kTwipsPerPixel);
}

void SurfaceTest::Point(int x, int y) {
  ports.Gestures.Cursor = {100 + x, 50 + y};
}

void SurfaceTest::Press(int x, int y, int button) {
  Point(x, y);
  gestures.Form_MouseDown(button, 0, Twips(x), Twips(y));
}

void SurfaceTest::PressOn(const ControlRef& control, int x, int y, int button) {
  Point(static_cast<int>(control->Left) / kTwipsPerPixel + x,
        static_cast<int>(control->Top) / kTwipsPerPixel + y);
  gestures.ObjectMouseDown(control, button, 0, Twips(x), Twips(y));
}

void SurfaceTest::MoveTo(int x, int y) {
  Point(x, y);
  gestures.MouseMove();
}

ControlRef SurfaceTest::Place(std::string_view kind, int x, int y) {
  form.Objeto = kind;
  Press(x, y);
  gestures.MouseUp();
  return form.ControlSel;
}

void SurfaceTest::Click(const ControlRef& control) {
  PressOn(control);
  gestures.MouseUp();
}

void SurfaceTest::DragHandle(int handle, int x, int y) {
  const ControlRef grip = form.Element(Kind::Handle, handle);
  Point(static_cast<int>(grip->Left) / kTwipsPerPixel + 3,
        static_cast<int>(grip->Top) / kTwipsPerPixel + 3);
  gestures.HandleMouseDown(handle, kLeftButton);
  MoveTo(x, y);
  gestures.MouseUp();
}

bool SurfaceTest::HandleVisible(int handle) const {
  return form.Element(Kind::Handle, handle)->Visible;
}

}  // namespace tarnwick
