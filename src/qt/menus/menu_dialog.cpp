#include "qt/menus/menu_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "qt/menus/menu_preview_view.h"
#include "qt/menus/row_list_view.h"

namespace tarnwick {

namespace {

using menus::RowList;

enum Button : std::size_t {
  kOutdent,
  kIndent,
  kUp,
  kDown,
  kDelItem,
  kDelAll,
  kInsert,
  kOk,
  kCancel,
  kAdd,
  kExample
};

struct ButtonInfo {
  const char* Caption;
  const char* Icon;
  const char* Tip;
};

/// A caption, or a picture where the caption is a symbol.
constexpr std::array<ButtonInfo, 11> kButtons{{
    {"", "arrow-left", "Menu"},
    {"", "arrow-right", "SubMenu"},
    {"", "arrow-up", "Up"},
    {"", "arrow-down", "Down"},
    {"Del Item", "", "Delete the row"},
    {"Del All", "", "Delete all rows"},
    {"Insert", "", "Insert an empty row"},
    {"Ok", "", "Keep the menu and close (Ctrl+Enter)"},
    {"Cancel", "", "Close and keep nothing (Esc)"},
    {"Add", "", "Enter"},
    {"Example", "", "Fill in an example"},
}};

constexpr auto kKeysText =
    "Enter adds the row. Alt+Left and Alt+Right set its depth, Alt+Up and Alt+Down move it. "
    "In the list: Ins, Del, F2.";

QString Latin(const char* text) {
  return QString::fromLatin1(text);
}

}  // namespace

MenuDialog::MenuDialog(menus::MenuDesigner& designer, QWidget* parent)
    : QDialog(parent),
      designer_(designer),
      content_(new QWidget(this)),
      list_(new RowListView(content_)),
      fault_(new QLabel(content_)),
      preview_(new MenuPreviewView(designer.Design().HasBar, content_)) {
  const menus::MenuDesign& design = designer.Design();
  setObjectName(ToQString(design.ObjectName));
  setWindowTitle(ToQString(design.Title));
  setWindowIcon(IconOf(QStringLiteral("menu-edit")));
  setModal(true);
  BuildFields();
  BuildButtons();
  BuildLayout();
  BindKeys();
  connect(list_, &RowListView::Chosen, this,
          [this](int row) { Do([row](RowList& rows) { rows.Select(row); }); });
  connect(list_, &RowListView::Dragged, this,
          [this](int row) { Do([row](RowList& rows) { rows.MoveTo(row); }); });
  connect(preview_, &MenuPreviewView::Chosen, this,
          [this](int row) { Do([row](RowList& rows) { rows.Select(row); }); });
  ShowTexts();
  ShowList();
  texto_[0]->setFocus();
}

void MenuDialog::BuildFields() {
  for (int i = 0; i < 2; ++i) {
    QLineEdit*& field = texto_[static_cast<std::size_t>(i)];
    field = new QLineEdit(content_);
    field->setObjectName(QStringLiteral("Texto_%1").arg(i));
    KeepInCodePage(*field);
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, [this] { TakeTexts(); });
    connect(field, &QLineEdit::returnPressed, this, [this] { Add(); });
  }
  texto_[0]->setAccessibleName(QStringLiteral("Caption"));
  texto_[1]->setAccessibleName(QStringLiteral("Name"));
  list_->installEventFilter(this);
  fault_->setObjectName(QStringLiteral("Fault"));
  fault_->setWordWrap(true);
  fault_->setProperty("quiet", true);
  // The list keeps its height, whether a text takes one line or two.
  fault_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  fault_->setMinimumHeight(2 * fault_->fontMetrics().lineSpacing());
}

