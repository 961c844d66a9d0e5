#include "qt/frame/objects_examiner_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include "qt/kit/above_modal.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "qt/kit/window_place.h"

namespace tarnwick {

namespace {

constexpr QSize kStartSize(780, 520);

QListWidget* MakeList(const char* name) {
  auto* list = new QListWidget;
  list->setObjectName(QString::fromLatin1(name));
  list->setUniformItemSizes(true);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  return list;
}

/// A label above a field, reached by the label's letter.
QWidget* Column(QLabel* label, QWidget* field) {
  label->setBuddy(field);
  auto* column = new QWidget;
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addWidget(label);
  layout->addWidget(field, 1);
  return column;
}

void FillList(QListWidget& list, const std::vector<std::string>& rows) {
  list.clear();
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(rows.size()));
  for (const std::string& row : rows) texts.append(ToQString(row));
  list.addItems(texts);
}

}  // namespace

ObjectsExaminerWindow::ObjectsExaminerWindow(FormViewObjects& logic, QWidget* parent)
    : QWidget(parent, Qt::Window),
      logic_(logic),
      home_(parent),
      find_(new QLineEdit),
      kinds_(MakeList("Lista")),
      members_(MakeList("ListaPro")),
      members_label_(new QLabel(QStringLiteral("&Properties, Methods and Events"))),
      text_(new QPlainTextEdit) {
  setObjectName(QStringLiteral("FormViewObjects"));
  setWindowTitle(QStringLiteral("Objects Examiner"));
  resize(kStartSize);
  Build();
  connect(find_, &QLineEdit::textEdited, this, [this](const QString& text) {
    logic_.Find(FromQString(text));
    ShowKind();
  });
  connect(kinds_, &QListWidget::currentRowChanged, this, [this](int row) {
    logic_.SelectKind(row);
    ShowKind();
  });
  connect(members_, &QListWidget::currentRowChanged, this, [this](int row) {
    logic_.SelectMember(row);
    ShowText();
  });
}

void ObjectsExaminerWindow::Build() {
  find_->setObjectName(QStringLiteral("Text1"));
  find_->setAccessibleName(QStringLiteral("Find"));
  kinds_->setAccessibleName(QStringLiteral("Objects"));
  members_->setAccessibleName(QStringLiteral("Properties, Methods and Events"));
  find_->setPlaceholderText(QStringLiteral("First letters of an object"));
  find_->setClearButtonEnabled(true);
  find_->addAction(IconOf(QStringLiteral("search")), QLineEdit::LeadingPosition);
  KeepInCodePage(*find_);
  text_->setObjectName(QStringLiteral("Editor"));
  text_->setAccessibleName(QStringLiteral("Description"));
  text_->setReadOnly(true);
  text_->setTabChangesFocus(true);
  // A reader moves in it by keys as well.
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text_->document()->setDocumentMargin(kRoom);
  for (QWidget* part : {static_cast<QWidget*>(find_), static_cast<QWidget*>(kinds_),
                        static_cast<QWidget*>(members_)}) {
    part->installEventFilter(this);
  }
  auto* find_label = new QLabel(QStringLiteral("&Find"));
  auto* kinds = Column(new QLabel(QStringLiteral("&Select an Object")), kinds_);
  auto* search = Column(find_label, find_);
  auto* left = new QWidget;
  auto* left_column = new QVBoxLayout(left);
  left_column->setContentsMargins(0, 0, 0, 0);
  left_column->setSpacing(kRoom);
  left_column->addWidget(search);
  left_column->addWidget(kinds, 1);
  auto* parts = new QSplitter(Qt::Horizontal);
  parts->setHandleWidth(kRoom);
  parts->setChildrenCollapsible(false);
  parts->addWidget(left);
  parts->addWidget(Column(members_label_, members_));
  parts->addWidget(Column(new QLabel(QStringLiteral("&Description")), text_));
  parts->setStretchFactor(2, 1);
  parts->setSizes({190, 220, 370});
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  whole->addWidget(parts);
}

void ObjectsExaminerWindow::OpenExaminer() {
  logic_.Open();
  {
    const QSignalBlocker quiet(kinds_);
    FillList(*kinds_, logic_.Lista());
  }
  find_->clear();
  ShowKind();
  PlaceOverParent(*this);
  if (home_ != nullptr) LetWorkAboveModal(*this, *home_);
  show();
  raise();
  activateWindow();
  find_->setFocus();
}

void ObjectsExaminerWindow::ShowKind() {
  const QSignalBlocker quiet_kinds(kinds_);
  const QSignalBlocker quiet_members(members_);
  kinds_->setCurrentRow(logic_.KindRow());
  FillList(*members_, logic_.ListaPro());
  members_->setCurrentRow(logic_.MemberRow());
  // Both marks are seen, however far down they stand.
  for (QListWidget* list : {kinds_, members_}) {
    if (list->currentItem() != nullptr) list->scrollToItem(list->currentItem());
  }
  ShowText();
}

void ObjectsExaminerWindow::ShowText() {
  const QString text = ToQString(logic_.Editor());
  if (text_->toPlainText() != text) text_->setPlainText(text);
}

/// Up and Down move in the list of kinds without leaving the search.
bool ObjectsExaminerWindow::PressInSearch(QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      QApplication::sendEvent(kinds_, &event);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      members_->setFocus();
      if (members_->currentRow() < 0) members_->setCurrentRow(0);
      return true;
    default:
      return false;
  }
}

bool ObjectsExaminerWindow::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(object, event);
  auto& key = *static_cast<QKeyEvent*>(event);
  if (object == find_) return PressInSearch(key) || QWidget::eventFilter(object, event);
  const bool on =
      key.key() == Qt::Key_Right || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if (object == kinds_ && on) {
    members_->setFocus();
    if (members_->currentRow() < 0) members_->setCurrentRow(0);
    return true;
  }
  if (object == members_ && key.key() == Qt::Key_Left) {
    kinds_->setFocus();
    return true;
  }
  return QWidget::eventFilter(object, event);
}

void ObjectsExaminerWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}

void ObjectsExaminerWindow::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  // Back to where it was opened, also where no window manager sees to that.
  if (parentWidget() != nullptr) parentWidget()->activateWindow();
}

}  // namespace tarnwick
