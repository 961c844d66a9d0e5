#include "run/line_printer.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <utility>

#include "looks/text_bridge.h"
#include "run/page_printer.h"
#include "run/stage.h"

namespace tarnwick::run {
namespace {

constexpr float kLetterPoints = 10;

}  // namespace

int LinePrinter::Column() {
  const std::size_t end = gathered_.find_last_of("\n\f");
  return static_cast<int>(gathered_.size() - (end == std::string::npos ? 0 : end + 1)) + 1;
}

void LinePrinter::Flush() {
  const QString text = looks::ToQString(std::exchange(gathered_, {}));
  if (text.isEmpty()) return;
  QTextDocument document;
  document.setDefaultFont(stage_.Texts().FontOf({"Courier New", kLetterPoints}).Font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAnywhere);
  document.setDefaultTextOption(option);
  QTextCursor cursor(&document);
  const QStringList pages = text.split(QChar::FormFeed);
  for (qsizetype i = 0; i < pages.size(); ++i) {
    // The line end in front of a form feed, and at the very end, begins no line of its own.
    const QString page = pages[i].endsWith(u'\n') ? pages[i].chopped(1) : pages[i];
    if (i > 0) {
      // A form feed at the end is the end of the last page.
      if (i + 1 == pages.size() && page.isEmpty()) break;
      QTextBlockFormat next;
      next.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
      cursor.insertBlock(next);
    }
    QTextBlockFormat plain;
    const QStringList lines = page.split(u'\n');
    for (qsizetype line = 0; line < lines.size(); ++line) {
      if (line > 0) cursor.insertBlock(plain);
      cursor.insertText(lines[line]);
    }
  }
  stage_.Printer().Print(document, stage_.World().Program().Title);
}

}  // namespace tarnwick::run
