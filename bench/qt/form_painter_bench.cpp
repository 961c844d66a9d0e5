// A form with a thousand objects of all kinds must be painted within a frame of 16 ms.
#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include "fakes/memory_files.h"
#include "qt/surface/form_painter.h"

namespace tarnwick {
namespace {

void PaintThousandObjects(benchmark::State& state) {
  CallLog log;
  MemoryFiles files(log);
  looks::PictureCache pictures([&files](const std::string& path) { return files.Read(path); });
  TextCache texts;
  FormPainter painter(pictures, texts);
  DesignForm form;
  for (int i = 0; i < 1000; ++i) {
    const auto kind = static_cast<Kind>(i % static_cast<int>(kObjectKindCount));
    const ControlRef control = form.Load(kind);
    control->Visible = true;
    control->Left = static_cast<float>((i % 40) * 25 * 15);
    control->Top = static_cast<float>((i / 40) * 30 * 15);
    control->Caption = control->Text = control->Tag = "Form1Object" + std::to_string(i);
    control->Items = {control->Tag};
  }
  const auto ratio = static_cast<qreal>(state.range(0));
  QImage image(QSize(1024, 768) * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  for (auto _ : state) {
    QPainter target(&image);
    painter.Paint(target, form, nullptr, QRect(0, 0, 1024, 768));
  }
}
BENCHMARK(PaintThousandObjects)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
