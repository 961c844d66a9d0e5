#include "qt/editor/function_panel_view.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "qt/kit/grip_splitter.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

const editor::FunctionTab& TabOf(int tab) {
  return editor::kFunctionTabs[static_cast<std::size_t>(tab)];
}

constexpr int kTabs = static_cast<int>(editor::kFunctionListCount);

}  // namespace

FunctionPanelView::FunctionPanelView(editor::FunctionPanel& panel, QWidget* parent)
    : QFrame(parent),
      panel_(panel),
      tabs_(new QTabWidget),
      where_(new QComboBox),
      help_(new QPlainTextEdit) {
  setObjectName(QStringLiteral("WndFunc"));
  setAccessibleName(QStringLiteral("Functions"));
  setProperty("panel", true);
  auto* heading = new QLabel(QStringLiteral(" Functions..."));
  heading->setProperty("heading", true);
  auto* close = new QToolButton;
  close->setObjectName(QStringLiteral("btnClose"));
  close->setIcon(IconOf(QStringLiteral("close")));
  close->setToolTip(QStringLiteral("Close"));
  close->setAccessibleName(QStringLiteral("Close"));
  connect(close, &QToolButton::clicked, this, &FunctionPanelView::CloseWanted);
  auto* head = new QHBoxLayout;
  head->addWidget(heading, 1);
  head->addWidget(close);

  tabs_->setObjectName(QStringLiteral("TabOrder"));
  tabs_->setAccessibleName(QStringLiteral("Functions"));
  tabs_->setDocumentMode(true);
  tabs_->setUsesScrollButtons(false);
  where_->setObjectName(QStringLiteral("ComboSearch"));
  where_->setAccessibleName(QStringLiteral("Where to search"));
  for (const std::string_view row : editor::kComboSearchRows) where_->addItem(ToQString(row));
  for (int tab = 0; tab < kTabs; ++tab) BuildTab(tab);
  help_->setObjectName(QStringLiteral("EditHelp"));
  help_->setAccessibleName(QStringLiteral("Help of the function"));
  help_->setReadOnly(true);
  help_->setTabChangesFocus(true);
  help_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  QFont font(QStringLiteral("Courier New"), 10);
  font.setStyleHint(QFont::Monospace);
  help_->setFont(font);
  help_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(help_, &QWidget::customContextMenuRequested, this, [this](const QPoint& place) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("hlppop"));
    menu.addAction(QStringLiteral("Copy"), help_, &QPlainTextEdit::copy);
    menu.exec(help_->mapToGlobal(place));
  });

  auto* parts = new GripSplitter(Qt::Vertical, this);
  parts->setChildrenCollapsible(false);
  parts->addWidget(tabs_);
  parts->addWidget(help_);
  parts->setSizes({280, 200});
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kRoom, kRoom, kRoom, kRoom);
  column->setSpacing(kGap);
  column->addLayout(head);
  column->addWidget(parts, 1);
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { FocusSearch(); });
  connect(where_, &QComboBox::activated, this, &FunctionPanelView::SearchRowChosen);
}

