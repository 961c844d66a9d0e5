// LPRINT: lines of text on paper.
#pragma once

#include <string>

#include "basic/hosts/printer_host.h"

namespace tarnwick::run {

class Stage;

/// Gathers lines and prints them with letters of one width, as `PagePrinter` prints.
class LinePrinter final : public basic::PrinterHost {
 public:
  explicit LinePrinter(Stage& stage) : stage_(stage) {}

  void Write(std::string_view text) override { gathered_ += text; }
  [[nodiscard]] int Column() override;
  void Flush() override;

 private:
  Stage& stage_;
  std::string gathered_;
};

}  // namespace tarnwick::run
