#include "qt/grid/row_buttons.h"

#include <QToolButton>
#include <algorithm>

#include "inspector/property_sheet.h"
#include "qt/kit/icon_set.h"

namespace tarnwick {

namespace {

constexpr int kButton = 20;
constexpr int kButtonIcon = 14;

bool IsColor(int mark) {
  return mark == row_mark::kColor || mark == row_mark::kColorToo;
}

}  // namespace

RowButtons::RowButtons(PropertySheet& sheet, QWidget* grid)
    : QObject(grid),
      sheet_(sheet),
      all_{Make(grid, "Boton1", "choose", "Choose..."), Make(grid, "Boton2", "drop", "List"),
           Make(grid, "Boton3", "reset", "Reset")} {
  for (QToolButton* picker : {all_[0], all_[1]}) {
    connect(picker, &QToolButton::clicked, this, [this] { sheet_.PickValue(); });
  }
  connect(all_[2], &QToolButton::clicked, this, [this] { sheet_.ResetValue(); });
}

QToolButton* RowButtons::Make(QWidget* grid, const char* name, const char* icon, const char* tip) {
  auto* button = new QToolButton(grid);
  button->setObjectName(QString::fromLatin1(name));
  button->setIcon(IconOf(QString::fromLatin1(icon)));
  button->setIconSize(QSize(kButtonIcon, kButtonIcon));
  button->setToolTip(QString::fromLatin1(tip));
  button->setAccessibleName(QString::fromLatin1(tip));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->hide();
  return button;
}

bool RowButtons::Holds(const QObject* object) const {
  return std::find(all_.begin(), all_.end(), object) != all_.end();
}

QToolButton& RowButtons::Picker() const {
  return *all_[sheet_.Boton1Shown() ? 0 : 1];
}

int RowButtons::Place(const QRect& line) {
  const bool shown = !line.isEmpty();
  if (shown) {
    const bool color = IsColor(sheet_.RowMark(sheet_.RowIndex()));
    const QString tip = color ? QStringLiteral("Colour...") : QStringLiteral("List");
    if (all_[1]->toolTip() != tip) {
      all_[1]->setIcon(IconOf(color ? QStringLiteral("colour") : QStringLiteral("drop")));
      all_[1]->setToolTip(tip);
      all_[1]->setAccessibleName(tip);
    }
  }
  const struct {
    QToolButton* Button;
    bool Shown;
  } buttons[] = {{all_[2], shown && sheet_.Boton3Shown()},
                 {all_[1], shown && sheet_.Boton2Shown()},
                 {all_[0], shown && sheet_.Boton1Shown()}};
  const int top = line.y() + (line.height() - kButton) / 2;
  int room = 0;
  for (const auto& [button, is_shown] : buttons) {
    if (is_shown) {
      room += kButton + 1;
      button->setGeometry(line.right() + 1 - room, top, kButton, kButton);
      button->raise();
    }
    button->setVisible(is_shown);
  }
  return room;
}

}  // namespace tarnwick
