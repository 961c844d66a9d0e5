#include "run/page_printer.h"

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>
#include <algorithm>

#include "looks/text_bridge.h"
#include "platform/native_path.h"
#include "run/drawing_methods.h"
#include "run/stage.h"

namespace tarnwick::run {
namespace {

constexpr std::int64_t kLandscape = 1;

/// A path for the pages of a program that no file has yet: "main.pdf", "main 2.pdf".
std::string FreePath(basic::FileHost& files, std::string_view program) {
  const std::string stem(program.substr(0, program.rfind('.')));
  std::string path = stem + ".pdf";
  for (int number = 2; files.FileExists(path); ++number) {
    path = stem + " " + std::to_string(number) + ".pdf";
  }
  return path;
}

}  // namespace

PagePrinter::PagePrinter(Stage& stage) : stage_(stage) {}

PagePrinter::~PagePrinter() {
  End();
}

std::unique_ptr<QPrinter> PagePrinter::Prepared(const ObjectRecord* printer) const {
  const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
  auto made = usual.isNull() ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                             : std::make_unique<QPrinter>(usual, QPrinter::HighResolution);
  if (usual.isNull()) made->setOutputFormat(QPrinter::PdfFormat);
  made->setResolution(kPagePoints);
  if (printer == nullptr) return made;
  const bool lies = printer->Number(Word::Orientation) == kLandscape;
  made->setPageOrientation(lies ? QPageLayout::Landscape : QPageLayout::Portrait);
  made->setDocName(looks::ToQString(printer->Text(Word::Title)));
  constexpr std::int64_t kMostCopies = 999;
  made->setCopyCount(
      static_cast<int>(std::clamp<std::int64_t>(printer->Number(Word::Copies), 1, kMostCopies)));
  return made;
}

/// Gives a printer that writes a file its path; false, with a note, when there is none.
bool PagePrinter::ToFile(QPrinter& printer) {
  if (printer.outputFormat() != QPrinter::PdfFormat) return true;
  objects::ObjectWorld& world = stage_.World();
  if (world.Files() == nullptr) return false;
  const std::string path = FreePath(*world.Files(), world.Program().ExeName);
  const auto native = FindNativeForWriting(path);
  if (!native) {
    world.Note("There is no printer, and the pages cannot be written to " + path);
    return false;
  }
  printer.setOutputFileName(QString::fromStdString(*native));
  world.Note("There is no printer: the pages are in " + path);
  return true;
}

void PagePrinter::Begin(const ObjectRecord& printer) {
  End();
  printer_ = Prepared(&printer);
  if (ToFile(*printer_) && !painter_.begin(printer_.get())) {
    stage_.World().Note("The printer takes no pages");
  }
}

void PagePrinter::End() {
  if (painter_.isActive()) painter_.end();
  printer_.reset();
}

bool PagePrinter::Invoke(const ObjectRecord& printer, Word method, std::span<Value> arguments,
                         Value& result) {
  switch (method) {
    case Word::BeginDoc:
      Begin(printer);
      return true;
    case Word::EndDoc:
      End();
      return true;
    case Word::NewPage:
      if (painter_.isActive()) printer_->newPage();
      return true;
    case Word::TextWidth:
    case Word::TextHeight: {
      const QFont font = PageFontOf(stage_, printer);
      const std::unique_ptr<QPrinter> other = printer_ == nullptr ? Prepared(&printer) : nullptr;
      const QFontMetrics metrics(font, printer_ == nullptr ? other.get() : printer_.get());
      const QString text = looks::ToQString(arguments.empty() ? "" : arguments[0].AsText());
      const QSize size = PageTextSize(metrics, text);
      result = Value::Integer(method == Word::TextWidth ? size.width() : size.height());
      return true;
    }
    default:
      if (painter_.isActive()) {
        DrawOnPage(stage_.Surfaces(), printer, painter_, method, arguments);
      }
      return true;
  }
}

bool PagePrinter::Live(const ObjectRecord& printer, Word property, Value& out) {
  if (property != Word::PageWidth && property != Word::PageHeight) return false;
  const std::unique_ptr<QPrinter> other = printer_ == nullptr ? Prepared(&printer) : nullptr;
  const QPrinter& asked = printer_ == nullptr ? *other : *printer_;
  const QSize size = asked.pageLayout().paintRectPixels(asked.resolution()).size();
  out = Value::Integer(property == Word::PageWidth ? size.width() : size.height());
  return true;
}

void PagePrinter::Print(const QTextDocument& text, const std::string& title) {
  constexpr int kScreenPoints = 96;
  const std::unique_ptr<QPrinter> printer = Prepared(nullptr);
  printer->setDocName(looks::ToQString(title));
  if (!ToFile(*printer)) return;
  const std::unique_ptr<QTextDocument> pages(text.clone());
  // Fonts have the size that they have on a screen of so many points per inch.
  pages->setPageSize(printer->pageLayout().paintRectPixels(kScreenPoints).size().toSizeF());
  pages->print(printer.get());
}

}  // namespace tarnwick::run
