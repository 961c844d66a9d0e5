// The edge between the toolkit's text and the program's own.
#pragma once

#include <QString>
#include <QValidator>
#include <string>
#include <string_view>

class QLineEdit;

namespace tarnwick {

/// Text of the code page as the toolkit shows it. Every byte has its character, so nothing is lost.
[[nodiscard]] QString ToQString(std::string_view text);
/// Text of the toolkit in the code page; each character the page lacks becomes one "?".
[[nodiscard]] std::string FromQString(const QString& text);
/// The text with each character that the code page lacks replaced by "?". A character outside the
/// basic plane counts once.
[[nodiscard]] QString ShownInCodePage(const QString& text);

/// Lets a field hold only what the code page can hold: what is typed or pasted and has no place in
/// it shows as "?" at once, so that saving never changes a text.
class CodePageValidator final : public QValidator {
 public:
  explicit CodePageValidator(QObject* parent);
  State validate(QString& text, int& position) const override;
};

/// Gives a field the validator.
void KeepInCodePage(QLineEdit& field);

}  // namespace tarnwick
