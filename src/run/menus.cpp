#include "run/menus.h"

#include <QAction>
#include <QActionGroup>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "looks/classic_look.h"
#include "looks/frame_metrics.h"
#include "looks/menu_look.h"
#include "looks/text_bridge.h"
#include "run/drawing_surfaces.h"
#include "run/stage.h"
#include "run/views/tree_field.h"

namespace tarnwick::run {
namespace {

/// Titles as the design form's menu strip draws them.
class StripStyle final : public QProxyStyle {
 public:
  StripStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Windows"))) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    switch (metric) {
      case PM_MenuBarHMargin:
      case PM_MenuBarVMargin:
      case PM_MenuBarPanelWidth:
      case PM_MenuBarItemSpacing:
        return 0;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_UnderlineShortcut) return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    if (type != CT_MenuBarItem) {
      return QProxyStyle::sizeFromContents(type, option, size, widget);
    }
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const QString text = item == nullptr ? QString() : item->text;
    return {
        option->fontMetrics.size(Qt::TextShowMnemonic, text).width() + 2 * looks::kMenuTitleRoom,
        looks::kMenuStripHeight - 1};
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (element == CE_MenuBarEmptyArea) return;
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuBarItem || item == nullptr) {
      QProxyStyle::drawControl(element, option, painter, widget);
      return;
    }
    const QRect rect = item->rect;
    if ((item->state & State_Sunken) != 0) {
      looks::DrawFrame(*painter, rect, looks::kShadow, looks::kLight);
    } else if ((item->state & State_Selected) != 0) {
      looks::DrawFrame(*painter, rect, looks::kLight, looks::kShadow);
    }
    painter->setPen((item->state & State_Enabled) != 0 ? Qt::black : looks::kGreyText);
    painter->drawText(rect, Qt::AlignCenter | Qt::TextShowMnemonic, item->text);
  }
};

class MenuStrip final : public QMenuBar {
 public:
  explicit MenuStrip(QWidget* parent) : QMenuBar(parent) {
    setNativeMenuBar(false);
    style_.setParent(this);
    setStyle(&style_);
    QFont shown = font();
    shown.setPixelSize(looks::kMenuFontPixels);
    setFont(shown);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.fillRect(rect(), looks::kFace);
    painter.fillRect(0, height() - 1, width(), 1, looks::kShadow);
    painter.end();
    QMenuBar::paintEvent(event);
  }

 private:
  StripStyle style_;
};

/// Menus deeper than any program has them; a tree has no loops, so this is never reached.
constexpr int kDeepest = 32;

/// `root` is the menu whose image list has the pictures of its rows.
void FillMenu(Stage& stage, QMenu& menu, ObjectId root, ObjectId above, int depth);

/// Deletes a menu once nothing of it runs any more. Until then it holds no keys, which would be
/// those of two rows and reach neither.
void Retire(QMenu& menu) {
  for (QAction* const row : menu.actions()) {
    row->setShortcut({});
    if (row->menu() != nullptr) Retire(*row->menu());
  }
  menu.hide();
  menu.deleteLater();
}

/// A menu below a row: made when it opens.
QMenu* MakeMenu(Stage& stage, QWidget* parent, ObjectId root, ObjectId above, int depth) {
  auto* const menu = new QMenu(parent);
  menu->setStyleSheet(QString::fromLatin1(looks::kMenuSheet));
  QObject::connect(menu, &QMenu::aboutToShow, menu, [&stage, menu, root, above, depth] {
    // Opening the rows of an item is a click on it.
    stage.Report([&stage, above] { stage.World().Click(above); });
    for (QAction* const row : menu->actions()) {
      if (row->menu() != nullptr) Retire(*row->menu());
    }
    menu->clear();
    FillMenu(stage, *menu, root, above, depth);
  });
  return menu;
}

/// The picture of a row: its own, or one of the menu's image list.
QIcon PictureOfRow(Stage& stage, ObjectId root, const ObjectRecord& row) {
  const QPixmap& picture = stage.Surfaces().PictureOf(row);
  if (!picture.isNull()) return {picture};
  const ObjectRecord* const menu = stage.World().Find(root);
  if (menu == nullptr) return {};
  return PictureOfList(stage, *menu, Word::ImageList,
                       static_cast<int>(row.Number(Word::ImageIndex)));
}

