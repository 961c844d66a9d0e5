#include "qt/editor/member_list_popup.h"

#include <QListWidget>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include <Qsci/qsciscintilla.h>

#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

/// The shadow stands 45 twips right and down.
constexpr int kShadow = 3;
constexpr int kMostRows = 9;
constexpr int kLeastWidth = 180;
constexpr int kMostWidth = 420;

}  // namespace

MemberListPopup::MemberListPopup(QsciScintilla& code)
    : QWidget(&code, Qt::ToolTip | Qt::FramelessWindowHint),
      code_(code),
      list_(new QListWidget(this)) {
  setObjectName(QStringLiteral("picIntellisense"));
  setAccessibleName(QStringLiteral("Members"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  list_->setObjectName(QStringLiteral("lstIntellisense"));
  list_->setAccessibleName(QStringLiteral("Members"));
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setUniformItemSizes(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(list_, &QListWidget::itemClicked, this, [this] { Q_EMIT Clicked(list_->currentRow()); });
  connect(list_, &QListWidget::itemDoubleClicked, this,
          [this] { Q_EMIT DoubleClicked(list_->currentRow()); });
}

void MemberListPopup::showintellisense(const std::vector<std::string>& rows) {
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(rows.size()));
  for (const std::string& row : rows) texts.append(ToQString(row));
  list_->clear();
  list_->addItems(texts);
  const int row_height = std::max(1, list_->sizeHintForRow(0));
  const int shown = std::min(kMostRows, static_cast<int>(rows.size()));
  const int frame = 2 * list_->frameWidth() + 6;
  const int width = std::clamp(list_->sizeHintForColumn(0) + frame + 24, kLeastWidth, kMostWidth);
  Place({width, shown * row_height + frame});
  show();
  raise();
  // Whole rows: what frame and style sheet take is known once the list is laid out.
  const int taken = list_->height() - list_->viewport()->height();
  Place({width, shown * row_height + taken});
}

void MemberListPopup::Place(const QSize& size) {
  const long caret = code_.SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
  const long x = code_.SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL, caret);
  const long y = code_.SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0UL, caret);
  const int line = static_cast<int>(code_.SendScintilla(QsciScintilla::SCI_TEXTHEIGHT, 0UL));
  const QPoint at = code_.viewport()->mapToGlobal(QPoint(static_cast<int>(x), static_cast<int>(y)));
  const QSize whole(size.width() + kShadow, size.height() + kShadow);
  QPoint corner(at.x(), at.y() + line);
  if (const QScreen* screen = code_.screen()) {
    const QRect room = screen->availableGeometry();
    if (corner.y() + whole.height() > room.bottom()) corner.setY(at.y() - whole.height());
    corner.setX(std::min(corner.x(), room.right() - whole.width()));
    corner.setX(std::max(corner.x(), room.left()));
    corner.setY(std::max(corner.y(), room.top()));
  }
  setGeometry(QRect(corner, whole));
  const QRect frame(QPoint(0, 0), size);
  list_->setGeometry(frame);
  // The corners that neither the frame nor its shadow covers show what is below.
  setMask(QRegion(frame) + frame.translated(kShadow, kShadow));
}

void MemberListPopup::SelectRow(int row) {
  list_->setCurrentRow(row);
  if (row < 0) list_->clearSelection();
}

void MemberListPopup::HideList() {
  hide();
}

void MemberListPopup::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), LineOf(palette()).darker(125));
}

}  // namespace tarnwick
