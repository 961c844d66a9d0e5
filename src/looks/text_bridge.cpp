#include "looks/text_bridge.h"

#include "text/code_page.h"

namespace tarnwick::looks {

namespace {

/// Calls `take` with each code point of a text and the number of units it takes up.
template <class Take>
void ForEachCodePoint(const QString& text, Take take) {
  const qsizetype size = text.size();
  for (qsizetype i = 0; i < size; ++i) {
    const QChar unit = text.at(i);
    if (unit.isHighSurrogate() && i + 1 < size && text.at(i + 1).isLowSurrogate()) {
      take(char32_t{QChar::surrogateToUcs4(unit, text.at(i + 1))}, 2);
      ++i;
    } else {
      take(char32_t{unit.unicode()}, 1);
    }
  }
}

}  // namespace

QString ToQString(std::string_view text) {
  QString shown(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  QChar* out = shown.data();
  // The page lies within the basic plane: one byte is one unit.
  for (const char byte : text) *out++ = QChar(static_cast<char16_t>(ByteToCodePoint(byte)));
  return shown;
}

std::string FromQString(const QString& text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  ForEachCodePoint(text, [&bytes](char32_t point, int) {
    bytes.push_back(CodePointToByte(point).value_or('?'));
  });
  return bytes;
}

}  // namespace tarnwick::looks
