// Text of the code page in the toolkit's fields.
#pragma once

#include <QString>
#include <QValidator>

#include "looks/text_bridge.h"

class QLineEdit;

namespace tarnwick {

using looks::FromQString;
using looks::ToQString;

/// The text with each character that the code page lacks replaced by "?". A character outside the
/// basic plane counts once.
[[nodiscard]] QString ShownInCodePage(const QString& text);

/// The same for a field of one line: line breaks and other control characters are blanks.
[[nodiscard]] QString ShownInOneLine(const QString& text);

/// Lets a field of one line hold only what the code page can hold, and no line break: what is typed
/// or pasted and has no place in it shows as "?" at once, so that saving never changes a text.
class CodePageValidator final : public QValidator {
 public:
  explicit CodePageValidator(QObject* parent);
  State validate(QString& text, int& position) const override;
};

/// Gives a field the validator.
void KeepInCodePage(QLineEdit& field);

}  // namespace tarnwick
