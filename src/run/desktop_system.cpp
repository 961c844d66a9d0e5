#include "run/desktop_system.h"

#include <QApplication>
#include <QMessageBox>

#include "looks/text_bridge.h"

namespace tarnwick::run {
namespace {

/// A button of a message box with the number that programs get.
struct BoxButton {
  QMessageBox::StandardButton Button;
  int Result;
};
constexpr BoxButton kOk{QMessageBox::Ok, 1};
constexpr BoxButton kCancel{QMessageBox::Cancel, 2};
constexpr BoxButton kAbort{QMessageBox::Abort, 3};
constexpr BoxButton kRetry{QMessageBox::Retry, 4};
constexpr BoxButton kIgnore{QMessageBox::Ignore, 5};
constexpr BoxButton kYes{QMessageBox::Yes, 6};
constexpr BoxButton kNo{QMessageBox::No, 7};

const std::vector<BoxButton>& ButtonsOf(int flags) {
  static const std::vector<BoxButton> kSets[] = {{kOk},
                                                 {kOk, kCancel},
                                                 {kAbort, kRetry, kIgnore},
                                                 {kYes, kNo, kCancel},
                                                 {kYes, kNo},
                                                 {kRetry, kCancel},
                                                 {kOk},
                                                 {kOk}};
  return kSets[flags & 7];
}

constexpr QMessageBox::Icon kIcons[] = {QMessageBox::NoIcon, QMessageBox::Critical,
                                        QMessageBox::Question, QMessageBox::Warning,
                                        QMessageBox::Information};

}  // namespace

int DesktopSystem::MessageBox(std::string_view text, std::string_view title, int flags) {
  QMessageBox box(QApplication::activeWindow());
  box.setObjectName(QStringLiteral("MessageBox"));
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(looks::ToQString(title));
  box.setText(looks::ToQString(text));
  const int icon = flags >> 4 & 0xF;
  box.setIcon(icon < static_cast<int>(std::size(kIcons)) ? kIcons[icon] : QMessageBox::NoIcon);
  const std::vector<BoxButton>& buttons = ButtonsOf(flags);
  for (const BoxButton& button : buttons) box.addButton(button.Button);
  const auto chosen = static_cast<std::size_t>(flags >> 8 & 3);
  box.setDefaultButton(buttons[chosen < buttons.size() ? chosen : 0].Button);
  const auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
  for (const BoxButton& button : buttons) {
    if (button.Button == pressed) return button.Result;
  }
  return buttons.back().Result;
}

void DesktopSystem::Sound(double /*hertz*/, double /*milliseconds*/) {
  QApplication::beep();
}

}  // namespace tarnwick::run