void MenuDialog::BuildButtons() {
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const ButtonInfo& info = kButtons[i];
    auto* button = new QPushButton(Latin(info.Caption), content_);
    button->setObjectName(QStringLiteral("Command1_%1").arg(i));
    button->setToolTip(Latin(info.Tip));
    if (*info.Icon != '\0') {
      button->setIcon(IconOf(Latin(info.Icon)));
      button->setAccessibleName(Latin(info.Tip));
    }
    // Enter belongs to the text boxes.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, i] { Press(i); });
    buttons_[i] = button;
  }
  if (!designer_.Design().Subroutines) return;
  subroutines_ = new QPushButton(QStringLiteral("Subroutines"), content_);
  subroutines_->setObjectName(QStringLiteral("btns"));
  subroutines_->setToolTip(QStringLiteral("Code of the item named in Name"));
  subroutines_->setAutoDefault(false);
  connect(subroutines_, &QPushButton::clicked, this, [this] { designer_.Subroutines(); });
}

QHBoxLayout* MenuDialog::ButtonRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  for (const std::size_t index : {kOutdent, kIndent, kUp, kDown}) row->addWidget(buttons_[index]);
  row->addSpacing(kRoom);
  for (const std::size_t index : {kInsert, kDelItem, kDelAll}) row->addWidget(buttons_[index]);
  row->addStretch(1);
  row->addWidget(buttons_[kExample]);
  return row;
}

void MenuDialog::BuildLayout() {
  auto* fields = new QHBoxLayout;
  fields->setSpacing(kRoom);
  for (std::size_t i = 0; i < texto_.size(); ++i) {
    auto* label =
        new QLabel(i == 0 ? QStringLiteral("&Caption") : QStringLiteral("&Name"), content_);
    label->setBuddy(texto_[i]);
    fields->addWidget(label);
    fields->addWidget(texto_[i], 1);
  }
  fields->addWidget(buttons_[kAdd]);

  auto* left = new QVBoxLayout;
  left->setSpacing(kGap);
  left->addWidget(list_, 1);
  left->addWidget(fault_);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(kRoom);
  middle->addLayout(left, 3);
  middle->addWidget(preview_, 2);

  auto* end = new QHBoxLayout;
  end->setSpacing(kGap);
  if (subroutines_ != nullptr) end->addWidget(subroutines_);
  end->addStretch(1);
  end->addWidget(buttons_[kOk]);
  end->addWidget(buttons_[kCancel]);

  auto* column = new QVBoxLayout(content_);
  column->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
  column->setSpacing(kRoom);
  column->addLayout(fields);
  column->addLayout(ButtonRow());
  column->addLayout(middle, 1);
  column->addLayout(end);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(content_);

  QWidget* before = texto_[0];
  const auto follow = [&before](QWidget* next) {
    if (next == nullptr) return;
    setTabOrder(before, next);
    before = next;
  };
  follow(texto_[1]);
  for (const std::size_t index :
       {kAdd, kOutdent, kIndent, kUp, kDown, kInsert, kDelItem, kDelAll, kExample}) {
    follow(buttons_[index]);
  }
  follow(list_);
  follow(subroutines_);
  follow(buttons_[kOk]);
  follow(buttons_[kCancel]);
  resize(680, 480);
}

void MenuDialog::BindKeys() {
  const auto key = [this](const QKeySequence& keys, std::size_t index) {
    connect(new QShortcut(keys, content_), &QShortcut::activated, this,
            [this, index] { Press(index); });
  };
  key(QKeySequence(Qt::ALT | Qt::Key_Left), kOutdent);
  key(QKeySequence(Qt::ALT | Qt::Key_Right), kIndent);
  key(QKeySequence(Qt::ALT | Qt::Key_Up), kUp);
  key(QKeySequence(Qt::ALT | Qt::Key_Down), kDown);
  key(QKeySequence(Qt::CTRL | Qt::Key_Return), kOk);
  key(QKeySequence(Qt::CTRL | Qt::Key_Enter), kOk);
}

template <class Step>
void MenuDialog::Do(Step step) {
  step(designer_.List());
  ShowTexts();
  ShowList();
}

