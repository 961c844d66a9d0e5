#include "qt/kit/text_bridge.h"

#include <QLineEdit>

#include "text/one_line.h"

namespace tarnwick {

QString ShownInCodePage(const QString& text) {
  return ToQString(FromQString(text));
}

QString ShownInOneLine(const QString& text) {
  return ToQString(OneLineText(FromQString(text)));
}

CodePageValidator::CodePageValidator(QObject* parent) : QValidator(parent) {}

QValidator::State CodePageValidator::validate(QString& text, int& position) const {
  QString shown = ShownInOneLine(text);
  if (shown != text) {
    const int before = static_cast<int>(ShownInOneLine(text.left(position)).size());
    position = before;
    text = std::move(shown);
  }
  return Acceptable;
}

void KeepInCodePage(QLineEdit& field) {
  field.setValidator(new CodePageValidator(&field));
}

}  // namespace tarnwick