QAction* AddRow(Stage& stage, QMenu& menu, ObjectId root, const ObjectRecord& row, int depth) {
  if (row.Text(Word::Caption) == "-") return menu.addSeparator();
  const auto* const below = row.As<objects::MenuRows>();
  QAction* action = nullptr;
  if (below != nullptr && !below->Rows.empty() && depth < kDeepest) {
    QMenu* const rows = MakeMenu(stage, &menu, root, row.Id, depth + 1);
    FillMenu(stage, *rows, root, row.Id, depth + 1);
    action = menu.addMenu(rows);
  } else {
    action = menu.addAction(QString());
    QObject::connect(action, &QAction::triggered, action, [&stage, id = row.Id] {
      stage.Report([&stage, id] { stage.World().Click(id); });
    });
  }
  action->setText(looks::ToQString(row.Text(Word::Caption)));
  action->setObjectName(looks::ToQString(row.FullName()));
  action->setIcon(PictureOfRow(stage, root, row));
  action->setEnabled(row.Truth(Word::Enabled));
  action->setCheckable(row.Truth(Word::Checked));
  action->setChecked(row.Truth(Word::Checked));
  if (row.Truth(Word::RadioItem)) {
    auto* const group = new QActionGroup(action);
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    group->addAction(action);
  }
  if (row.Truth(Word::Default)) {
    QFont bold = menu.font();
    bold.setBold(true);
    action->setFont(bold);
  }
  const std::string_view shortcut = row.Text(Word::ShortCut);
  if (!shortcut.empty()) {
    action->setShortcut(QKeySequence(looks::ToQString(shortcut), QKeySequence::PortableText));
  }
  return action;
}

void FillMenu(Stage& stage, QMenu& menu, ObjectId root, ObjectId above, int depth) {
  const ObjectRecord* const record = stage.World().Find(above);
  const auto* const rows = record == nullptr ? nullptr : record->As<objects::MenuRows>();
  if (rows == nullptr) return;
  for (const ObjectId id : rows->Rows) {
    const ObjectRecord* const row = stage.World().Find(id);
    if (row != nullptr && row->Truth(Word::Visible)) AddRow(stage, menu, root, *row, depth);
  }
}

}  // namespace

QMenuBar* MakeMenuStrip(QWidget* parent) {
  return new MenuStrip(parent);
}

void FillMenuStrip(Stage& stage, QMenuBar& strip, const ObjectRecord* menu) {
  for (QAction* const action : strip.actions()) {
    QMenu* const rows = action->menu();
    strip.removeAction(action);
    if (rows != nullptr) {
      Retire(*rows);
    } else {
      action->setShortcut({});
      action->deleteLater();
    }
  }
  const auto* const titles = menu == nullptr ? nullptr : menu->As<objects::MenuRows>();
  if (titles == nullptr) return;
  for (const ObjectId id : titles->Rows) {
    const ObjectRecord* const title = stage.World().Find(id);
    if (title == nullptr || !title->Truth(Word::Visible)) continue;
    const auto* const below = title->As<objects::MenuRows>();
    QAction* action = nullptr;
    if (below != nullptr && !below->Rows.empty()) {
      QMenu* const rows = MakeMenu(stage, &strip, menu->Id, id, 1);
      // The keys of its rows work before it is opened.
      FillMenu(stage, *rows, menu->Id, id, 1);
      action = strip.addMenu(rows);
    } else {
      action = strip.addAction(QString());
      QObject::connect(action, &QAction::triggered, action,
                       [&stage, id] { stage.Report([&stage, id] { stage.World().Click(id); }); });
    }
    action->setText(looks::ToQString(title->Text(Word::Caption)));
    action->setObjectName(looks::ToQString(title->FullName()));
    action->setEnabled(title->Truth(Word::Enabled));
  }
}

void OpenPopup(Stage& stage, ObjectId menu, const QPoint& at) {
  stage.Report([&stage, menu] { stage.World().PopupShows(menu); });
  const ObjectRecord* const record = stage.World().Find(menu);
  if (record == nullptr || stage.Ending()) return;
  constexpr std::int64_t kRight = 1;
  constexpr std::int64_t kCenter = 2;
  const std::int64_t side = record->Number(Word::Alignment);
  auto* const shown = new QMenu;
  shown->setObjectName(looks::ToQString(record->FullName()));
  shown->setStyleSheet(QString::fromLatin1(looks::kMenuSheet));
  FillMenu(stage, *shown, menu, menu, 1);
  const int width = shown->sizeHint().width();
  QPoint corner = at;
  if (side == kRight) corner.rx() -= width;
  if (side == kCenter) corner.rx() -= width / 2;
  QObject::connect(shown, &QMenu::aboutToHide, shown, &QObject::deleteLater);
  shown->popup(corner);
}

}  // namespace tarnwick::run
