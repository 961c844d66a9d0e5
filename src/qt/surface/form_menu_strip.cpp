#include "qt/surface/form_menu_strip.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <algorithm>

#include "looks/classic_look.h"
#include "looks/menu_look.h"
#include "model/menu_row.h"
#include "qt/kit/text_bridge.h"

namespace tarnwick {

namespace {

/// The caption as it is read out, without the marks of access keys.
QString Spoken(const QString& caption) {
  QString spoken;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && i + 1 < caption.size()) ++i;
    spoken += caption[i];
  }
  return spoken;
}

}  // namespace

/// A title. Its access key is drawn only: the keys belong to the program's own menu bar.
class FormMenuTitle final : public QAbstractButton {
 public:
  FormMenuTitle(QString caption, QWidget* parent)
      : QAbstractButton(parent), caption_(std::move(caption)) {
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(Spoken(caption_));
    font_.setPixelSize(looks::kMenuFontPixels);
    resize(QFontMetrics(font_).size(Qt::TextShowMnemonic, caption_).width() +
               2 * looks::kMenuTitleRoom,
           FormMenuStrip::HeightPixels() - 1);
    setAttribute(Qt::WA_Hover);
    show();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    if (isDown()) {
      looks::DrawFrame(painter, rect(), looks::kShadow, looks::kLight);
    } else if (underMouse()) {
      looks::DrawFrame(painter, rect(), looks::kLight, looks::kShadow);
    }
    painter.setPen(Qt::black);
    painter.setFont(font_);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, caption_);
  }

 private:
  QString caption_;
  QFont font_;  ///< of its own: the style sheet of the program sets that of the widget
};

FormMenuStrip::FormMenuStrip(std::function<void(const ControlRef&)> chosen, QWidget* parent)
    : QWidget(parent), chosen_(std::move(chosen)) {
  setObjectName(QStringLiteral("mnuBar"));
  setAccessibleName(QStringLiteral("Menu bar"));
  setFixedHeight(HeightPixels());
}

void FormMenuStrip::Rebuild(const DesignForm& form) {
  for (const Title& title : titles_) {
    // A menu may be about to report which of its items was chosen.
    title.Button->hide();
    title.Button->deleteLater();
    title.Items->deleteLater();
  }
  titles_.clear();
  int left = 0;
  std::vector<QMenu*> menus(static_cast<std::size_t>(form.UBound(Kind::Menu)) + 1, nullptr);
  for (int i = 1; i <= form.UBound(Kind::Menu); ++i) {
    const ControlRef control = form.Element(Kind::Menu, i);
    if (!control || !control->Visible) continue;
    Title title;
    title.Button = new FormMenuTitle(ToQString(ShownMenuCaption(control->Caption)), this);
    title.Button->setObjectName(QStringLiteral("mnuBar_%1").arg(i));
    title.Button->move(left, 0);
    left += title.Button->width();
    title.Items = new QMenu(this);
    title.Items->setAccessibleName(title.Button->accessibleName());
    title.Items->setStyleSheet(QString::fromLatin1(looks::kMenuSheet));
    title.Items->installEventFilter(this);
    menus[static_cast<std::size_t>(i)] = title.Items;
    const int title_index = static_cast<int>(titles_.size());
    connect(title.Button, &QAbstractButton::pressed, this,
            [this, title_index] { Open(title_index); });
    connect(title.Items, &QMenu::aboutToHide, title.Button,
            [button = title.Button] { button->setDown(false); });
    titles_.push_back(title);
  }
  for (int i = 1; i <= form.UBound(Kind::MenuItem); ++i) {
    const ControlRef item = form.Element(Kind::MenuItem, i);
    const auto parent = item ? static_cast<std::size_t>(std::max<int>(0, item->MenuParent)) : 0;
    if (!item || !item->Visible || parent >= menus.size() || menus[parent] == nullptr) continue;
    AddItem(*menus[parent], item);
  }
  // The entry that stands by where there is no item.
  for (const Title& title : titles_) {
    if (title.Items->isEmpty())
      title.Items->addAction(QStringLiteral("(no items)"))->setEnabled(false);
  }
}

void FormMenuStrip::AddItem(QMenu& menu, const ControlRef& item) {
  // Of a deeper item every depth prefix goes: it hangs under the title like the others.
  const std::string caption = ShownMenuCaption(item->Caption);
  if (caption == kMenuSeparator) {
    menu.addSeparator();
    return;
  }
  QAction* action = menu.addAction(ToQString(caption));
  action->setObjectName(ToQString(item->Tag));
  connect(action, &QAction::triggered, this, [this, item] { chosen_(item); });
}

void FormMenuStrip::Open(int title) {
  if (title < 0 || title >= static_cast<int>(titles_.size())) return;
  const Title& opened = titles_[static_cast<std::size_t>(title)];
  opened.Button->setDown(true);
  opened.Items->popup(opened.Button->mapToGlobal(opened.Button->rect().bottomLeft()));
}

void FormMenuStrip::OpenByKey(int title) {
  Open(title);
  QMenu& items = *titles_[static_cast<std::size_t>(title)].Items;
  items.setActiveAction(items.actions().constFirst());
}

bool FormMenuStrip::PressInMenu(const QObject* menu, int key) {
  if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
  const int count = static_cast<int>(titles_.size());
  const auto found = std::find_if(titles_.begin(), titles_.end(),
                                  [menu](const Title& title) { return title.Items == menu; });
  if (found == titles_.end() || count < 2) return false;
  const int index = static_cast<int>(found - titles_.begin());
  found->Items->hide();
  OpenByKey((index + (key == Qt::Key_Right ? 1 : count - 1)) % count);
  return true;
}

bool FormMenuStrip::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (PressInMenu(object, key.key())) return true;
    const bool opens = key.key() == Qt::Key_F10 && key.modifiers() == Qt::NoModifier;
    if (opens && qobject_cast<QMenu*>(object) == nullptr && !titles_.empty()) {
      OpenByKey(0);
      return true;
    }
  }
  return QWidget::eventFilter(object, event);
}

void FormMenuStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), looks::kFace);
  painter.fillRect(0, height() - 1, width(), 1, looks::kShadow);
}

}  // namespace tarnwick