void FunctionPanelView::BuildTab(int tab) {
  const editor::FunctionListId id = TabOf(tab).List;
  const auto number = static_cast<int>(id);
  Tab& part = parts_[static_cast<std::size_t>(tab)];
  part.List = new QListWidget;
  part.List->setObjectName(QStringLiteral("ListFunc_%1").arg(number));
  part.List->setAccessibleName(ToQString(TabOf(tab).Caption));
  part.List->setUniformItemSizes(true);
  part.Field = new QLineEdit;
  part.Field->setObjectName(QStringLiteral("EditSearch_%1").arg(number));
  part.Field->setAccessibleName(QStringLiteral("Find in %1").arg(ToQString(TabOf(tab).Caption)));
  part.Field->setPlaceholderText(id == editor::FunctionListId::Found
                                     ? QStringLiteral("Text to search for")
                                     : QStringLiteral("First letters of a function"));
  part.Field->setClearButtonEnabled(true);
  part.Field->installEventFilter(this);
  KeepInCodePage(*part.Field);
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, kGap, 0, 0);
  column->setSpacing(kGap);
  column->addWidget(part.Field);
  if (id == editor::FunctionListId::Found) {
    auto* search = new QPushButton(QStringLiteral("Search"));
    search->setObjectName(QStringLiteral("btnSearch"));
    search->setToolTip(QStringLiteral("Search (Enter)"));
    connect(search, &QPushButton::clicked, this, [this] { Search(); });
    auto* line = new QHBoxLayout;
    line->addWidget(where_, 1);
    line->addWidget(search);
    column->addLayout(line);
  }
  column->addWidget(part.List, 1);
  tabs_->addTab(page, ToQString(TabOf(tab).Caption));
  tabs_->setMinimumWidth(tabs_->tabBar()->sizeHint().width());

  connect(part.Field, &QLineEdit::textEdited, this, [this, tab, id](const QString& text) {
    panel_.EditSearchChanged(id, FromQString(text));
    const QSignalBlocker quiet(parts_[static_cast<std::size_t>(tab)].List);
    parts_[static_cast<std::size_t>(tab)].List->setCurrentRow(panel_.RowOf(id));
    ShowHelp();
  });
  connect(part.List, &QListWidget::currentRowChanged, this, [this, id](int row) {
    panel_.Click(id, row);
    ShowHelp();
  });
  connect(part.List, &QListWidget::itemDoubleClicked, this, [this, tab, id] {
    panel_.DoubleClick(id, parts_[static_cast<std::size_t>(tab)].List->currentRow());
  });
}

void FunctionPanelView::RefreshList(int tab) {
  const editor::FunctionListId id = TabOf(tab).List;
  QListWidget& list = *parts_[static_cast<std::size_t>(tab)].List;
  const QSignalBlocker quiet(&list);
  list.clear();
  QStringList texts;
  for (const std::string& row : panel_.ListFunc(id)) texts.append(ToQString(row));
  list.addItems(texts);
  list.setCurrentRow(panel_.RowOf(id));
}

void FunctionPanelView::Refresh(int search_row) {
  for (int tab = 0; tab < kTabs; ++tab) {
    RefreshList(tab);
    parts_[static_cast<std::size_t>(tab)].Field->clear();
  }
  where_->setCurrentIndex(search_row);
  ShowHelp();
}

void FunctionPanelView::ShowHelp() {
  help_->setPlainText(ToQString(panel_.EditHelp()));
}

void FunctionPanelView::FocusSearch() {
  if (isVisible()) parts_[static_cast<std::size_t>(tabs_->currentIndex())].Field->setFocus();
}

void FunctionPanelView::Search() {
  constexpr int kSearchTab = kTabs - 1;
  const Tab& part = parts_[kSearchTab];
  QApplication::setOverrideCursor(Qt::WaitCursor);
  panel_.Search(FromQString(part.Field->text()),
                static_cast<editor::SearchIn>(where_->currentIndex()));
  RefreshList(kSearchTab);
  QApplication::restoreOverrideCursor();
}

bool FunctionPanelView::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(object, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  for (int tab = 0; tab < kTabs; ++tab) {
    const Tab& part = parts_[static_cast<std::size_t>(tab)];
    if (object != part.Field) continue;
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (enter && key->modifiers() == Qt::NoModifier) {
      if (TabOf(tab).List == editor::FunctionListId::Found) {
        Search();
      } else {
        panel_.InsertSelected(TabOf(tab).List);
      }
      return true;
    }
    if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Up) {
      // The field finds, the arrows choose: the focus stays in the field.
      const int row = part.List->currentRow() + (key->key() == Qt::Key_Down ? 1 : -1);
      if (row >= 0 && row < part.List->count()) part.List->setCurrentRow(row);
      return true;
    }
  }
  return QFrame::eventFilter(object, event);
}

}  // namespace tarnwick
