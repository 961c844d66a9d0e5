// What a running program prints.
#pragma once

#include <QPainter>
#include <memory>
#include <string>

#include "run/object_view.h"

class QPrinter;
class QTextDocument;

namespace tarnwick::run {

/// Points per inch of the pages; programs count in them.
inline constexpr int kPagePoints = 600;

/// Prints on the default printer of the desktop, without asking. Where there is none the pages go
/// to a PDF file beside the program, with a name that is still free, and a note tells which.
/// A document that is not ended when the program ends is printed as far as it goes.
class PagePrinter {
 public:
  explicit PagePrinter(Stage& stage);
  ~PagePrinter();
  PagePrinter(const PagePrinter&) = delete;
  PagePrinter& operator=(const PagePrinter&) = delete;

  /// A method of the object Printer; false when it is none that prints.
  bool Invoke(const ObjectRecord& printer, Word method, std::span<Value> arguments, Value& result);
  /// PageWidth and PageHeight, points; false for every other property.
  bool Live(const ObjectRecord& printer, Word property, Value& out);
  /// Prints a text on pages of its own.
  void Print(const QTextDocument& text, const std::string& title);

 private:
  [[nodiscard]] std::unique_ptr<QPrinter> Prepared(const ObjectRecord* printer) const;
  bool ToFile(QPrinter& printer);
  void Begin(const ObjectRecord& printer);
  void End();

  Stage& stage_;
  std::unique_ptr<QPrinter> printer_;  ///< while a document is printed
  QPainter painter_;
};

}  // namespace tarnwick::run
