// From a press on an object to the painted rows of its kind, on a form with five hundred objects,
// must take no longer than a frame of 16 ms. The whole main window is there.
#include <QApplication>
#include <array>
#include <vector>

#include <benchmark/benchmark.h>

#include "designer/form_user.h"
#include "designer/object_kinds.h"
#include "fakes/build_paths.h"
#include "fakes/fake_instance_folders.h"
#include "fakes/fake_ports.h"
#include "inspector/property_sheet.h"
#include "platform/native_files.h"
#include "qt/frame/main_view.h"
#include "qt/frame/main_window.h"
#include "qt/grid/property_panel.h"
#include "qt/kit/qt_ports.h"
#include "qt/kit/theme.h"
#include "shell/mdi_form.h"
#include "text/path_text.h"

namespace tarnwick {
namespace {

constexpr int kObjects = 500;
constexpr float kPixel = 15;

/// The program after its start with a form full of objects.
struct Desk {
  FakePorts Fakes;
  NativeFiles Files;
  QtScreen Screen;
  Ports Given{Files, Fakes.Profiles, Fakes.Processes, Fakes.Messages, Fakes.Dialogs, Screen};
  FakeInstanceFolders Instances{Fakes.Files};
  MDIForm1 Shell{Given, Instances, PathFromNative(test::ProgramFolder())};
  MainWindow Window{Shell, Files};
  MainView View{Window, Shell};
  std::vector<ControlRef> Objects;

  Desk() {
    ApplyTheme(*qApp, Theme::Light);
    Window.show();
    View.Load();
    Shell.Time_Timer();
    constexpr std::array kKinds{Kind::Button, Kind::Label, Kind::ListBox, Kind::RichTextBox,
                                Kind::Image};
    DesignForm& form = *Shell.Tables().CurrentForm;
    for (int i = 0; i < kObjects; ++i) {
      const auto x = static_cast<float>(i % 25) * 30 * kPixel;
      const auto y = static_cast<float>(i / 25) * 28 * kPixel;
      const Kind kind = kKinds[static_cast<std::size_t>(i) % kKinds.size()];
      Objects.push_back(CreateObject(Shell.Tables(), form, kind, x, y));
    }
    Shell.Sheet().FillCombo();
    QApplication::processEvents();
  }
  void Press(const ControlRef& control) {
    FormUser& surface = *Shell.CurrentUser();
    surface.Gestures().ObjectMouseDown(control, kLeftButton, 0, kPixel, kPixel);
    surface.Gestures().MouseUp();
    QApplication::processEvents();
  }
};

void PressToPaintedRows(benchmark::State& state) {
  Desk desk;
  std::size_t next = 0;
  for (auto _ : state) {
    desk.Press(desk.Objects[next]);
    next = (next + 1) % desk.Objects.size();
  }
}
BENCHMARK(PressToPaintedRows)->Unit(benchmark::kMillisecond);

void RowsAlone(benchmark::State& state) {
  Desk desk;
  PropertySheet& sheet = desk.Shell.Sheet();
  std::size_t next = 0;
  for (auto _ : state) {
    desk.Shell.CurrentUser()->SelectObject(desk.Objects[next]);
    sheet.ShowSelection();
    next = (next + 1) % desk.Objects.size();
  }
}
BENCHMARK(RowsAlone)->Unit(benchmark::kMillisecond);

void KeystrokeInANumber(benchmark::State& state) {
  Desk desk;
  PropertySheet& sheet = desk.Shell.Sheet();
  desk.Press(desk.Objects[0]);
  for (int row = 0; row < sheet.RowCount(); ++row) {
    if (sheet.Label(row) == "Width") sheet.SelectRow(row);
  }
  bool wide = false;
  for (auto _ : state) {
    wide = !wide;
    sheet.ApplyText(wide ? "120" : "12");
    QApplication::processEvents();
  }
}
BENCHMARK(KeystrokeInANumber)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