void MenuDialog::Press(std::size_t index) {
  switch (index) {
    case kOutdent:
      return Do([](RowList& rows) { rows.Outdent(); });
    case kIndent:
      return Do([](RowList& rows) { rows.Indent(); });
    case kUp:
      return Do([](RowList& rows) { rows.Up(); });
    case kDown:
      return Do([](RowList& rows) { rows.Down(); });
    case kDelItem:
      return Do([](RowList& rows) { rows.DeleteRow(); });
    case kDelAll:
      return Do([](RowList& rows) { rows.DeleteAll(); });
    case kInsert:
      return Do([](RowList& rows) { rows.Insert(); });
    case kOk:
      return Accept();
    case kCancel:
      return reject();
    case kAdd:
      return Add();
    case kExample:
      return Do([](RowList& rows) { rows.Example(); });
    default:
      return;
  }
}

void MenuDialog::Add() {
  Do([](RowList& rows) { rows.Enter(); });
  texto_[0]->setFocus();
  texto_[0]->selectAll();
}

void MenuDialog::Accept() {
  // The dialog is out of the way while the form's window is replaced.
  hide();
  designer_.Ok();
  accept();
}

void MenuDialog::reject() {
  if (!content_->isEnabled()) {
    emit CloseRefused();
    return;
  }
  QDialog::reject();
}

void MenuDialog::SetWaiting(bool waiting) {
  content_->setEnabled(!waiting);
  if (!waiting) texto_[0]->setFocus();
}

void MenuDialog::TakeTexts() {
  designer_.List().SetTexts({FromQString(texto_[0]->text()), FromQString(texto_[1]->text())});
  if (subroutines_ != nullptr) subroutines_->setEnabled(!texto_[1]->text().isEmpty());
  ShowPreview();
}

void MenuDialog::ShowTexts() {
  const menus::RowTexts& texts = designer_.List().Texts();
  const std::array<QString, 2> shown{ToQString(texts.Caption), ToQString(texts.Name)};
  for (std::size_t i = 0; i < texto_.size(); ++i) {
    const QSignalBlocker quiet(texto_[i]);
    if (texto_[i]->text() != shown[i]) texto_[i]->setText(shown[i]);
  }
  if (subroutines_ != nullptr) subroutines_->setEnabled(!texts.Name.empty());
}

void MenuDialog::ShowList() {
  const RowList& rows = designer_.List();
  const std::vector<std::string> faults = designer_.Faults();
  list_->ShowRows(rows.ListMenu(), faults, rows.Selected());
  const int last = static_cast<int>(rows.ListMenu().size()) - 1;
  const int row = rows.Selected();
  buttons_[kUp]->setEnabled(row > 0);
  buttons_[kDown]->setEnabled(row >= 0 && row < last);
  buttons_[kOutdent]->setEnabled(rows.Depth() > 0);
  buttons_[kIndent]->setEnabled(row >= 0 && rows.Depth() < kMostMenuDepth);
  buttons_[kDelItem]->setEnabled(row >= 0);
  buttons_[kDelAll]->setEnabled(row >= 0);
  const std::string fault = row < 0 ? std::string() : faults[static_cast<std::size_t>(row)];
  fault_->setText(fault.empty() ? Latin(kKeysText) : ToQString(fault));
  ShowPreview();
}

void MenuDialog::ShowPreview() {
  preview_->ShowMenus(designer_.Preview(), designer_.List().Selected());
}

bool MenuDialog::PressInList(int key) {
  switch (key) {
    case Qt::Key_Delete:
      Press(kDelItem);
      return true;
    case Qt::Key_Insert:
      Press(kInsert);
      return true;
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      texto_[0]->setFocus();
      texto_[0]->selectAll();
      return true;
    default:
      return false;
  }
}

/// Up and Down choose the row without leaving the text box.
bool MenuDialog::PressInField(int key) {
  if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
  const int row = designer_.List().Selected() + (key == Qt::Key_Up ? -1 : 1);
  Do([row](RowList& rows) { rows.Select(row); });
  return true;
}

bool MenuDialog::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && (object == list_ ? PressInList(key.key()) : PressInField(key.key()))) return true;
  }
  return QDialog::eventFilter(object, event);
}

}  // namespace tarnwick
